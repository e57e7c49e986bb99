#include "cli/commandtable.h"

namespace cli {

// Each is defined in a file of its own below commands/.
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
