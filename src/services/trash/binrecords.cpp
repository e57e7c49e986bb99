#include "services/trash/binrecords.h"

#include "platform/platform.h"
#include "platform/session.h"
#include "services/trash/binlayout.h"

platform::Status updateBinRecords(const RecycleBinInfo &erased)
{
    platform::Status first;
    for (const BinLayout *layout : binLayouts()) {
        const platform::Status updated = layout->updateRecords(erased);
        if (first && !updated)
            first = updated;
    }
    platform::Platform::current().session().tellBinChanged();
    return first;
}
