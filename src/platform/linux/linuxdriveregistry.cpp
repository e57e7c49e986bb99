#include "platform/linux/linuxdriveregistry.h"

#include "platform/linux/linuxdrivedescription.h"

#include <QDir>
#include <QMutexLocker>
#include <QRegularExpression>

#include <algorithm>

namespace platform {

namespace {

constexpr int NumbersInReach = 32; // the number of drives that enumeration examines

bool isDriveName(const QString &name)
{
    static const QRegularExpression others(QStringLiteral("^(zram|ram|dm-|md|sr|fd|nbd|mtdblock)"));
    static const QRegularExpression eMmcHardwarePartition(QStringLiteral("^mmcblk[0-9]+(boot|rpmb)"));
    return !others.match(name).hasMatch() && !eMmcHardwarePartition.match(name).hasMatch();
}

// sda before sdb before sdaa, nvme2n1 before nvme10n1.
bool naturallyLess(const QString &a, const QString &b)
{
    static const QRegularExpression form(QStringLiteral("^([a-z]+)(.*)$"));
    const QRegularExpressionMatch ma = form.match(a);
    const QRegularExpressionMatch mb = form.match(b);
    const QString lettersA = ma.captured(1);
    const QString lettersB = mb.captured(1);
    const bool sameFamily = lettersA.left(2) == lettersB.left(2);
    if (sameFamily && lettersA.size() != lettersB.size())
        return lettersA.size() < lettersB.size();
    if (lettersA != lettersB)
        return lettersA < lettersB;
    const auto numbers = [](const QString &rest) {
        QList<int> values;
        static const QRegularExpression digits(QStringLiteral("[0-9]+"));
        for (auto it = digits.globalMatch(rest); it.hasNext();)
            values.append(it.next().captured().toInt());
        return values;
    };
    return numbers(ma.captured(2)) < numbers(mb.captured(2));
}

} // namespace

DriveRegistry::DriveRegistry(SystemTree tree)
    : m_tree(std::move(tree))
{}

QList<Drive> DriveRegistry::scan() const
{
    const QString block = m_tree.sys + QLatin1String("/block");
    QStringList names = QDir(block).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    std::sort(names.begin(), names.end(), naturallyLess);

    QList<Drive> found;
    for (const QString &name : names) {
        const QString folder = block + u'/' + name;
        Drive drive;
        drive.kernelName = name;
        drive.sizeBytes = readLength(folder + QLatin1String("/size"));
        if (drive.sizeBytes <= 0 || !isDriveName(name) || readNumber(folder + QLatin1String("/ro")) != 0)
            continue;
        if (readNumber(folder + QLatin1String("/hidden")) !=
            0) // one path of several to the same NVMe namespace
            continue;
        drive.device = readAttribute(folder + QLatin1String("/dev"));
        drive.serialNumber =
            decodeDeviceDescriptor(encodeDeviceDescriptor(describeDrive(m_tree, name))).serialNumber;
        if (drive.serialNumber.isEmpty())
            drive.attachment = attachmentOf(m_tree, name).toLatin1();
        found.append(drive);
    }
    return found;
}

// A number belongs to its latest holder only. An earlier holder gets it back when the latest one is gone.
int DriveRegistry::numberFor(const Drive &drive, const QList<Drive> &present)
{
    const auto sameDevice = [&drive](const Drive &other) { return other.isSameDevice(drive); };
    const auto confusable = [&drive](const Drive &other) {
        return other.serialNumber == drive.serialNumber && other.sizeBytes == drive.sizeBytes &&
               other.attachment == drive.attachment;
    };
    const auto isTaken = [&present](const QList<Drive> &holders) {
        return std::any_of(present.begin(), present.end(),
                           [&holders](const Drive &other) { return other.isSameDevice(holders.last()); });
    };

    for (qsizetype number = 0; number < m_holders.size(); ++number) {
        if (m_holders[number].last().isSameDevice(drive))
            return static_cast<int>(number);
    }
    for (qsizetype number = 0; number < m_holders.size(); ++number) {
        QList<Drive> &holders = m_holders[number];
        const bool had = std::any_of(holders.begin(), holders.end(), sameDevice);
        const bool isSpare = m_holders.size() >= NumbersInReach && number < NumbersInReach &&
                             std::none_of(holders.begin(), holders.end(), confusable);
        if ((had || isSpare) && !isTaken(holders)) {
            holders.append(drive);
            return static_cast<int>(number);
        }
    }
    m_holders.append(QList<Drive>{drive});
    return static_cast<int>(m_holders.size() - 1);
}

QList<Drive> DriveRegistry::drives()
{
    const QMutexLocker lock(&m_mutex);
    QList<Drive> present = scan();
    for (Drive &drive : present)
        drive.number = numberFor(drive, present);
    std::sort(present.begin(), present.end(),
              [](const Drive &a, const Drive &b) { return a.number < b.number; });
    return present;
}

std::optional<Drive> DriveRegistry::byNumber(int number)
{
    for (const Drive &drive : drives()) {
        if (drive.number == number)
            return drive;
    }
    return std::nullopt;
}

std::optional<Drive> DriveRegistry::byDevice(const QByteArray &device)
{
    for (const Drive &drive : drives()) {
        if (drive.device == device)
            return drive;
    }
    return std::nullopt;
}

} // namespace platform
