#pragma once

#include "engine/runningjob.h"
#include "model/wipemethod.h"

#include <QtGlobal>

#include <cstddef>

// What the parts of a disk job need of the worker that runs them.
class DiskJob : public RunningJob
{
public:
    // Whether data read back is what a pass wrote.
    virtual bool matches(const std::byte *data, qint64 size, const PassPattern &pattern) const = 0;

protected:
    DiskJob() = default;
    ~DiskJob() = default;
    DiskJob(const DiskJob &) = default;
    DiskJob &operator=(const DiskJob &) = default;
};
