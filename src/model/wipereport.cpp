#include "model/wipereport.h"

#include <QRandomGenerator>

#include <array>

namespace {
// Indexed by the number of the status and of the operation.
constexpr std::array statusNames{
    QT_TRANSLATE_NOOP("WipeReport", "Pending"), QT_TRANSLATE_NOOP("WipeReport", "Running"),
    QT_TRANSLATE_NOOP("WipeReport", "Paused"),  QT_TRANSLATE_NOOP("WipeReport", "Completed"),
    QT_TRANSLATE_NOOP("WipeReport", "Failed"),  QT_TRANSLATE_NOOP("WipeReport", "Cancelled"),
};
constexpr std::array operationNames{
    QT_TRANSLATE_NOOP("WipeReport", "Disk Wipe"),
    QT_TRANSLATE_NOOP("WipeReport", "Partition Wipe"),
    QT_TRANSLATE_NOOP("WipeReport", "Free Space Wipe"),
    QT_TRANSLATE_NOOP("WipeReport", "File Wipe"),
};

template <std::size_t Size>
QString nameOf(const std::array<const char *, Size> &names, qint32 number)
{
    const bool known = number >= 0 && number < static_cast<qint32>(Size);
    return known ? WipeReport::tr(names[static_cast<std::size_t>(number)]) : WipeReport::tr("Unknown");
}

QString operatorFromEnvironment()
{
    const QString name = qEnvironmentVariable("USERNAME");
    return name.isEmpty() ? qEnvironmentVariable("USER") : name;
}
} // namespace

WipeReport::WipeReport()
    : certificateId(newCertificateId())
    , operatorName(operatorFromEnvironment())
    , computerName(qEnvironmentVariable("COMPUTERNAME"))
{}

QString WipeReport::newCertificateId()
{
    // One date for both parts, so that midnight cannot fall between them.
    const QDate today = QDate::currentDate();
    const quint64 draw = QRandomGenerator::system()->generate();
    const quint64 number = (draw * 8999 >> 32) + 1000;
    return QStringLiteral("QVX-%1-%2-%3")
        .arg(today.toString(u"yyyy"), today.toString(u"MMdd"), QString::number(number));
}

QString WipeReport::operationTypeName() const
{
    return nameOf(operationNames, operationType);
}

QString WipeReport::statusName() const
{
    return nameOf(statusNames, static_cast<qint32>(status));
}

QString WipeReport::duration() const
{
    if (!startTime.isValid())
        return {};
    const qint64 total = startTime.secsTo(endTime.isValid() ? endTime : QDateTime::currentDateTime());
    const qint64 hours = total / 3600;
    const qint64 minutes = (total - hours * 3600) / 60;
    const qint64 seconds = total % 60;
    if (hours >= 1)
        return QStringLiteral("%1h %2m %3s").arg(hours).arg(minutes).arg(seconds);
    if (minutes >= 1)
        return QStringLiteral("%1m %2s").arg(minutes).arg(seconds);
    return QStringLiteral("%1s").arg(seconds);
}
