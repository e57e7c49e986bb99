#pragma once

#include <QString>

#include <optional>

/// Texts and estimates of the progress page.
namespace wiperate {

/// Returns a rate without its "/s": "1023 B", "1.5 KB", "3.00 GB". The text is the same in every locale.
QString rateText(double bytesPerSecond);

/// Returns the seconds left, on the assumption that the last minute brought the job to this percent. Empty
/// without speed or progress, at 100 percent, and for less than a second or for a day and more.
std::optional<int> remainingSeconds(double percent, double bytesPerSecond);

} // namespace wiperate
