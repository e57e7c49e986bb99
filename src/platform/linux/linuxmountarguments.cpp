#include "platform/linux/linuxmountarguments.h"

#include "platform/filenames.h"

#include <QHash>
#include <QStringList>

#include <sys/mount.h>

namespace platform {

namespace {

unsigned long fileSystemFlag(const QString &option)
{
    static const QHash<QString, unsigned long> flags{
        {QStringLiteral("ro"), MS_RDONLY},       {QStringLiteral("sync"), MS_SYNCHRONOUS},
        {QStringLiteral("dirsync"), MS_DIRSYNC}, {QStringLiteral("mand"), MS_MANDLOCK},
        {QStringLiteral("lazytime"), 1UL << 25}, // MS_LAZYTIME, which not every C library names
    };
    return flags.value(option);
}

unsigned long mountFlag(const QString &option)
{
    static const QHash<QString, unsigned long> flags{
        {QStringLiteral("ro"), MS_RDONLY},         {QStringLiteral("nosuid"), MS_NOSUID},
        {QStringLiteral("nodev"), MS_NODEV},       {QStringLiteral("noexec"), MS_NOEXEC},
        {QStringLiteral("noatime"), MS_NOATIME},   {QStringLiteral("nodiratime"), MS_NODIRATIME},
        {QStringLiteral("relatime"), MS_RELATIME}, {QStringLiteral("nosymfollow"), MS_NOSYMFOLLOW},
    };
    return flags.value(option);
}

unsigned long propagationOf(const QByteArray &fields)
{
    for (const QByteArray &field : fields.split(' ')) {
        if (field.startsWith("shared:"))
            return MS_SHARED;
        if (field == "unbindable")
            return MS_UNBINDABLE;
    }
    return MS_PRIVATE;
}

} // namespace

MountArguments MountArguments::of(const MountEntry &entry)
{
    MountArguments arguments;
    QStringList data;
    QString subvolume;
    for (const QString &option : entry.options.split(u',', Qt::SkipEmptyParts)) {
        const unsigned long flag = fileSystemFlag(option);
        arguments.fileSystemFlags |= flag;
        if (flag == 0 && option != u"rw")
            data.append(option);
        if (option.startsWith(u"subvol="))
            subvolume = option.mid(7);
    }
    arguments.data = encodeName(data.join(u','));
    arguments.isWhole = entry.root == u"/" || (!subvolume.isEmpty() && entry.root == subvolume);

    for (const QString &option : entry.mountOptions.split(u',', Qt::SkipEmptyParts))
        arguments.mountFlags |= mountFlag(option);
    // The mount table has no word for strict access times.
    if ((arguments.mountFlags & (MS_NOATIME | MS_RELATIME)) == 0)
        arguments.mountFlags |= MS_STRICTATIME;
    arguments.propagation = propagationOf(entry.propagation);
    return arguments;
}

} // namespace platform
