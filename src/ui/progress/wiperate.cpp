#include "ui/progress/wiperate.h"

using namespace Qt::StringLiterals;

namespace wiperate {

namespace {

constexpr double Kilobyte = 1024.0;
constexpr double Megabyte = 1024.0 * Kilobyte;
constexpr double Gigabyte = 1024.0 * Megabyte;
constexpr double SecondsOfProgress = 60.0;
constexpr double SecondsPerDay = 86400.0;

} // namespace

QString rateText(double bytesPerSecond)
{
    if (bytesPerSecond < Kilobyte)
        return u"%1 B"_s.arg(bytesPerSecond, 0, 'f', 0);
    if (bytesPerSecond < Megabyte)
        return u"%1 KB"_s.arg(bytesPerSecond / Kilobyte, 0, 'f', 1);
    if (bytesPerSecond < Gigabyte)
        return u"%1 MB"_s.arg(bytesPerSecond / Megabyte, 0, 'f', 1);
    return u"%1 GB"_s.arg(bytesPerSecond / Gigabyte, 0, 'f', 2);
}

std::optional<int> remainingSeconds(double percent, double bytesPerSecond)
{
    if (!(bytesPerSecond > 0.0) || !(percent > 0.0) || !(percent < 100.0))
        return std::nullopt;
    const double seconds = (100.0 - percent) / percent * SecondsOfProgress;
    // Compared before the truncation, as a tiny percent gives a number that fits into no integer.
    if (seconds < 1.0 || seconds >= SecondsPerDay)
        return std::nullopt;
    return static_cast<int>(seconds);
}

} // namespace wiperate
