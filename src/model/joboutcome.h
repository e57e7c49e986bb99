#pragma once

#include "model/shortfall.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <optional>

class JsonWriter;

/// How a job ended.
enum class JobOutcome {
    Complete,  ///< everything requested is erased
    Partial,   ///< the job ran to its end, but requested data may still be there
    Failed,    ///< the job ended with an error
    Cancelled, ///< the job was stopped
};

/// "complete", "partial", "failed", "cancelled"; not translated.
QString machineName(JobOutcome outcome);

/// The outcome of a job and its shortfalls. A plain value; failed until it is set.
class OutcomeRecord
{
    Q_DECLARE_TR_FUNCTIONS(OutcomeRecord)

public:
    static constexpr int SchemaVersion = 1;
    /// The number of places that are stored for each kind; further places are only counted.
    static constexpr qsizetype MostPlaces = 100;

    /// The places of one kind that are counted only.
    struct Further
    {
        qint64 places = 0;
        qint64 bytes = -1; ///< their sum; below 0 when unknown

        bool operator==(const Further &) const = default;
    };

    OutcomeRecord() = default;
    explicit OutcomeRecord(JobOutcome outcome)
        : m_outcome(outcome)
    {}

    JobOutcome outcome() const { return m_outcome; }
    /// Complete becomes Partial when a shortfall that makes a job partial is noted, before or after this
    /// call.
    void setOutcome(JobOutcome outcome);

    /// Notes a shortfall. The same kind at the same place is one shortfall, reported again by a later pass
    /// for instance, and keeps the larger figures. A place beyond MostPlaces counts each time.
    void note(const Shortfall &shortfall);

    /// The names of the volumes that the job worked on, not cleaned for display, in the order of the work;
    /// empty for a job that does not work on volumes.
    QStringList volumes() const { return m_volumes; }
    void addVolume(const QString &volume);

    /// In the order of the kinds, and in the order of noting within a kind.
    QList<Shortfall> shortfalls() const { return listed(true); }
    QList<Shortfall> notes() const { return listed(false); }
    bool has(ShortfallKind kind) const { return m_places.contains(kind); }
    /// Whether a noted kind makes the job partial.
    bool hasShortfalls() const;
    /// The noted kinds that make the job partial, each once.
    QList<ShortfallKind> shortfallKinds() const;
    Further further(ShortfallKind kind) const { return m_further.value(kind); }

    /// Bytes written to the medium, over all passes, counted at each write; below 0 when they were not
    /// counted. The report's bytesWritten is the progress figure, which counts files differently.
    qint64 written() const { return m_written; }
    void addWritten(qint64 bytes) { m_written = sumOfAmounts(m_written, bytes); }
    /// "Written to the medium: ..." when the report gives another figure, else empty.
    QString writtenText(quint64 given) const;

    /// One line for each kind: its text, some of its places, its bytes. Translated, cleaned for display.
    QStringList shortfallLines() const { return lines(true); }
    QStringList noteLines() const { return lines(false); }
    /// "Partly erased: ..." and so on, the kinds without their places; empty when the job is complete.
    QString summary() const;
    /// The summary with at most mostKinds kinds, and the number of further ones.
    QString summary(qsizetype mostKinds) const;
    /// The summary with places and bytes.
    QString fullSummary() const;

    /// One line of text, an object.
    QByteArray toJson() const;
    /// Nothing for a text that toJson() of this or a later version did not write. Members added by a later
    /// version are ignored.
    static std::optional<OutcomeRecord> fromJson(const QByteArray &json);
    /// Writes the members of toJson() except the version into the current object of the writer.
    void writeMembers(JsonWriter &writer, bool withTexts = false) const;

    bool operator==(const OutcomeRecord &) const = default;

private:
    QList<Shortfall> listed(bool partial) const;
    QStringList lines(bool partial) const;
    QString line(ShortfallKind kind) const;
    QString summaryOf(const QStringList &texts) const;

    JobOutcome m_outcome = JobOutcome::Failed;
    qint64 m_written = -1;
    QStringList m_volumes;
    QMap<ShortfallKind, QList<Shortfall>> m_places;
    QMap<ShortfallKind, Further> m_further;
};

Q_DECLARE_METATYPE(OutcomeRecord)
