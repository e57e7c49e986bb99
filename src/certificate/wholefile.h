#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

/// A file that appears with all its bytes or does not change: a full disk, a crash or a missing permission
/// leave what was there before. Links are followed to the file they name.
class WholeFile
{
public:
    explicit WholeFile(const QString &path);

    /// False where nothing can be written, and for anything but a regular file: replacing a device node would
    /// destroy it, and what went into a pipe cannot be taken back.
    bool open();

    /// Puts the bytes into place. False leaves the old file.
    bool commit(const QByteArray &bytes);

private:
    bool failed(const char *step) const;

    QSaveFile m_file;
};
