#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace cli {

/// The certificate id in the text of a report; empty when the text has none.
QString certificateIdIn(const QByteArray &json);

/// The first difference of two texts of a report: the first differing field in the order of the record
/// ("diskInfo.model"), or only a byte position when all fields are equal.
struct Difference
{
    QString field;
    qsizetype position = 0; ///< offset of the first different byte, from 0
    /// Both values as JSON; empty when the field is missing.
    QString inRecord;
    QString inFile;
};

/// Nothing when the texts are equal byte for byte. The record is JSON; the file may hold anything.
std::optional<Difference> compareReports(const QByteArray &record, const QByteArray &file);

} // namespace cli
