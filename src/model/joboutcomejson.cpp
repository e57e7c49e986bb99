#include "model/joboutcome.h"
#include "model/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// Indexed by JobOutcome.
constexpr std::array outcomeNames{"complete", "partial", "failed", "cancelled"};

std::optional<JobOutcome> outcomeFromName(const QString &name)
{
    const auto found = std::ranges::find(outcomeNames, name, [](const char *n) { return QLatin1String(n); });
    if (found == outcomeNames.end())
        return std::nullopt;
    return static_cast<JobOutcome>(found - outcomeNames.begin());
}

/// An amount in a decimal string; -1 for anything else.
qint64 amount(const QJsonValue &value)
{
    bool isNumber = false;
    const qint64 number = value.toString().toLongLong(&isNumber);
    return isNumber && number >= 0 ? number : -1;
}

} // namespace

QString machineName(JobOutcome outcome)
{
    return QLatin1String(outcomeNames.at(static_cast<std::size_t>(outcome)));
}

QByteArray OutcomeRecord::toJson() const
{
    JsonWriter writer(JsonWriter::Layout::Compact);
    writer.beginObject().member(u"schemaVersion", SchemaVersion);
    writeMembers(writer);
    return writer.endObject().text();
}

void OutcomeRecord::writeMembers(JsonWriter &writer, bool withTexts) const
{
    writer.member(u"outcome", machineName(m_outcome));
    if (m_written >= 0)
        writer.decimalMember(u"written", m_written);
    if (!m_volumes.isEmpty()) {
        writer.key(u"volumes").beginArray();
        for (const QString &volume : m_volumes)
            writer.value(volume);
        writer.endArray();
    }
    writer.key(u"shortfalls").beginArray();
    for (const Shortfall &shortfall : shortfalls())
        shortfall.writeJson(writer, withTexts);
    writer.endArray().key(u"notes").beginArray();
    for (const Shortfall &shortfall : notes())
        shortfall.writeJson(writer, withTexts);
    writer.endArray().key(u"further").beginArray();
    for (auto entry = m_further.cbegin(); entry != m_further.cend(); ++entry) {
        writer.beginObject()
            .member(u"kind", kindName(entry.key()))
            .decimalMember(u"places", entry.value().places);
        if (entry.value().bytes >= 0)
            writer.decimalMember(u"bytes", entry.value().bytes);
        writer.endObject();
    }
    writer.endArray();
}

std::optional<OutcomeRecord> OutcomeRecord::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto outcome = outcomeFromName(object.value(u"outcome"_s).toString());
    if (object.value(u"schemaVersion"_s).toInt() < 1 || !outcome)
        return std::nullopt;
    OutcomeRecord record;
    const QJsonArray volumes = object.value(u"volumes"_s).toArray();
    for (const QJsonValue volume : volumes) {
        if (volume.isString())
            record.addVolume(volume.toString());
    }
    for (const QString &key : {u"shortfalls"_s, u"notes"_s}) {
        const QJsonArray entries = object.value(key).toArray();
        for (const QJsonValue entry : entries) {
            if (const auto kind = kindFromName(entry[u"kind"_s].toString()))
                record.note({*kind, entry[u"place"_s].toString(), amount(entry[u"bytes"_s]),
                             amount(entry[u"count"_s])});
        }
    }
    const QJsonArray further = object.value(u"further"_s).toArray();
    for (const QJsonValue entry : further) {
        const auto kind = kindFromName(entry[u"kind"_s].toString());
        const qint64 places = amount(entry[u"places"_s]);
        // Counted places exist only beside stored ones.
        if (!kind || places <= 0 || !record.has(*kind))
            continue;
        Further &counted = record.m_further[*kind];
        counted.places = sumOfAmounts(counted.places, places);
        counted.bytes = sumOfAmounts(counted.bytes, amount(entry[u"bytes"_s]));
    }
    record.m_written = amount(object.value(u"written"_s));
    record.setOutcome(*outcome);
    return record;
}
