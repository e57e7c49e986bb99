#include "cli/io/outputfile.h"

#include "cli/commandline.h"
#include "cli/io/namecase.h"
#include "cli/io/paths.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "platform/wholefile.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace cli {

namespace {

// The path and all folders above it, without links.
QSet<QString> withFoldersAbove(QString path)
{
    QSet<QString> names;
    for (qsizetype size = 0; size != path.size(); path = QFileInfo(path).path()) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (!canonical.isEmpty())
            names.insert(folded(canonical));
        size = path.size();
    }
    return names;
}

// Resolves the links of a path except in its last component, because a link is erased itself. A job may erase
// a hundred thousand files of one folder: each folder is resolved once.
class FolderNames
{
public:
    QString canonical(const QString &path)
    {
        const QFileInfo info(path);
        const QString folder = info.path();
        auto known = m_canonical.find(folder);
        if (known == m_canonical.end())
            known = m_canonical.insert(folder, QFileInfo(folder).canonicalFilePath());
        return *known + (known->endsWith(u'/') ? QString() : QStringLiteral("/")) + info.fileName();
    }

private:
    QHash<QString, QString> m_canonical;
};

} // namespace

Outcome<OutputFile> OutputFile::at(const QString &path, const QStringList &commandWords)
{
    const auto wrong = [&](const char *why) {
        return wrongCommandLine(Cli::tr(why).arg(displayText(path)), commandWords);
    };
    // Qt would write to a file of another name.
    if (path.isEmpty() || !path.isValidUtf16())
        return wrong(QT_TRANSLATE_NOOP("Cli", "'%1' cannot be the name of a file"));
    OutputFile file;
    file.m_path = absolutePath(path);
    const QFileInfo info(file.m_path);
    if (path.endsWith(u'/') || info.isDir())
        return wrong(QT_TRANSLATE_NOOP("Cli", "'%1' is a folder, not a file"));
    if (isDeviceName(file.m_path) || !platform::WholeFile::isPossible(file.m_path))
        return wrong(QT_TRANSLATE_NOOP("Cli", "'%1' exists and is no ordinary file"));
    if (!QFileInfo(info.path()).isDir())
        return wrong(QT_TRANSLATE_NOOP("Cli", "the folder of '%1' does not exist"));
    return file;
}

bool OutputFile::liesWithin(const QStringList &paths) const
{
    const QFileInfo info(m_path);
    const QString canonicalFolder = QFileInfo(info.path()).canonicalFilePath();
    const QStringList ways{m_path, canonicalFolder + u'/' + info.fileName(), info.canonicalFilePath()};
    QSet<QString> above;
    for (const QString &way : ways)
        above.unite(withFoldersAbove(way));
    FolderNames names;
    return std::any_of(paths.begin(), paths.end(), [&](const QString &path) {
        return above.contains(folded(names.canonical(path))) ||
               std::any_of(ways.begin(), ways.end(), [&path](const QString &way) {
                   return !way.isEmpty() && isSameOrBelow(way, path);
               });
    });
}

bool OutputFile::isSameAs(const OutputFile &other) const
{
    const auto place = [](const OutputFile &file) {
        const QFileInfo info(file.m_path);
        const QString canonical = info.canonicalFilePath();
        // A file that does not exist yet.
        return folded(canonical.isEmpty() ? FolderNames().canonical(file.m_path) : canonical);
    };
    return isWanted() && other.isWanted() && place(*this) == place(other);
}

bool OutputFile::isWritable() const
{
    return platform::WholeFile(m_path).open();
}

bool OutputFile::write(const QByteArray &content) const
{
    platform::WholeFile file(m_path);
    return file.open() && file.commit(content);
}

} // namespace cli
