#include "platform/linux/linuxsystemtree.h"

#include <QFile>

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

} // namespace platform
