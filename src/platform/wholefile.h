#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace platform {

/// The file that the user named for a result, such as a report or a certificate.
///
/// A regular file is replaced with all its bytes or does not change, so that a full disk, a crash or a
/// missing permission leave the old content. Its mode stays, links are followed to their target. Character
/// devices and pipes are written directly, which waits for a pipe's reader. All other entries are refused:
/// folders, sockets, and above all block devices, whose data would be destroyed.
class WholeFile
{
public:
    /// lineEnds: QIODevice::Text for the system's line ends in a text.
    explicit WholeFile(const QString &path, QIODevice::OpenMode lineEnds = {});

    /// Whether the path can be written: a regular file, a stream, or no entry yet.
    static bool isPossible(const QString &path);

    /// False where the file cannot be written; changes nothing yet.
    bool open();

    /// Writes the bytes and replaces the file. False leaves the old file; a stream may have received a part.
    bool commit(const QByteArray &bytes);

private:
    bool commitToStream(const QByteArray &bytes);
    bool failed(const char *step, const QString &why) const;

    QSaveFile m_file;
    QIODevice::OpenMode m_lineEnds;
    bool m_isStream;
};

} // namespace platform
