#pragma once

#include "cli/command.h"

namespace cli {

/// All commands in the order of the help, with texts in the current language.
QList<Command> allCommands();

} // namespace cli
