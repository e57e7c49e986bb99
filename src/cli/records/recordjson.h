#pragma once

#include "model/diskinfo.h"
#include "model/joboutcome.h"
#include "model/wipemethod.h"
#include "services/trash/recyclebininfo.h"

#include <QByteArray>

#include <optional>

class JsonWriter;

namespace cli {

// Records as machine output, their fields under their own names.
void writeDisk(JsonWriter &writer, const DiskInfo &disk);
void writeMethod(JsonWriter &writer, const WipeMethod &method);
void writeTrash(JsonWriter &writer, const RecycleBinInfo &trash);

// A report as it was stored, and behind its fields, where it is known, how the job went, as "annex". Writes
// nothing and returns false for a text that is no report.
[[nodiscard]] bool writeStoredReport(JsonWriter &writer, const QByteArray &json,
                                     const std::optional<OutcomeRecord> &outcome);

} // namespace cli
