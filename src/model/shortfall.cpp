#include "model/shortfall.h"

#include "model/jsonwriter.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <limits>

namespace {

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
    KindEntry{ShortfallKind::NoVolume, "no-volume", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "the drive has no mounted volume whose free space could be "
                                                 "erased")},
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
    KindEntry{ShortfallKind::BinNotEntered, "bin-not-entered", true,
              QT_TRANSLATE_NOOP("OutcomeRecord", "bins were not looked into, what they hold is not erased")},
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
    KindEntry{ShortfallKind::ShadowCopies, "shadow-copies", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "shadow copies of the volume may keep earlier content")},
    KindEntry{
        ShortfallKind::CloudCopy, "cloud-copy", false,
        QT_TRANSLATE_NOOP("OutcomeRecord", "a cloud service keeps copies and earlier versions of files")},
    KindEntry{ShortfallKind::NoFreeByte, "no-free-byte", false,
              QT_TRANSLATE_NOOP("OutcomeRecord", "there was no free space to overwrite")},
};

const KindEntry &entryOf(ShortfallKind kind)
{
    return kinds.at(static_cast<std::size_t>(kind));
}

} // namespace

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
    return QCoreApplication::translate("OutcomeRecord", entryOf(kind).text);
}

void Shortfall::writeJson(JsonWriter &writer, bool withText) const
{
    writer.beginObject().member(u"kind", kindName(kind)).member(u"place", place);
    if (bytes >= 0)
        writer.decimalMember(u"bytes", bytes);
    if (count >= 0)
        writer.decimalMember(u"count", count);
    if (withText)
        writer.member(u"text", kindText(kind));
    writer.endObject();
}

qint64 sumOfAmounts(qint64 a, qint64 b)
{
    if (a < 0 || b < 0)
        return std::max(a, b);
    return b > std::numeric_limits<qint64>::max() - a ? std::numeric_limits<qint64>::max() : a + b;
}
