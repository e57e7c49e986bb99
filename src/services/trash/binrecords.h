#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

/// To be called when what a scan found has been erased: takes out of the bins' own records what is no longer
/// there. Windows keeps none beside the "$I" files, which are erased with their items; the Trash of other
/// desktops has "directorysizes". Then the desktop is told. Answers the first failure, having gone on past
/// it.
platform::Status updateBinRecords(const RecycleBinInfo &erased);
