#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

/// Removes erased items from the bins' own records and notifies the desktop; called when the items of a scan
/// have been erased. Windows has no records but the "$I" files, which are erased with their items; the Trash
/// of other desktops has "directorysizes". Continues past a failure and returns the first one.
platform::Status updateBinRecords(const RecycleBinInfo &erased);
