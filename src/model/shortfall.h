#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

#include <optional>

class JsonWriter;

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
    NoVolume,
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
    BinNotEntered,
    // These are worth a word and take nothing from the job.
    NotReadBack,
    ReadBackImpossible,
    ReserveKept,
    OtherNames,
    CopyOnWrite,
    ShadowCopies,
    CloudCopy,
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

/// The sum of two amounts, each of which may be unknown, that is below 0; what does not fit stays at the
/// largest number.
qint64 sumOfAmounts(qint64 a, qint64 b);
