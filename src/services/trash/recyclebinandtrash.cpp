#include "services/trash/binlayout.h"
#include "services/trash/recyclebinlayout.h"
#include "services/trash/trashlayout.h"

// Volumes that are shared with Windows have its Recycle Bins.
const QList<const BinLayout *> &binLayouts()
{
    static const RecycleBinLayout recycleBin;
    static const TrashLayout trash;
    static const QList<const BinLayout *> layouts{&recycleBin, &trash};
    return layouts;
}
