#include "platform/linux/linuxsystemtree.h"

#include <QFile>

#include <limits>

namespace platform {

QByteArray readAttribute(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    // The reported size is no help: attributes report 4096, and files below /proc report 0.
    QByteArray text;
    while (true) {
        const QByteArray part = file.read(65536);
        if (part.isEmpty())
            break;
        text += part;
    }
    while (text.endsWith('\n'))
        text.chop(1);
    return text;
}

qint64 readNumber(const QString &path)
{
    return readAttribute(path).trimmed().toLongLong();
}

qint64 readLength(const QString &path)
{
    constexpr qint64 Unit = 512;
    const qint64 count = readNumber(path);
    return count > 0 && count <= std::numeric_limits<qint64>::max() / Unit ? count * Unit : 0;
}

} // namespace platform
