#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/status.h"
#include "platform/volumejournal.h"

#include <QByteArray>
#include <QtGlobal>

#include <memory>
#include <optional>

namespace platform {

/// The journal of the file system of an open folder, ext2 to ext4. NotSupported on all others.
Result<std::unique_ptr<VolumeJournal>> journalOf(int folder, const SystemTree &tree);

/// The blocks that a journal holds at most, from the kernel's statistics of its transactions; nothing when
/// they do not tell. Pure.
std::optional<qint64> mostBlocksOfJournal(const QByteArray &statistics);

/// The bytes written, from the kernel's statistics of a block device; nothing when they do not tell. Pure.
std::optional<qint64> bytesWrittenTo(const QByteArray &statistics);

} // namespace platform
