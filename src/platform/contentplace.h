#pragma once

#include <QFlags>
#include <QtGlobal>

namespace platform {

/// Reasons why old content of a file may survive overwriting the file in place.
enum class Elsewhere : quint32 {
    Shared = 1 << 0,       ///< blocks are shared with other files or with snapshots
    Inline = 1 << 1,       ///< bytes lie in a file system record, and the journal keeps old copies of it
    Encoded = 1 << 2,      ///< stored compressed or encrypted, also by the system, and not as written
    Sparse = 1 << 3,       ///< stored with holes; blocks are allocated for them and freed again
    Relocating = 1 << 4,   ///< writes go to new blocks
    Journalled = 1 << 5,   ///< writes go through a journal, and so did the present content
    LowerLayer = 1 << 6,   ///< may lie in a lower layer that is never written
    NamedStreams = 1 << 7, ///< the file has further streams that cannot be opened
    Unknown = 1 << 8,      ///< stored by a server or program that cannot be queried
};
Q_DECLARE_FLAGS(ElsewhereReasons, Elsewhere)
Q_DECLARE_OPERATORS_FOR_FLAGS(ElsewhereReasons)

/// Where the content of a file lies.
struct ContentPlace
{
    ElsewhereReasons elsewhere; ///< none: the file has blocks of its own, which are overwritten in place
    qint64 bytes = -1;          ///< size of the content that the reasons apply to; below 0: unknown

    bool operator==(const ContentPlace &) const = default;
};

} // namespace platform
