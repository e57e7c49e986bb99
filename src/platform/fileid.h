#pragma once

#include <QHashFunctions>
#include <QtGlobal>

namespace platform {

/// Identifies a file under any of its names. A file system may reuse the number of a deleted file; the
/// creation time, where the file system keeps one, distinguishes the two files.
struct FileId
{
    quint64 device = 0;
    quint64 number = 0;
    qint64 born = 0; ///< ns since 1970, 0 without one

    bool operator==(const FileId &) const = default;
};

inline size_t qHash(const FileId &id, size_t seed = 0)
{
    return qHashMulti(seed, id.device, id.number, id.born);
}

} // namespace platform
