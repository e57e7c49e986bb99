#include "services/binrecords.h"

#include "platform/platform.h"
#include "platform/session.h"

#ifdef Q_OS_UNIX
#include "services/trashsizes.h"
#endif

platform::Status updateBinRecords(const RecycleBinInfo &erased)
{
    platform::Status first;
#ifdef Q_OS_UNIX
    const QStringList folders = trashFoldersOf(erased);
    for (const QString &folder : folders) {
        const platform::Status pruned = pruneDirectorySizes(folder);
        if (first && !pruned)
            first = pruned;
    }
#else
    Q_UNUSED(erased);
#endif
    platform::Platform::current().session().tellBinChanged();
    return first;
}
