#include "engine/filesampling.h"

#include "engine/filetrace.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QRandomGenerator>

#include <array>
#include <utility>

namespace {
constexpr qint64 SampleSize = 1024;
}

FileSampling::FileSampling(GoOn goOn)
    : m_goOn(std::move(goOn))
{}

FileSampling::Outcome FileSampling::check(const platform::EntryPath &place, qint64 size,
                                          const Matches &matches, const IsAnother &isAnother)
{
    const auto opened = platform::Platform::current().files().open(place, platform::OpenMode::Verify);
    if (!opened) {
        traceFile(place.path(), opened.status());
        return Outcome::Unreadable;
    }
    platform::FileHandle &file = *opened.value();
    if (isAnother(file))
        return Outcome::Replaced;
    std::array<std::byte, SampleSize> sample;
    for (int i = 0; i < SamplesPerFile && m_goOn(); ++i) {
        const qint64 offset =
            size > SampleSize ? QRandomGenerator64::global()->bounded(size - SampleSize) : 0;
        const platform::Status found = file.seek(offset);
        traceFile(place.path(), found);
        if (!found)
            return Outcome::Unreadable;
        const auto read = file.read(sample.data(), SampleSize);
        traceFile(place.path(), read.status());
        if (!read || read.value() <= 0)
            return Outcome::Unreadable;
        ++m_samplesRead;
        if (!matches(sample.data(), read.value()))
            return Outcome::Different;
    }
    return Outcome::Passed;
}
