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
    Complete,  ///< everything that was asked for is erased
    Partial,   ///< the job did what it does, but something that was asked for may still be there
    Failed,    ///< the job ended with an error
    Cancelled, ///< the job was told to stop
};

/// "complete", "partial", "failed", "cancelled": the same in every language.
QString machineName(JobOutcome outcome);

/// The outcome of a job with what it fell short of. A plain value; what has not ended counts as failed.
class OutcomeRecord
{
    Q_DECLARE_TR_FUNCTIONS(OutcomeRecord)

public:
    static constexpr int SchemaVersion = 1;
    /// So many places are kept one by one for each kind, the others only counted.
    static constexpr qsizetype MostPlaces = 100;

    /// The places of one kind that are not kept.
    struct Further
    {
        qint64 places = 0;
        qint64 bytes = -1; ///< in all, below 0: unknown

        bool operator==(const Further &) const = default;
    };

    OutcomeRecord() = default;
    explicit OutcomeRecord(JobOutcome outcome)
        : m_outcome(outcome)
    {}

    JobOutcome outcome() const { return m_outcome; }
    /// Complete becomes Partial where something partial is or will be noted.
    void setOutcome(JobOutcome outcome);

    /// The same kind at the same place is the same thing told again, by a later pass for instance: the larger
    /// figures stay. A place behind MostPlaces counts each time.
    void note(const Shortfall &shortfall);

    /// The volumes that the job worked on, by name as it is, in the order of the work; empty where the job
    /// was not about volumes.
    QStringList volumes() const { return m_volumes; }
    void addVolume(const QString &volume);

    /// In the order of the kinds, those of one kind as they were noted.
    QList<Shortfall> shortfalls() const { return listed(true); }
    QList<Shortfall> notes() const { return listed(false); }
    bool has(ShortfallKind kind) const { return m_places.contains(kind); }
    bool hasShortfalls() const;
    /// Those kinds that make the job partial, each once.
    QList<ShortfallKind> shortfallKinds() const;
    Further further(ShortfallKind kind) const { return m_further.value(kind); }

    /// Bytes that the medium has taken, over all passes, counted where they are written; below 0 where nobody
    /// counted. The report's bytesWritten is what progress showed, and counts otherwise for files.
    qint64 written() const { return m_written; }
    void addWritten(qint64 bytes) { m_written = sumOfAmounts(m_written, bytes); }
    /// What is to be said where the report gives another figure: "Written to the medium: ...". Else empty.
    QString writtenText(quint64 given) const;

    /// One line for each kind: its text, some of its places, its bytes. Translated, cleaned for display.
    QStringList shortfallLines() const { return lines(true); }
    QStringList noteLines() const { return lines(false); }
    /// "Partly erased: ..." and so on, the kinds without their places; empty when the job is complete.
    QString summary() const;
    /// The same with so many kinds at most, and how many more there are.
    QString summary(qsizetype mostKinds) const;
    /// The same with places and bytes.
    QString fullSummary() const;

    /// One line of text, an object.
    QByteArray toJson() const;
    /// Nothing for a text that toJson() of this or a later version has not written. What a later version has
    /// added is passed over.
    static std::optional<OutcomeRecord> fromJson(const QByteArray &json);
    /// The members of toJson() but the version, into the object that is being written.
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
