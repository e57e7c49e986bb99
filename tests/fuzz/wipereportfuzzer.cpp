#include "fuzz/checks.h"
#include "model/wipereport.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstddef>
#include <cstdint>

// The text of a report comes from a database, or from a file that the user wants checked.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const WipeReport report = WipeReport::fromJson(text);
    // If the text is no JSON, every reading creates a new id.
    if (!QJsonDocument::fromJson(text).isNull())
        require(WipeReport::fromJson(text) == report, "the same text, the same report");
    else
        require(report.certificateId.startsWith(u"QVX-"), "what is no JSON gives a fresh report");

    const QByteArray written = report.toJson();
    const QJsonDocument document = QJsonDocument::fromJson(written);
    require(document.isObject(), "what is written is one JSON object");
    require(document.object().value(u"wipeItems").isArray(), "the list of items is there, empty or not");
    require(WipeReport::fromJson(written).toJson() == written, "what is written reads back the same");
    return 0;
}
