#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

#include <optional>

class JsonWriter;

/// The kinds of shortfall. The names from kindName() are stored; the order is that of display.
enum class ShortfallKind {
    /// Shortfalls: these make a job partial.
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
    /// Notes: these do not change the outcome.
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
/// The kind as one word for machine output and command lines, such as "only-volumes".
QString kindName(ShortfallKind kind);
std::optional<ShortfallKind> kindFromName(const QString &name);
/// False for a note.
bool makesPartial(ShortfallKind kind);
/// One translated line, without a full stop and not capitalised.
QString kindText(ShortfallKind kind);

/// One shortfall or note of a job.
struct Shortfall
{
    ShortfallKind kind = ShortfallKind::OnlyVolumes;
    QString place{};   ///< a volume or a path, not cleaned for display; empty for the job as a whole
    qint64 bytes = -1; ///< below 0: unknown
    qint64 count = -1; ///< number of files, names or other units of the kind; below 0: unknown

    bool operator==(const Shortfall &) const = default;

    /// Writes an object with the known members; with `text` also the kind's line.
    void writeJson(JsonWriter &writer, bool withText = false) const;
};

/// The sum of two amounts; an amount below 0 is unknown. Stays at the largest number on overflow.
qint64 sumOfAmounts(qint64 a, qint64 b);
