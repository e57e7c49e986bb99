#include "services/trash/binlayout.h"
#include "services/trash/recyclebinlayout.h"

const QList<const BinLayout *> &binLayouts()
{
    static const RecycleBinLayout recycleBin;
    static const QList<const BinLayout *> layouts{&recycleBin};
    return layouts;
}
