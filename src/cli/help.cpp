#include "cli/help.h"

#include "cli/commandtable.h"
#include "cli/globaloptions.h"
#include "cli/io/table.h"
#include "cli/texts.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString usageLine(const QString &rest)
{
    return Cli::tr("Usage: quorvex-cli [OPTION...] %1").arg(rest) + u"\n\n"_s;
}

QString optionRow(const QCommandLineOption &option)
{
    const QString name = u"--"_s + option.names().constFirst();
    return option.valueName().isEmpty() ? name : name + u' ' + option.valueName();
}

QString optionSection(const QString &title, const QList<QCommandLineOption> &options)
{
    if (options.isEmpty())
        return {};
    Table table;
    for (const QCommandLineOption &option : options)
        table.addRow({optionRow(option), option.description()});
    return title + u'\n' + table.text(2) + u'\n';
}

QString exampleSection(const Command &command)
{
    return Cli::tr("Example:") + u"\n  quorvex-cli "_s + command.example + u'\n';
}

QString helpOnCommand(const Command &command)
{
    QString help = usageLine((command.name() + u' ' + command.synopsis).trimmed());
    help += command.summary + u".\n"_s;
    if (!command.details.isEmpty())
        help += command.details + u'\n';
    help += u'\n';
    help += optionSection(Cli::tr("Options:"), command.options);
    help += optionSection(Cli::tr("Options of every command:"), globalOptions());
    return help + exampleSection(command);
}

QString exitCodeSection()
{
    Table table;
    table.addRow({u"0"_s, Cli::tr("done, everything asked for was done")});
    table.addRow({u"1"_s, Cli::tr("the job ran and failed, in whole or in part")});
    table.addRow({u"2"_s, Cli::tr("the command line is wrong")});
    table.addRow({u"3"_s, Cli::tr("refused before anything was written")});
    table.addRow({u"4"_s, Cli::tr("cancelled (Ctrl+C), the job stopped cleanly")});
    table.addRow({u"5"_s, Cli::tr("a report or other output could not be written")});
    return Cli::tr("Exit codes:") + u'\n' + table.text(2) + u'\n';
}

QString helpOnCommands(const QList<Command> &commands, const QStringList &words)
{
    QString help = usageLine((words.join(u' ') + u' ' + Cli::tr("COMMAND")).trimmed());
    help +=
        Cli::tr("Destroys data beyond recovery and proves it.") + u"\n\n"_s + Cli::tr("Commands:") + u'\n';
    Table table;
    for (const Command &command : commands)
        table.addRow({(command.name() + u' ' + command.synopsis).trimmed(), command.summary});
    help += table.text(2) + u'\n';
    help += Cli::tr("Each command has a help of its own: quorvex-cli wipe disk --help") + u"\n\n"_s;
    help += optionSection(Cli::tr("Options of every command:"), globalOptions());
    help += exitCodeSection();
    return help + exampleSection(commands.constLast());
}

} // namespace

QString helpText(const QStringList &words)
{
    QList<Command> commands = allCommands();
    commands.removeIf([&words](const Command &c) { return c.words.mid(0, words.size()) != words; });
    if (commands.size() == 1 && commands.constFirst().words == words)
        return helpOnCommand(commands.constFirst());
    return helpOnCommands(commands, words);
}

} // namespace cli
