#include "services/trash/binlayout.h"
#include "services/trash/recyclebinlayout.h"
#include "services/trash/trashlayout.h"

// A volume that Windows has used brings its Recycle Bins along.
const QList<const BinLayout *> &binLayouts()
{
    static const RecycleBinLayout recycleBin;
    static const TrashLayout trash;
    static const QList<const BinLayout *> layouts{&recycleBin, &trash};
    return layouts;
}
