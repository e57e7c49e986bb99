#pragma once

#include "cli/command.h"

namespace cli {

// Every command of the program in the order of the help, with texts in the language that is installed now.
QList<Command> allCommands();

} // namespace cli
