#pragma once

#include "model/diskinfo.h"
#include "model/joboutcome.h"
#include "model/wipemethod.h"
#include "services/trash/recyclebininfo.h"

#include <QByteArray>

#include <optional>

class JsonWriter;

namespace cli {

/// Writes records as machine output, with the names of their fields.
void writeDisk(JsonWriter &writer, const DiskInfo &disk);
void writeMethod(JsonWriter &writer, const WipeMethod &method);
void writeTrash(JsonWriter &writer, const RecycleBinInfo &trash);

/// Writes a stored report unchanged; a known outcome is added as the member "annex". Returns false and writes
/// nothing when the text is not a report.
[[nodiscard]] bool writeStoredReport(JsonWriter &writer, const QByteArray &json,
                                     const std::optional<OutcomeRecord> &outcome);

} // namespace cli
