#include "platform/linux/linuxudevdatabase.h"

namespace platform {

UdevProperties udevProperties(const SystemTree &tree, const QByteArray &device)
{
    UdevProperties properties;
    const QByteArray text = readAttribute(tree.udev + QLatin1String("/b") + QString::fromLatin1(device));
    for (const QByteArray &line : text.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith("E:") && equals > 2)
            properties.insert(line.mid(2, equals - 2), line.mid(equals + 1));
    }
    return properties;
}

} // namespace platform
