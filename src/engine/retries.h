#pragma once

#include "platform/files.h"
#include "platform/status.h"

#include <chrono>
#include <functional>
#include <memory>

// Virus scanners, indexers and previews hold a file for moments, and only what they cause is tried again.

// Waits for the time given; false to give up the attempts.
using RetryPause = std::function<bool(std::chrono::milliseconds)>;

// Deletes what remove() deletes, in up to ten attempts. The answer of the last attempt.
platform::Status removeWithRetries(const std::function<platform::Status()> &remove, const RetryPause &pause);

using OpenedFile = platform::Result<std::unique_ptr<platform::FileHandle>>;

// Opens what open() opens, in up to five attempts. The answer of the last attempt.
OpenedFile openWithRetries(const std::function<OpenedFile()> &open, const RetryPause &pause);
