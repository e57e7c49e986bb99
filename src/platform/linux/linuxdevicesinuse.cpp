#include "platform/linux/linuxdevicesinuse.h"

#include "platform/filenames.h"
#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxudevdatabase.h"

#include <QDir>

#include <fcntl.h>
#include <linux/loop.h>
#include <sys/ioctl.h>
#include <sys/sysmacros.h>

namespace platform {

namespace {

bool isMemberOfSomething(const SystemTree &tree, const QByteArray &device)
{
    const QByteArray usage = udevProperties(tree, device).value("ID_FS_USAGE");
    return usage == "raid" || usage == "crypto";
}

// The device whose file system holds the file behind a loop device; empty when it is unknown.
QByteArray deviceBehindLoop(const QString &node)
{
    const FileDescriptor loop(
        fileCalls().openat(AT_FDCWD, encodeName(node).constData(), O_RDONLY | O_CLOEXEC, 0));
    loop_info64 info = {};
    if (!loop.isValid() || deviceCalls().ioctl(loop.get(), LOOP_GET_STATUS64, &info) != 0)
        return {};
    return QByteArray::number(major(info.lo_device)) + ':' + QByteArray::number(minor(info.lo_device));
}

} // namespace

QStringList devicesInUse(const SystemTree &tree)
{
    const BlockTree blocks(tree);
    const QStringList names = QDir(tree.sys + QLatin1String("/class/block"))
                                  .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    QStringList nodes;
    for (const QString &name : names) {
        const QByteArray device = blocks.deviceOfName(name);
        const QString node = blocks.node(device);
        if (node.isEmpty())
            continue;
        if (!blocks.holdersOf(device).isEmpty() || isMemberOfSomething(tree, device))
            nodes.append(node);
        if (!readAttribute(tree.sys + QLatin1String("/class/block/") + name +
                           QLatin1String("/loop/backing_file"))
                 .isEmpty()) {
            const QString behind = blocks.node(deviceBehindLoop(node));
            if (!behind.isEmpty())
                nodes.append(behind);
        }
    }
    nodes.removeDuplicates();
    return nodes;
}

} // namespace platform
