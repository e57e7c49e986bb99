#include "engine/contentsurvey.h"

#include "platform/contentplace.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

using platform::Elsewhere;

bool isKeptElsewhere(const platform::EntryPath &entry)
{
    const auto place = platform::Platform::current().files().contentPlace(entry);
    return place && place.value().elsewhere;
}

bool writesToNewPlaces(const QString &folder)
{
    const auto place = platform::Platform::current().files().contentPlace(folder);
    return place &&
           (place.value().elsewhere & (Elsewhere::Relocating | Elsewhere::Shared | Elsewhere::LowerLayer));
}

std::optional<Shortfall> snapshotNote(const QString &path)
{
    const auto count = platform::Platform::current().folders().snapshots(path);
    if (count.code() == platform::NotSupported || (count && count.value() == 0))
        return std::nullopt;
    return Shortfall{.kind = ShortfallKind::ShadowCopies, .place = path, .count = count.valueOr(-1)};
}

std::optional<Shortfall> SnapshotSurvey::noteFor(const platform::FileId &file,
                                                 const std::function<QString()> &path)
{
    if (m_asked.contains(file.device))
        return std::nullopt;
    m_asked.insert(file.device);
    return snapshotNote(path());
}
