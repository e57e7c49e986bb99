#pragma once

#include "cli/command.h"
#include "services/trash/recyclebininfo.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

namespace cli {

// The options that say whose bins are meant.
QList<QCommandLineOption> trashOptions();

// What is in the current user's Recycle Bin and Trash, or in the bins of the roots that are named. Refused
// when a root is no folder or none has a bin of the SID that was given, SurroundingsFailed when the user is
// unknown to the system.
Outcome<RecycleBinInfo> findTrash(const CommandContext &context, const QStringList &commandWords);

// One line where the bins are not those of the account that the desktop belongs to: "Recycle Bin of root".
QStringList accountLines(const RecycleBinInfo &found);

// "3 items, 12.00 KB", and what is wrong with the sum.
QStringList amountLines(const RecycleBinInfo &found);

// One line where something is to be erased that no record stands for: "and 1 entry without a record, 5 B".
QStringList unrecordedLines(const RecycleBinInfo &found);

// Each bin that was not looked into, with the reason, in words for the user.
QStringList unscannedLines(const RecycleBinInfo &found);

// The line that stands for the item, with cleaned names.
QString describeItem(const RecycleBinItem &item);

} // namespace cli
