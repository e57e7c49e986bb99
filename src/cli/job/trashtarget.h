#pragma once

#include "cli/command.h"
#include "services/trash/recyclebininfo.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

namespace cli {

/// The options that select the bins.
QList<QCommandLineOption> trashOptions();

/// The contents of the current user's Recycle Bin and Trash, or of the bins in the given roots. Refused when
/// a root is not a folder or none has a bin of the given SID; SurroundingsFailed when the system does not
/// tell the user.
Outcome<RecycleBinInfo> findTrash(const CommandContext &context, const QStringList &commandWords);

/// A line such as "Recycle Bin of root" when the bins belong to another account than the desktop; otherwise
/// empty.
QStringList accountLines(const RecycleBinInfo &found);

/// "3 items, 12.00 KB", and a line on impossible sizes.
QStringList amountLines(const RecycleBinInfo &found);

/// A line such as "and 1 entry without a record, 5 B" when there are such entries; otherwise empty.
QStringList unrecordedLines(const RecycleBinInfo &found);

/// A line for each bin that was not scanned, with the reason.
QStringList unscannedLines(const RecycleBinInfo &found);

/// The line of the item, with names safe to display.
QString describeItem(const RecycleBinItem &item);

} // namespace cli
