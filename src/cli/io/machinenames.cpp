#include "cli/io/machinenames.h"

namespace cli {

QLatin1String machineName(OperationType type)
{
    switch (type) {
    case DiskWipe:
        return QLatin1String("DiskWipe");
    case PartitionWipe:
        return QLatin1String("PartitionWipe");
    case FreeSpaceWipe:
        return QLatin1String("FreeSpaceWipe");
    case FileWipe:
        return QLatin1String("FileWipe");
    }
    return QLatin1String("Unknown");
}

QLatin1String machineName(DiskType type)
{
    switch (type) {
    case DiskType::HDD:
        return QLatin1String("HDD");
    case DiskType::SSD:
        return QLatin1String("SSD");
    case DiskType::USB:
        return QLatin1String("USB");
    case DiskType::NVMe:
        return QLatin1String("NVMe");
    case DiskType::External:
        return QLatin1String("External");
    case DiskType::Unknown:
        break;
    }
    return QLatin1String("Unknown");
}

QLatin1String machineName(BusType type)
{
    switch (type) {
    case BusType::SATA:
        return QLatin1String("SATA");
    case BusType::NVMe:
        return QLatin1String("NVMe");
    case BusType::USB:
        return QLatin1String("USB");
    case BusType::SCSI:
        return QLatin1String("SCSI");
    case BusType::IDE:
        return QLatin1String("IDE");
    case BusType::Unknown:
        break;
    }
    return QLatin1String("Unknown");
}

QLatin1String machineName(PatternType type)
{
    switch (type) {
    case PatternType::Zeros:
        return QLatin1String("Zeros");
    case PatternType::Ones:
        return QLatin1String("Ones");
    case PatternType::Random:
        return QLatin1String("Random");
    case PatternType::Custom:
        return QLatin1String("Custom");
    case PatternType::Complement:
        return QLatin1String("Complement");
    }
    return QLatin1String("Unknown");
}

} // namespace cli
