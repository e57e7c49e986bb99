#pragma once

#include <QFlags>
#include <QtGlobal>

namespace platform {

// Why what a file held may outlast being overwritten in place.
enum class Elsewhere : quint32 {
    Shared = 1 << 0,       // blocks belong to other files or to snapshots too
    Inline = 1 << 1,       // bytes lie in a record of the file system, old copies of which its journal keeps
    Encoded = 1 << 2,      // stored compressed or encrypted, by the system too, not as they are written
    Sparse = 1 << 3,       // stored with holes that get blocks and lose them again
    Relocating = 1 << 4,   // what is written goes to new blocks
    Journalled = 1 << 5,   // what is written goes through a journal, and so did what is there
    LowerLayer = 1 << 6,   // may lie in a layer that is never written to
    NamedStreams = 1 << 7, // there are further streams, which cannot be opened
    Unknown = 1 << 8,      // a server or a program keeps it, which cannot be asked
};
Q_DECLARE_FLAGS(ElsewhereReasons, Elsewhere)
Q_DECLARE_OPERATORS_FOR_FLAGS(ElsewhereReasons)

// Where the content of a file lies.
struct ContentPlace
{
    ElsewhereReasons elsewhere; // none: in blocks of the file's own, which are overwritten in place
    qint64 bytes = -1;          // of the content that the reasons are about; below 0: unknown

    bool operator==(const ContentPlace &) const = default;
};

} // namespace platform
