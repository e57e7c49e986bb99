#include "services/trash/binitemtext.h"

#include "model/displaytext.h"
#include "model/formatsize.h"
#include "services/trash/recyclebininfofile.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString upToZero(const QString &text)
{
    return text.left(text.indexOf(QChar::Null)); // the whole text when there is no zero
}

// File sizes are signed on every system.
bool isImpossible(const RecycleBinItem &item)
{
    return item.size > static_cast<quint64>(std::numeric_limits<qint64>::max());
}

} // namespace

QString BinItemText::originalPath(const RecycleBinItem &item)
{
    return upToZero(item.originalPath);
}

QString BinItemText::fileName(const RecycleBinItem &item)
{
    // The text behind a zero is arbitrary and may hold separators.
    const QString recorded = item.originalPath.contains(QChar::Null)
                                 ? recyclebin::lastComponent(originalPath(item))
                                 : item.fileName;
    return recorded.isEmpty() ? QFileInfo(item.recyclePath).fileName() : recorded;
}

QString BinItemText::size(const RecycleBinItem &item)
{
    const QString text = formatSize(static_cast<qint64>(item.size));
    return isImpossible(item) ? tr("%1, an impossible size").arg(text) : text;
}

QString BinItemText::details(const RecycleBinItem &item)
{
    QString text = displayText(originalPath(item));
    if (isImpossible(item))
        text += u'\n' + tr("Its record says %1 bytes, more than any file can have.").arg(item.size);
    return text;
}

QString BinItemText::impossibleSizes(const RecycleBinInfo &found)
{
    const auto count = std::ranges::count_if(found.items, isImpossible);
    return count == 0 ? QString() : tr("Impossible sizes in the sum: %1").arg(count);
}
