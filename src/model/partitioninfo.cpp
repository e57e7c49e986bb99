#include "model/partitioninfo.h"

#include "model/formatsize.h"

QString PartitionInfo::formattedTotal() const
{
    return formatSize(totalBytes);
}

QString PartitionInfo::formattedFree() const
{
    return formatSize(freeBytes);
}
