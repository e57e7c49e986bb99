#pragma once

#include "engine/patterngenerator.h"
#include "engine/runningjob.h"
#include "model/wipemethod.h"

#include <QtGlobal>

#include <cstddef>

// What the parts of a file job need of its worker. Everything but drawSeed(), reportError() and progress()
// may be called on the threads of the pool.
class FileWork : public RunningJob
{
public:
    // The bytes of one pass, what is random of them from the generator.
    virtual void fillFrom(PatternGenerator &random, std::byte *data, qint64 size,
                          const PassPattern &pattern) = 0;
    // Whether what was read back is what the pass wrote.
    virtual bool matches(const std::byte *data, qint64 size, const PassPattern &pattern) const = 0;
    // For a generator of a thread's own.
    virtual quint32 drawSeed() = 0;

protected:
    FileWork() = default;
    ~FileWork() = default;
    FileWork(const FileWork &) = default;
    FileWork &operator=(const FileWork &) = default;
};
