#include "cli/commandtable.h"

namespace cli {

// Each command is defined in its own file below commands/.
Command disksCommand();
Command methodsCommand();
Command wipeDiskCommand();
Command wipeFreeCommand();
Command wipeFilesCommand();
Command wipeTrashCommand();
Command trashListCommand();
Command reportsListCommand();
Command reportsShowCommand();
Command reportsExportCommand();
Command reportsDeleteCommand();
Command checkCommand();
Command doctorCommand();

QList<Command> allCommands()
{
    return {
        disksCommand(),       methodsCommand(),       wipeDiskCommand(),      wipeFreeCommand(),
        wipeFilesCommand(),   wipeTrashCommand(),     trashListCommand(),     reportsListCommand(),
        reportsShowCommand(), reportsExportCommand(), reportsDeleteCommand(), checkCommand(),
        doctorCommand(),
    };
}

} // namespace cli
