#include "platform/linux/linuxsession.h"

#include "platform/linux/linuxdevicesinuse.h"
#include "platform/linux/linuxmediumtrace.h"
#include "platform/linux/linuxsleepinhibitor.h"

#include <QDir>

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace platform {

namespace {

const QStringList &systemMountPoints()
{
    static const QStringList points{
        QStringLiteral("/"),    QStringLiteral("/boot"), QStringLiteral("/boot/efi"), QStringLiteral("/usr"),
        QStringLiteral("/var"), QStringLiteral("/home"), QStringLiteral("/efi"),      QStringLiteral("/nix")};
    return points;
}

// Compressed swap in memory, which uses no drive.
bool isInMemory(const QString &swapArea)
{
    return swapArea.startsWith(QStringLiteral("/dev/zram"));
}

// The user's name, or the number where there is no name.
QString userName(uid_t user)
{
    passwd entry{};
    passwd *found = nullptr;
    std::array<char, 16384> texts{};
    if (::getpwuid_r(user, &entry, texts.data(), texts.size(), &found) != 0 || found == nullptr)
        return QString::number(user);
    return QString::fromLocal8Bit(found->pw_name);
}

} // namespace

LinuxSession::LinuxSession(const SystemTree &tree)
    : m_tree(tree)
    , m_volumes(tree)
{}

QStringList LinuxSession::systemVolumes()
{
    const MediumTrace trace(m_tree);
    QStringList volumes;
    for (const QString &point : systemMountPoints())
        volumes += trace.volumesUnder(point);
    // If the root leads to no visible medium, any medium in use may hold it.
    if (trace.volumesUnder(QStringLiteral("/")).isEmpty()) {
        for (const VolumeTable::Volume &volume : m_volumes.mounted())
            volumes += trace.volumesUnder(volume.name);
        volumes += devicesInUse(m_tree);
    }
    volumes.removeDuplicates();
    for (const QString &area : parseSwaps(readAttribute(m_tree.proc + QLatin1String("/swaps")))) {
        if (isInMemory(area))
            continue;
        if (!BlockTree::deviceOfNode(area).isEmpty()) {
            volumes.append(area);
            continue;
        }
        const QString holder = m_volumes.mountPointOver(area);
        if (!holder.isEmpty() && !volumes.contains(holder))
            volumes.append(holder);
    }
    return volumes;
}

bool LinuxSession::isSystemRoot(const QString &rootPath)
{
    return systemMountPoints().contains(QDir::cleanPath(rootPath));
}

bool LinuxSession::holdsSystemFiles(const QString &rootPath)
{
    return isSystemRoot(rootPath);
}

QString LinuxSession::userId()
{
    return QString::number(::geteuid());
}

Result<bool> LinuxSession::isAdministrator()
{
    return ::geteuid() == 0;
}

QString LinuxSession::foreignAccount()
{
    // Each variable holds the user who requested more rights.
    for (const char *variable : {"PKEXEC_UID", "SUDO_UID"}) {
        bool isNumber = false;
        const uint asking = qEnvironmentVariable(variable).toUInt(&isNumber);
        if (isNumber && asking != ::geteuid())
            return userName(::geteuid());
    }
    return {};
}

Result<std::unique_ptr<AwakeHold>> LinuxSession::keepAwake(const AwakeRequest &request)
{
    return inhibitSleep(request.reason);
}

} // namespace platform
