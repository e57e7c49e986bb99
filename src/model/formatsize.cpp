#include "model/formatsize.h"

#include <array>

QString formatSize(qint64 bytes)
{
    static constexpr std::array<const char *, 6> units{"B", "KB", "MB", "GB", "TB", "PB"};

    auto value = static_cast<double>(static_cast<quint64>(bytes));
    std::size_t unit = 0;
    while (value >= 1024.0 && unit + 1 < units.size()) {
        value *= 1.0 / 1024.0;
        ++unit;
    }
    const QString number =
        unit == 0 ? QString::number(static_cast<qint64>(value)) : QString::number(value, 'f', 2);
    return QStringLiteral("%1 %2").arg(number, QLatin1String(units[unit]));
}
