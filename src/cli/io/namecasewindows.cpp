#include "cli/io/namecase.h"

namespace cli {

QString folded(const QString &path)
{
    return path.toCaseFolded();
}

} // namespace cli
