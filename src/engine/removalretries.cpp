#include "engine/removalretries.h"

using namespace std::chrono_literals;

namespace {

constexpr int Attempts = 10;
constexpr auto Pause = 50ms;

} // namespace

platform::Status removeWithRetries(const std::function<platform::Status()> &remove, const RetryPause &pause)
{
    for (int attempt = 1;; ++attempt) {
        const platform::Status removed = remove();
        const bool isHeld =
            removed.code == platform::SharingViolation || removed.code == platform::AccessDenied;
        if (!isHeld || attempt == Attempts || !pause(Pause))
            return removed;
    }
}
