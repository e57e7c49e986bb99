#include "platform/linux/linuxvolumelabel.h"

#include "platform/filenames.h"
#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxudevdatabase.h"

#include <array>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

namespace platform {

QString volumeLabel(const SystemTree &tree, const QByteArray &device, const QString &mountPoint)
{
    const UdevProperties udev = udevProperties(tree, device);
    if (udev.contains("ID_FS_LABEL"))
        return QString::fromUtf8(udev.value("ID_FS_LABEL"));

    const FileDescriptor root(fileCalls().openat(AT_FDCWD, encodeName(mountPoint).constData(),
                                                 O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    std::array<char, FSLABEL_MAX + 1> label = {};
    if (!root.isValid() || deviceCalls().ioctl(root.get(), FS_IOC_GETFSLABEL, label.data()) != 0)
        return {};
    return QString::fromUtf8(label.data());
}

} // namespace platform
