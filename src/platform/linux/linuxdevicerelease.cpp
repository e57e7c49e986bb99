#include "platform/linux/linuxdevicerelease.h"

#include "platform/linux/linuxmounttable.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

// A name, quoted for the shell.
QString quoted(const QString &name)
{
    static const QString plain = QStringLiteral("/._-+:@%");
    const bool isPlain = std::all_of(name.begin(), name.end(), [](QChar character) {
        return (character.unicode() < 128 && character.isLetterOrNumber()) || plain.contains(character);
    });
    return isPlain ? name : u'\'' + QString(name).replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

} // namespace

DeviceRelease::DeviceRelease(const SystemTree &tree)
    : m_tree(tree)
    , m_blocks(tree)
    , m_volumes(tree)
{}

QString DeviceRelease::mappedName(const QByteArray &device) const
{
    return QString::fromUtf8(readAttribute(m_tree.sys + QLatin1String("/dev/block/") +
                                           QString::fromLatin1(device) + QLatin1String("/dm/name")));
}

QString DeviceRelease::description(const QByteArray &device) const
{
    const QByteArray uuid = readAttribute(m_tree.sys + QLatin1String("/dev/block/") +
                                          QString::fromLatin1(device) + QLatin1String("/dm/uuid"));
    const QString kernelName = m_blocks.kernelName(device);
    if (kernelName.startsWith(QLatin1String("md")))
        return QLatin1String("RAID ") + kernelName;
    const QString name = mappedName(device);
    if (uuid.startsWith("LVM-"))
        return QLatin1String("LVM ") + name;
    if (uuid.startsWith("CRYPT-"))
        return QLatin1String("LUKS ") + name;
    return name.isEmpty() ? kernelName : name;
}

QString DeviceRelease::command(const QByteArray &device) const
{
    const QString kernelName = m_blocks.kernelName(device);
    if (kernelName.startsWith(QLatin1String("md")))
        return QLatin1String("mdadm --stop ") + quoted(m_blocks.node(device));
    const QString what = description(device);
    const QString name = mappedName(device);
    if (name.isEmpty())
        return {};
    if (what.startsWith(QLatin1String("LVM ")))
        return QLatin1String("lvchange -an ") + quoted(QLatin1String("/dev/mapper/") + name);
    if (what.startsWith(QLatin1String("LUKS ")))
        return QLatin1String("cryptsetup close ") + quoted(name);
    return QLatin1String("dmsetup remove ") + quoted(name);
}

QStringList DeviceRelease::holders(const QByteArray &device) const
{
    QStringList names;
    for (const QByteArray &holder : m_blocks.holdersOf(device))
        names.append(description(holder));
    return names;
}

QStringList DeviceRelease::unmountCommands(const QByteArray &device) const
{
    QStringList commands;
    for (const QString &point : m_volumes.mountPointsOf(device))
        commands.append(QLatin1String("umount ") + quoted(point));
    return commands;
}

QStringList DeviceRelease::commands(const QByteArray &device) const
{
    const QStringList swaps = parseSwaps(readAttribute(m_tree.proc + QLatin1String("/swaps")));
    QList<QByteArray> held = m_blocks.holdersOf(device);
    std::reverse(held.begin(), held.end());
    QStringList commands;
    for (const QByteArray &holder : std::as_const(held)) {
        commands += unmountCommands(holder);
        for (const QString &swap : swaps) {
            if (BlockTree::deviceOfNode(swap) == holder)
                commands.append(QLatin1String("swapoff ") + quoted(swap));
        }
        const QString last = command(holder);
        if (!last.isEmpty())
            commands.append(last);
    }
    return commands;
}

} // namespace platform
