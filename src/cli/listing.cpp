#include "cli/listing.h"

#include "cli/translate.h"

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

QStringList beginningOfList(qsizetype count, const std::function<QString(qsizetype index)> &lineOf)
{
    constexpr qsizetype most = 20;
    QStringList lines;
    for (qsizetype i = 0; i < std::min(count, most); ++i)
        lines.append(u"  "_s + lineOf(i));
    if (count > most)
        lines.append(Cli::tr("  and %1 more").arg(count - most));
    return lines;
}

} // namespace cli
