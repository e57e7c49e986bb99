#pragma once

#include <QString>

#include <optional>

/// What the progress page makes of percent and speed.
namespace wiperate {

/// A rate as the page shows it, without the "/s": "1023 B", "1.5 KB", "3.00 GB". The same in every locale.
QString rateText(double bytesPerSecond);

/// The seconds left, taking it that the last minute brought the job to this percent. Nothing where there is
/// nothing to tell: no speed, no progress yet, done, less than a second left, a day or more left.
std::optional<int> remainingSeconds(double percent, double bytesPerSecond);

} // namespace wiperate
