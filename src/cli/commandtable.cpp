#include "cli/commandtable.h"

namespace cli {

// Each is defined in a file of its own below commands/.
Command disksCommand();
Command methodsCommand();
Command wipeDiskCommand();
Command wipeFreeCommand();
Command wipeFilesCommand();

QList<Command> allCommands()
{
    return {
        disksCommand(), methodsCommand(), wipeDiskCommand(), wipeFreeCommand(), wipeFilesCommand(),
    };
}

} // namespace cli
