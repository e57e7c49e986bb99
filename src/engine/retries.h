#pragma once

#include "platform/files.h"
#include "platform/status.h"

#include <chrono>
#include <functional>
#include <memory>

// Virus scanners, indexers and previews hold a file for moments. Only failures caused by such a hold are
// retried.

/// Waits for the given time; returns false to give up the attempts.
using RetryPause = std::function<bool(std::chrono::milliseconds)>;

/// Calls remove() in up to ten attempts and returns the result of the last one.
platform::Status removeWithRetries(const std::function<platform::Status()> &remove, const RetryPause &pause);

using OpenedFile = platform::Result<std::unique_ptr<platform::FileHandle>>;

/// Calls open() in up to five attempts and returns the result of the last one.
OpenedFile openWithRetries(const std::function<OpenedFile()> &open, const RetryPause &pause);
