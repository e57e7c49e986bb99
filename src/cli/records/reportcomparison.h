#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace cli {

// The certificate id in the text of a report; empty when there is none, or no report.
QString certificateIdIn(const QByteArray &json);

// Where two texts of a report part: the first field, in the order of the record, that is not the same in
// both ("diskInfo.model"), or the first byte when the fields are alike and only their writing differs.
struct Difference
{
    QString field;
    qsizetype position = 0; // from 0, of the first byte that differs
    // What stands there, as JSON; empty where the field is missing.
    QString inRecord;
    QString inFile;
};

// Nothing when the texts are the same, byte for byte. The record is JSON; the other one may be anything.
std::optional<Difference> compareReports(const QByteArray &record, const QByteArray &file);

} // namespace cli
