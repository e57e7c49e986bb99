#pragma once

#include <QHashFunctions>
#include <QtGlobal>

namespace platform {

// What tells a file from every other one, under whatever name. The number of a deleted file may be given
// again; the time of birth, where the file system keeps one, tells the two apart.
struct FileId
{
    quint64 device = 0;
    quint64 number = 0;
    qint64 born = 0; // ns since 1970, 0 without one

    bool operator==(const FileId &) const = default;
};

inline size_t qHash(const FileId &id, size_t seed = 0)
{
    return qHashMulti(seed, id.device, id.number, id.born);
}

} // namespace platform
