#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace cli {

// Whether the text can be read as a report at all: one JSON object.
bool isReportText(const QByteArray &json);

// Whether it is a report, whatever became of its fields.
bool namesCertificate(const QByteArray &json);

// What the job was about, in a few words with cleaned names: the drive, or how many files.
QString targetText(const WipeReport &report);

// The whole report for a person, a field a line, with cleaned names, and how the job went.
QString reportText(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);

// In one word; also for one that is not known.
QString outcomeText(const std::optional<OutcomeRecord> &outcome);

} // namespace cli
