#include "cli/io/permission.h"

#include "cli/io/translate.h"

namespace cli {

QString notPermitted(const QString &refusal)
{
#ifdef Q_OS_WIN
    return Cli::tr("%1; try it as administrator").arg(refusal);
#else
    return Cli::tr("%1; try it with sudo").arg(refusal);
#endif
}

} // namespace cli
