#pragma once

#include "model/diskinfo.h"
#include "model/wipemethod.h"
#include "services/recyclebininfo.h"

class JsonWriter;

namespace cli {

// Records as machine output, their fields under their own names.
void writeDisk(JsonWriter &writer, const DiskInfo &disk);
void writeMethod(JsonWriter &writer, const WipeMethod &method);
void writeTrash(JsonWriter &writer, const RecycleBinInfo &trash);

} // namespace cli
