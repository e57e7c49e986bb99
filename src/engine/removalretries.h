#pragma once

#include "platform/status.h"

#include <chrono>
#include <functional>

// Waits for the time given; false to give up the attempts.
using RetryPause = std::function<bool(std::chrono::milliseconds)>;

// Deletes what remove() deletes, in up to ten attempts: virus scanners and indexers hold a file for moments,
// and only what they cause is tried again. The answer of the last attempt.
platform::Status removeWithRetries(const std::function<platform::Status()> &remove, const RetryPause &pause);
