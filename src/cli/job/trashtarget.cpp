#include "cli/job/trashtarget.h"

#include "cli/commandline.h"
#include "cli/io/paths.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "services/trash/binitemtext.h"
#include "services/trash/recyclebinscanner.h"

#include <QFileInfo>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

Outcome<QStringList> requestedRoots(const CommandContext &context, const QStringList &commandWords)
{
    QStringList roots;
    const QStringList given = context.options.values(u"root"_s);
    for (const QString &root : given) {
        if (root.isEmpty())
            return wrongCommandLine(Cli::tr("--root is empty"), commandWords);
        const QString path = absolutePath(root);
        if (!QFileInfo(path).isDir())
            return Refusal{Refused, Cli::tr("%1 is no folder").arg(displayText(root))};
        // A folder with two names would be listed, and erased, twice.
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (!roots.contains(canonical))
            roots.append(canonical);
    }
    return roots;
}

} // namespace

QList<QCommandLineOption> trashOptions()
{
    return {
        {u"root"_s,
         Cli::tr("Look into the Windows bins below this folder, which stands for a drive (repeatable)"),
         u"DIR"_s},
        {u"sid"_s, Cli::tr("With --root: only the bin of the user with this security identifier"), u"SID"_s},
    };
}

Outcome<RecycleBinInfo> findTrash(const CommandContext &context, const QStringList &commandWords)
{
    const auto roots = requestedRoots(context, commandWords);
    if (!roots)
        return roots.refusal();
    const QString sid = context.options.value(u"sid"_s);
    if (context.options.isSet(u"sid"_s) && (sid.isEmpty() || roots->isEmpty())) {
        return wrongCommandLine(sid.isEmpty() ? Cli::tr("--sid is empty") : Cli::tr("--sid needs --root"),
                                commandWords);
    }
    RecycleBinScanner scanner;
    if (!roots->isEmpty()) {
        if (!sid.isEmpty() && !RecycleBinScanner::hasBin(*roots, sid))
            return Refusal{Refused, Cli::tr("no bin of %1 was found").arg(displayText(sid))};
        return scanner.scanRoots(*roots, sid);
    }
    if (RecycleBinScanner::currentUserSid().isEmpty())
        return Refusal{SurroundingsFailed, Cli::tr("the system does not tell who the user is")};
    return scanner.scan();
}

QStringList accountLines(const RecycleBinInfo &found)
{
    if (found.account.isEmpty())
        return {};
    return {Cli::tr("Recycle Bin of %1").arg(displayText(found.account))};
}

QStringList amountLines(const RecycleBinInfo &found)
{
    const QString items = found.fileCount == 1 ? Cli::tr("1 item") : Cli::tr("%1 items").arg(found.fileCount);
    QStringList lines{Cli::tr("%1, %2").arg(items, formatSize(static_cast<qint64>(found.totalSize)))};
    if (const QString impossible = BinItemText::impossibleSizes(found); !impossible.isEmpty())
        lines.append(impossible);
    return lines;
}

QStringList unrecordedLines(const RecycleBinInfo &found)
{
    const qsizetype count = found.unrecorded.size();
    if (count == 0)
        return {};
    const QString entries =
        count == 1 ? Cli::tr("1 entry without a record") : Cli::tr("%1 entries without a record").arg(count);
    return {Cli::tr("and %1, %2").arg(entries, formatSize(static_cast<qint64>(found.unrecordedSize())))};
}

QStringList unscannedLines(const RecycleBinInfo &found)
{
    QStringList lines;
    for (const UnscannedBin &bin : found.unscanned) {
        const QString path = displayText(bin.path);
        switch (bin.reason) {
        case UnscannedBin::Reason::Link:
            lines.append(Cli::tr("%1 is a link and is not followed").arg(path));
            break;
        case UnscannedBin::Reason::NotOwn:
            lines.append(Cli::tr("%1 belongs to another user and is left alone").arg(path));
            break;
        case UnscannedBin::Reason::Unreadable:
            lines.append(Cli::tr("%1 cannot be looked into, error %2").arg(path, QString::number(bin.error)));
            break;
        }
    }
    return lines;
}

QString describeItem(const RecycleBinItem &item)
{
    const QString path = BinItemText::originalPath(item);
    const QString name = displayText(path.isEmpty() ? BinItemText::fileName(item) : path);
    const QString kind = item.isDirectory ? Cli::tr("folder, ") : QString();
    const QString missing = item.recyclePath.isEmpty() ? Cli::tr(", only its record is left") : QString();
    return Cli::tr("%1 (%2%3%4)").arg(name, kind, BinItemText::size(item), missing);
}

} // namespace cli
