#include "cli/reportfile.h"

#include "cli/commandline.h"
#include "cli/paths.h"
#include "cli/translate.h"
#include "model/displaytext.h"
#include "model/wipereport.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace cli {

namespace {

// Whether the path or a folder above it is the other one, under whatever name.
bool leadsInto(QString path, const QString &other)
{
    if (isSameOrBelow(path, other))
        return true;
    for (qsizetype size = 0; size != path.size(); path = QFileInfo(path).path()) {
        if (isSameFile(path, other))
            return true;
        size = path.size();
    }
    return false;
}

} // namespace

Outcome<ReportFile> ReportFile::at(const QString &path, const QStringList &commandWords)
{
    const auto wrong = [&](const char *why) {
        return wrongCommandLine(Cli::tr(why).arg(displayText(path)), commandWords);
    };
    // Qt would write a file of another name instead.
    if (path.isEmpty() || !path.isValidUtf16())
        return wrong(QT_TRANSLATE_NOOP("Cli", "'%1' cannot be the name of a report file"));
    ReportFile file;
    file.m_path = absolutePath(path);
    const QFileInfo info(file.m_path);
    if (path.endsWith(u'/') || info.isDir())
        return wrong(QT_TRANSLATE_NOOP("Cli", "the report file '%1' is a folder"));
    if (isDeviceName(file.m_path) || (info.exists() && !info.isFile()))
        return wrong(QT_TRANSLATE_NOOP("Cli", "'%1' exists and is no ordinary file"));
    if (!QFileInfo(info.path()).isDir())
        return wrong(QT_TRANSLATE_NOOP("Cli", "the folder of the report file '%1' does not exist"));
    return file;
}

bool ReportFile::liesWithin(const QStringList &paths) const
{
    const QFileInfo info(m_path);
    const QString canonicalFolder = QFileInfo(info.path()).canonicalFilePath();
    const QStringList ways{m_path, canonicalFolder + u'/' + info.fileName(), info.canonicalFilePath()};
    return std::any_of(paths.begin(), paths.end(), [&ways](const QString &path) {
        return std::any_of(ways.begin(), ways.end(),
                           [&path](const QString &way) { return !way.isEmpty() && leadsInto(way, path); });
    });
}

bool ReportFile::isWritable() const
{
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.cancelWriting();
    return true;
}

bool ReportFile::write(const WipeReport &report) const
{
    QSaveFile file(m_path);
    const QByteArray json = report.toJson();
    return file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit();
}

} // namespace cli
