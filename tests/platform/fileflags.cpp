#include "platform/fileflags.h"

#include "platform/filenames.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

bool setImmutable(const QString &path, bool immutable)
{
    using namespace platform;

    const FileDescriptor file(::open(encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    int flags = 0;
    if (!file.isValid() || ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0)
        return false;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
}

int openFlags(const QString &path)
{
    const QString wanted = QFileInfo(path).canonicalFilePath();
    for (const QString &number :
         QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System)) {
        if (QFile::symLinkTarget(QStringLiteral("/proc/self/fd/") + number) != wanted)
            continue;
        for (const QByteArray &line : contentOf(QStringLiteral("/proc/self/fdinfo/") + number).split('\n')) {
            if (line.startsWith("flags:"))
                return line.mid(6).trimmed().toInt(nullptr, 8);
        }
    }
    return -1;
}
