#include "cli/globaloptions.h"

#include "cli/io/paths.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/languages.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Only a regular file may act as a drive. A device node would bypass the protection of a real drive, that of
// the system disk included.
bool isRegularFile(const QString &path)
{
    const auto info = platform::Platform::current().files().info(path);
    return info.ok() && info.value().kind == platform::FileKind::Regular;
}

// The platform does not follow links, so that a link to an image is resolved here.
QString withoutLink(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

} // namespace

QList<QCommandLineOption> globalOptions()
{
    return {
        {u"json"_s, Cli::tr("Machine output: JSON, one value a line")},
        {u"data-dir"_s, Cli::tr("Keep database and log in this folder instead of the per-user one"),
         u"DIR"_s},
        {u"image"_s, Cli::tr("Let this image file appear as a drive (repeatable)"), u"FILE"_s},
        {u"only-images"_s, Cli::tr("List and open no real drive")},
        {u"lang"_s, Cli::tr("Language: %1 (default: the system's)").arg(languages::codes().join(u' ')),
         u"CODE"_s},
        {u"quiet"_s, Cli::tr("Print errors and the final line only")},
        {u"help"_s, Cli::tr("Show this help")},
        {u"version"_s, Cli::tr("Show the version")},
    };
}

bool wantsJson(const QCommandLineParser &options)
{
    return options.isSet(u"json"_s);
}

bool wantsQuiet(const QCommandLineParser &options)
{
    return options.isSet(u"quiet"_s);
}

DataFolder dataFolder(const QCommandLineParser &options)
{
    if (options.isSet(u"data-dir"_s))
        return {absolutePath(options.value(u"data-dir"_s)), true};
    return {QStandardPaths::writableLocation(QStandardPaths::AppDataLocation), false};
}

Outcome<std::unique_ptr<platform::Platform>> requestedPlatform(const QCommandLineParser &options)
{
    const QStringList images = options.values(u"image"_s);
    const bool onlyImages = options.isSet(u"only-images"_s);
    if (images.isEmpty() && !onlyImages)
        return std::unique_ptr<platform::Platform>();

    platform::ImageDriveOptions drives = platform::ImageDriveOptions::fromEnvironment();
    drives.onlyImages = drives.onlyImages || onlyImages;
    for (const QString &image : images) {
        const QString path = image.isEmpty() ? image : withoutLink(absolutePath(image));
        if (!isRegularFile(path))
            return Refusal{Refused, Cli::tr("no image file: %1").arg(displayText(image))};
        const QStringList &known = drives.imageFiles;
        if (std::none_of(known.begin(), known.end(),
                         [&path](const QString &other) { return isSameFile(path, other); }))
            drives.imageFiles.append(path);
    }
    drives.imageFiles.removeDuplicates();
    return platform::createPlatform(drives);
}

} // namespace cli
