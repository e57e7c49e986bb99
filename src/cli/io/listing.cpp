#include "cli/io/listing.h"

namespace cli {

QStringList indented(const QStringList &lines)
{
    QStringList below;
    for (const QString &line : lines)
        below.append(QStringLiteral("  ") + line);
    return below;
}

} // namespace cli
