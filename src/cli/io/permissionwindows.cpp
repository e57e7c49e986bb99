#include "cli/io/permission.h"

#include "cli/texts.h"

namespace cli {

QString notPermitted(const QString &refusal)
{
    return Cli::tr("%1; try it as administrator").arg(refusal);
}

} // namespace cli
