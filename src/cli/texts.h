#pragma once

#include <QCoreApplication>

namespace cli {

/// Cli::tr(): all texts of the command line have one translation context.
struct Cli
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

} // namespace cli
