#pragma once

#include <QCoreApplication>

namespace cli {

// Cli::tr(): all of the program's own texts share one translation context.
struct Cli
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

} // namespace cli
