#pragma once

#include "platform/entrypath.h"

#include <QtGlobal>

#include <atomic>
#include <cstddef>
#include <functional>

namespace platform {
class FileHandle;
}

/// Reads samples of files back from random places. Several threads may check files at the same time.
class FileSampling
{
public:
    static constexpr int SamplesPerFile = 3;

    enum class Outcome {
        Passed,
        Different,  ///< a sample does not match
        Unreadable, ///< a sample could not be read
        Replaced,   ///< another file stands there
    };
    /// Whether the bytes of a sample are the data of the pass. Called on the checking thread.
    using Matches = std::function<bool(const std::byte *data, qint64 size)>;
    /// Whether the opened file is another one than the file that was written. Called on the checking thread.
    using IsAnother = std::function<bool(platform::FileHandle &opened)>;
    /// False ends a check after the current sample.
    using GoOn = std::function<bool()>;

    explicit FileSampling(GoOn goOn);

    /// size: of the file, in bytes. A check that is ended early counts as passed.
    Outcome check(const platform::EntryPath &place, qint64 size, const Matches &matches,
                  const IsAnother &isAnother);

    /// Samples of all files, whether they matched or not.
    int samplesRead() const { return m_samplesRead; }

private:
    GoOn m_goOn;
    std::atomic<int> m_samplesRead{0};
};
