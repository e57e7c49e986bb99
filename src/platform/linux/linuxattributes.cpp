#include "platform/linux/linuxattributes.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"

#include <QByteArray>

#include <linux/limits.h>

#include <cerrno>
#include <cstddef>

namespace platform {

namespace {

// The names, each with a zero behind it.
Result<QByteArray> namesOf(int file)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = fileCalls().flistxattr(file, names.data(), static_cast<std::size_t>(names.size()));
    if (size < 0 && errno == EOPNOTSUPP)
        return QByteArray();
    if (size < 0)
        return statusFromErrno(errno, "flistxattr");
    return names.left(size);
}

} // namespace

Result<QList<NamedStream>> attributesOf(int file)
{
    const auto names = namesOf(file);
    if (!names)
        return names.status();
    QList<NamedStream> attributes;
    for (const QByteArray &name : names.value().split('\0')) {
        if (!name.startsWith("user."))
            continue;
        const ssize_t size = fileCalls().fgetxattr(file, name.constData(), nullptr, 0);
        if (size < 0 && errno == ENODATA) // removed meanwhile
            continue;
        if (size < 0)
            return statusFromErrno(errno, "fgetxattr");
        attributes.append({QLatin1Char('/') + decodeName(name), size});
    }
    return attributes;
}

} // namespace platform
