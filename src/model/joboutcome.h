#pragma once

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

/// What a job may fall short of. The names that kindName() gives are stored; the order is that of display.
enum class ShortfallKind {
    // These make a job partial.
    OnlyVolumes,
    VolumeNotOpened,
    VolumeEndedEarly,
    VolumeInUse,
    DriveEndUnreached,
    DriveEmpty,
    BeyondDrive,
    NothingWritten,
    RoomLeft,
    LargeReserve,
    FillFilesLeft,
    EntryVanished,
    EntryReplaced,
    EntryGrew,
    EntryNotRemoved,
    ContentElsewhere,
    LinkTarget,
    // These are worth a word and take nothing from the job.
    NotReadBack,
    ReadBackImpossible,
    ReserveKept,
    OtherNames,
    CopyOnWrite,
    NoFreeByte,
};

QList<ShortfallKind> allShortfallKinds();
/// The kind as one word for machines and command lines, such as "only-volumes".
QString kindName(ShortfallKind kind);
std::optional<ShortfallKind> kindFromName(const QString &name);
/// False for a note.
bool makesPartial(ShortfallKind kind);
/// One translated line, without a full stop and not capitalised.
QString kindText(ShortfallKind kind);

/// One thing that a job did not do, or that is worth a word.
struct Shortfall
{
    ShortfallKind kind = ShortfallKind::OnlyVolumes;
    QString place{}; ///< a volume, a path; as it is, to be cleaned for display; empty for the job as a whole
    qint64 bytes = -1; ///< below 0: unknown
    qint64 count = -1; ///< of files, names, whatever the kind speaks of; below 0: unknown

    bool operator==(const Shortfall &) const = default;

    /// An object with the members that are known; with `text` also the kind's line.
    void writeJson(JsonWriter &writer, bool withText = false) const;
};

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

    /// In the order of the kinds, those of one kind as they were noted.
    QList<Shortfall> shortfalls() const { return listed(true); }
    QList<Shortfall> notes() const { return listed(false); }
    bool has(ShortfallKind kind) const { return m_places.contains(kind); }
    bool hasShortfalls() const;
    /// Those kinds that make the job partial, each once.
    QList<ShortfallKind> shortfallKinds() const;
    Further further(ShortfallKind kind) const { return m_further.value(kind); }

    /// One line for each kind: its text, some of its places, its bytes. Translated, cleaned for display.
    QStringList shortfallLines() const { return lines(true); }
    QStringList noteLines() const { return lines(false); }
    /// "Partly erased: ..." and so on for an outcome in one line; empty when the job is complete.
    QString summary() const;

    /// One line of text, an object.
    QByteArray toJson() const;
    /// Nothing for a text that toJson() of this or a later version has not written. What a later version has
    /// added is passed over.
    static std::optional<OutcomeRecord> fromJson(const QByteArray &json);

    bool operator==(const OutcomeRecord &) const = default;

private:
    QList<Shortfall> listed(bool partial) const;
    QStringList lines(bool partial) const;
    QString line(ShortfallKind kind) const;

    JobOutcome m_outcome = JobOutcome::Failed;
    QMap<ShortfallKind, QList<Shortfall>> m_places;
    QMap<ShortfallKind, Further> m_further;
};

Q_DECLARE_METATYPE(OutcomeRecord)
