#include "model/joboutcome.h"

#include "model/displaytext.h"
#include "model/formatsize.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The number of places that a line for the user names.
constexpr qsizetype placesInLine = 3;

} // namespace

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
        further.places = sumOfAmounts(further.places, 1);
        further.bytes = sumOfAmounts(further.bytes, shortfall.bytes);
    }
    setOutcome(m_outcome);
}

void OutcomeRecord::addVolume(const QString &volume)
{
    if (!m_volumes.contains(volume))
        m_volumes.append(volume);
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
        bytes = sumOfAmounts(bytes, one.bytes);
        if (one.place.isEmpty())
            continue;
        if (places.size() < placesInLine)
            places.append(displayText(one.place));
        else
            ++unnamed;
    }
    QString text = kindText(kind);
    if (!places.isEmpty())
        text = tr("%1: %2").arg(text, places.join(u", "_s));
    if (unnamed > 0)
        text += u' ' + tr("and %1 more").arg(unnamed);
    if (bytes >= 0)
        text += u" ("_s + formatSize(bytes) + u')';
    return text;
}

QString OutcomeRecord::writtenText(quint64 given) const
{
    if (m_written < 0 || static_cast<quint64>(m_written) == given)
        return {};
    return tr("Written to the medium: %1").arg(formatSize(m_written));
}

QString OutcomeRecord::summary() const
{
    return summary(shortfallKinds().size());
}

QString OutcomeRecord::summary(qsizetype mostKinds) const
{
    const QList<ShortfallKind> kinds = shortfallKinds();
    QStringList texts;
    for (const ShortfallKind kind : kinds.first(std::clamp<qsizetype>(mostKinds, 0, kinds.size())))
        texts.append(kindText(kind));
    if (texts.size() < kinds.size())
        texts.append(tr("and %1 more").arg(kinds.size() - texts.size()));
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
