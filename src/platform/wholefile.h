#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace platform {

/// The file that a person named for a result: a report, a certificate.
///
/// A regular file appears with all its bytes or does not change: a full disk, a crash or a missing permission
/// leave what was there before. Its mode stays, links are followed to the file they name. Character devices
/// and pipes are written through, which waits for a pipe's reader. Everything else is refused: folders,
/// sockets, and block devices above all, whose data nobody meant.
class WholeFile
{
public:
    /// lineEnds: QIODevice::Text for those of the system, in a text.
    explicit WholeFile(const QString &path, QIODevice::OpenMode lineEnds = {});

    /// Whether something of this kind is written: a regular file, a stream, or what is not there yet.
    static bool isPossible(const QString &path);

    /// False where nothing can be written; changes nothing yet.
    bool open();

    /// Puts the bytes into place. False leaves the old file; a stream may have got a part.
    bool commit(const QByteArray &bytes);

private:
    bool commitToStream(const QByteArray &bytes);
    bool failed(const char *step, const QString &why) const;

    QSaveFile m_file;
    QIODevice::OpenMode m_lineEnds;
    bool m_isStream;
};

} // namespace platform
