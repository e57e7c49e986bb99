#include "engine/retries.h"

using namespace std::chrono_literals;

namespace {

constexpr int RemovalAttempts = 10;
constexpr int OpeningAttempts = 5;
constexpr auto Pause = 50ms;

} // namespace

platform::Status removeWithRetries(const std::function<platform::Status()> &remove, const RetryPause &pause)
{
    for (int attempt = 1;; ++attempt) {
        const platform::Status removed = remove();
        const bool isHeld =
            removed.code == platform::SharingViolation || removed.code == platform::AccessDenied;
        if (!isHeld || attempt == RemovalAttempts || !pause(Pause))
            return removed;
    }
}

OpenedFile openWithRetries(const std::function<OpenedFile()> &open, const RetryPause &pause)
{
    for (int attempt = 1;; ++attempt) {
        OpenedFile opened = open();
        if (opened.code() != platform::SharingViolation || attempt == OpeningAttempts || !pause(Pause))
            return opened;
    }
}
