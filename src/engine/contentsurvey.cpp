#include "engine/contentsurvey.h"

#include "platform/contentplace.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

using platform::Elsewhere;
using platform::FileKind;

namespace {

// Folders without files cost time too.
constexpr int MostFolders = 1000;

bool isElsewhere(const QString &path)
{
    const auto place = platform::Platform::current().files().contentPlace(path);
    return place && place.value().elsewhere;
}

class Survey
{
public:
    explicit Survey(int mostFiles)
        : m_filesLeft(mostFiles)
    {}

    bool hasMore() const { return m_filesLeft > 0; }

    bool isTargetElsewhere(const QString &target)
    {
        const auto info = platform::Platform::current().files().info(target);
        if (!info)
            return false;
        switch (info.value().kind) {
        case FileKind::Regular:
            --m_filesLeft;
            return isElsewhere(target);
        case FileKind::Folder:
            return isContentElsewhere(target);
        case FileKind::Link:
        case FileKind::Special:
            break;
        }
        return false;
    }

private:
    bool isContentElsewhere(const QString &target)
    {
        QStringList pending{target};
        bool isFound = false;
        while (!pending.isEmpty() && !isFound) {
            if (m_filesLeft <= 0 || m_foldersLeft <= 0)
                return isElsewhere(target);
            const QString folder = pending.takeLast();
            --m_foldersLeft;
            const auto visit = [&](const QString &name, FileKind kind) {
                const QString path = folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
                if (kind == FileKind::Folder)
                    pending.append(path);
                if (kind != FileKind::Regular)
                    return true;
                --m_filesLeft;
                isFound = isElsewhere(path);
                return !isFound && m_filesLeft > 0;
            };
            // What cannot be listed the job itself will tell.
            static_cast<void>(platform::Platform::current().folders().forEachEntry(folder, visit));
            if (!isFound && m_filesLeft <= 0)
                return isElsewhere(target);
        }
        return isFound;
    }

    int m_filesLeft;
    int m_foldersLeft = MostFolders;
};

} // namespace

QStringList targetsKeptElsewhere(const QStringList &targets, int mostFiles)
{
    Survey survey(mostFiles);
    QStringList found;
    for (const QString &target : targets) {
        if (!survey.hasMore())
            break;
        if (survey.isTargetElsewhere(target))
            found.append(target);
    }
    return found;
}

bool writesToNewPlaces(const QString &folder)
{
    const auto place = platform::Platform::current().files().contentPlace(folder);
    return place &&
           (place.value().elsewhere & (Elsewhere::Relocating | Elsewhere::Shared | Elsewhere::LowerLayer));
}
