#include "model/joboutcome.h"

#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// So many places are named in a line for people.
constexpr qsizetype placesInLine = 3;

struct KindEntry
{
    ShortfallKind kind;
    const char *name;
    bool partial;
    const char *text;
};

// In the order of ShortfallKind.
constexpr std::array kinds{
    KindEntry{ShortfallKind::OnlyVolumes, "only-volumes", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "only the mounted volumes are erased, not the rest of the "
                                                 "drive")},
    KindEntry{ShortfallKind::VolumeNotOpened, "volume-not-opened", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "volumes could not be opened and were not erased")},
    KindEntry{ShortfallKind::VolumeEndedEarly, "volume-ended-early", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "volumes took no more data before their end")},
    KindEntry{ShortfallKind::VolumeInUse, "volume-in-use", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "volumes were in use while they were overwritten")},
    KindEntry{ShortfallKind::DriveEndUnreached, "drive-end-unreached", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "the end of the drive is no whole sector and was not "
                                                 "overwritten")},
    KindEntry{ShortfallKind::DriveEmpty, "drive-empty", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "the drive says that it has no size, nothing was written")},
    KindEntry{ShortfallKind::BeyondDrive, "beyond-drive", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "volumes reach beyond the drive")},
    KindEntry{ShortfallKind::NothingWritten, "nothing-written", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "nothing was written although there was free space")},
    KindEntry{ShortfallKind::RoomLeft, "room-left", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "free space was left that could not be filled")},
    KindEntry{ShortfallKind::LargeReserve, "large-reserve", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "more than 10 % of the free space is left as a reserve")},
    KindEntry{ShortfallKind::FillFilesLeft, "fill-files-left", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "fill files were left behind")},
    KindEntry{ShortfallKind::EntryVanished, "entry-vanished", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "entries were gone before they could be erased")},
    KindEntry{ShortfallKind::EntryReplaced, "entry-replaced", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "entries were replaced by others meanwhile")},
    KindEntry{ShortfallKind::EntryGrew, "entry-grew", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "files grew after they were overwritten")},
    KindEntry{ShortfallKind::EntryNotRemoved, "entry-not-removed", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "entries could not be removed")},
    KindEntry{ShortfallKind::ContentElsewhere, "content-elsewhere", true,
              QT_TRANSLATE_NOOP("OutcomeRecord",
                                "the file system may keep the content elsewhere, where it is "
                                "not overwritten")},
    KindEntry{ShortfallKind::LinkTarget, "link-target", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "links are removed, what they lead to is not erased")},
    KindEntry{ShortfallKind::NotReadBack, "not-read-back", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "what was written was not read back")},
    KindEntry{ShortfallKind::ReadBackImpossible, "read-back-impossible", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "what was written cannot be compared when it is read back")},
    KindEntry{ShortfallKind::ReserveKept, "reserve-kept", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "a small part of the free space is left as a reserve")},
    KindEntry{ShortfallKind::OtherNames, "other-names", false,
              QT_TRANSLATE_NOOP("OutcomeRecord",
                                "files had further names, which stay and lead to overwritten "
                                "content")},
    KindEntry{ShortfallKind::CopyOnWrite, "copy-on-write", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "the file system writes to new places and may keep earlier "
                                                 "content, in snapshots for instance")},
    KindEntry{ShortfallKind::NoFreeByte, "no-free-byte", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "there was no free space to overwrite")},
};

const KindEntry &entryOf(ShortfallKind kind)
{
    return kinds.at(static_cast<std::size_t>(kind));
}

// Indexed by JobOutcome.
constexpr std::array outcomeNames{"complete", "partial", "failed", "cancelled"};

std::optional<JobOutcome> outcomeFromName(const QString &name)
{
    const auto found = std::ranges::find(outcomeNames, name, [](const char *n) { return QLatin1String(n); });
    if (found == outcomeNames.end())
        return std::nullopt;
    return static_cast<JobOutcome>(found - outcomeNames.begin());
}

/// The sum of two amounts, each of which may be unknown; what does not fit stays at the largest number.
qint64 sum(qint64 a, qint64 b)
{
    if (a < 0 || b < 0)
        return std::max(a, b);
    return b > std::numeric_limits<qint64>::max() - a ? std::numeric_limits<qint64>::max() : a + b;
}

/// A decimal string that is an amount; -1 for everything else.
qint64 amount(const QJsonValue &value)
{
    bool isNumber = false;
    const qint64 number = value.toString().toLongLong(&isNumber);
    return isNumber && number >= 0 ? number : -1;
}

void writeAmount(JsonWriter &writer, QStringView key, qint64 value)
{
    if (value >= 0)
        writer.decimalMember(key, value);
}

} // namespace

QString machineName(JobOutcome outcome)
{
    return QLatin1String(outcomeNames.at(static_cast<std::size_t>(outcome)));
}

QList<ShortfallKind> allShortfallKinds()
{
    QList<ShortfallKind> all;
    for (const KindEntry &entry : kinds)
        all.append(entry.kind);
    return all;
}

QString kindName(ShortfallKind kind)
{
    return QLatin1String(entryOf(kind).name);
}

std::optional<ShortfallKind> kindFromName(const QString &name)
{
    const auto found =
        std::ranges::find(kinds, name, [](const KindEntry &entry) { return QLatin1String(entry.name); });
    if (found == kinds.end())
        return std::nullopt;
    return found->kind;
}

bool makesPartial(ShortfallKind kind)
{
    return entryOf(kind).partial;
}

QString kindText(ShortfallKind kind)
{
    return OutcomeRecord::tr(entryOf(kind).text);
}

void Shortfall::writeJson(JsonWriter &writer, bool withText) const
{
    writer.beginObject().member(u"kind", kindName(kind)).member(u"place", place);
    writeAmount(writer, u"bytes", bytes);
    writeAmount(writer, u"count", count);
    if (withText)
        writer.member(u"text", kindText(kind));
    writer.endObject();
}

void OutcomeRecord::setOutcome(JobOutcome outcome)
{
    m_outcome = outcome == JobOutcome::Complete && hasShortfalls() ? JobOutcome::Partial : outcome;
}

void OutcomeRecord::note(const Shortfall &shortfall)
{
    QList<Shortfall> &places = m_places[shortfall.kind];
    const auto known = std::ranges::find(places, shortfall.place, &Shortfall::place);
    if (known != places.end()) {
        known->bytes = std::max(known->bytes, shortfall.bytes);
        known->count = std::max(known->count, shortfall.count);
    } else if (places.size() < MostPlaces) {
        places.append(shortfall);
    } else {
        Further &further = m_further[shortfall.kind];
        further.places = sum(further.places, 1);
        further.bytes = sum(further.bytes, shortfall.bytes);
    }
    setOutcome(m_outcome);
}

bool OutcomeRecord::hasShortfalls() const
{
    return std::any_of(m_places.keyBegin(), m_places.keyEnd(), makesPartial);
}

QList<ShortfallKind> OutcomeRecord::shortfallKinds() const
{
    QList<ShortfallKind> found = m_places.keys();
    found.removeIf([](ShortfallKind kind) { return !makesPartial(kind); });
    return found;
}

QList<Shortfall> OutcomeRecord::listed(bool partial) const
{
    QList<Shortfall> all;
    for (auto entry = m_places.cbegin(); entry != m_places.cend(); ++entry) {
        if (makesPartial(entry.key()) == partial)
            all += entry.value();
    }
    return all;
}

QStringList OutcomeRecord::lines(bool partial) const
{
    QStringList all;
    for (const ShortfallKind kind : m_places.keys()) {
        if (makesPartial(kind) == partial)
            all.append(line(kind));
    }
    return all;
}

QString OutcomeRecord::line(ShortfallKind kind) const
{
    const QList<Shortfall> all = m_places.value(kind);
    const Further more = further(kind);
    QStringList places;
    qint64 unnamed = more.places;
    qint64 bytes = more.bytes;
    for (const Shortfall &one : all) {
        bytes = sum(bytes, one.bytes);
        if (one.place.isEmpty())
            continue;
        if (places.size() < placesInLine)
            places.append(displayText(one.place));
        else
            ++unnamed;
    }
    QString text = kindText(kind);
    if (!places.isEmpty())
        text += u": "_s + places.join(u", "_s);
    if (unnamed > 0)
        text += u' ' + tr("and %1 more").arg(unnamed);
    if (bytes >= 0)
        text += u" ("_s + formatSize(bytes) + u')';
    return text;
}

QString OutcomeRecord::summary() const
{
    QStringList texts;
    for (const ShortfallKind kind : shortfallKinds())
        texts.append(kindText(kind));
    return summaryOf(texts);
}

QString OutcomeRecord::fullSummary() const
{
    return summaryOf(shortfallLines());
}

QString OutcomeRecord::summaryOf(const QStringList &texts) const
{
    switch (m_outcome) {
    case JobOutcome::Complete:
        break;
    case JobOutcome::Partial:
        return tr("Partly erased: %1").arg(texts.join(u"; "_s));
    case JobOutcome::Failed:
        return tr("Not completely erased: the job failed");
    case JobOutcome::Cancelled:
        return tr("Not completely erased: the job was cancelled");
    }
    return {};
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
    writer.member(u"outcome", machineName(m_outcome)).key(u"shortfalls").beginArray();
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
        writeAmount(writer, u"bytes", entry.value().bytes);
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
        // Without a place that is kept there is none that is only counted.
        if (!kind || places <= 0 || !record.has(*kind))
            continue;
        Further &counted = record.m_further[*kind];
        counted.places = sum(counted.places, places);
        counted.bytes = sum(counted.bytes, amount(entry[u"bytes"_s]));
    }
    record.setOutcome(*outcome);
    return record;
}
