#include "cli/commandline.h"

#include "cli/commandtable.h"
#include "cli/globaloptions.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "services/languages.h"

#include <QSet>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList withProgramName(const QStringList &arguments)
{
    return QStringList{u"quorvex-cli"_s} + arguments;
}

void addOptions(QCommandLineParser &parser, const QList<QCommandLineOption> &options, QSet<QString> &known)
{
    for (const QCommandLineOption &option : options) {
        const QString name = option.names().constFirst();
        if (known.contains(name))
            continue;
        known.insert(name);
        parser.addOption(option);
    }
}

// Adds the options of all commands. Options may stand before the command, so that a first parse has to find
// the command.
void addAllOptions(QCommandLineParser &parser)
{
    QSet<QString> known;
    addOptions(parser, globalOptions(), known);
    for (const Command &command : allCommands())
        addOptions(parser, command.options, known);
}

bool beginsWith(const QStringList &words, const QStringList &beginning)
{
    return words.size() >= beginning.size() && words.first(beginning.size()) == beginning;
}

// The leading words that are words of a command.
QStringList knownWords(const QStringList &words)
{
    QStringList known;
    const QList<Command> commands = allCommands();
    for (const QString &word : words) {
        const QStringList longer = known + QStringList{word};
        if (std::none_of(commands.begin(), commands.end(),
                         [&longer](const Command &c) { return beginsWith(c.words, longer); }))
            break;
        known = longer;
    }
    return known;
}

const Command *findCommand(const QList<Command> &commands, const QStringList &words)
{
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&words](const Command &c) { return c.words == words; });
    return found == commands.end() ? nullptr : &*found;
}

Refusal unknownCommand(const QStringList &given, const QStringList &known)
{
    if (given.isEmpty())
        return wrongCommandLine(Cli::tr("no command given"), {});
    if (given.size() == known.size())
        return wrongCommandLine(Cli::tr("'%1' is not complete").arg(known.join(u' ')), known);
    const QString name = given.first(known.size() + 1).join(u' ');
    return wrongCommandLine(Cli::tr("unknown command '%1'").arg(displayText(name)), known);
}

Refusal parserRefusal(const QCommandLineParser &parser, const QStringList &words)
{
    QString what = displayText(parser.errorText());
    if (what.endsWith(u'.'))
        what.chop(1);
    return wrongCommandLine(what, words);
}

Outcome<CommandLine> parseForCommand(const Command &command, const QStringList &arguments)
{
    CommandLine line;
    line.command = command;
    line.helpWords = command.words;
    line.options = std::make_unique<QCommandLineParser>();
    QSet<QString> known;
    addOptions(*line.options, globalOptions(), known);
    addOptions(*line.options, command.options, known);
    if (!line.options->parse(withProgramName(arguments)))
        return parserRefusal(*line.options, command.words);
    if (line.options->isSet(u"help"_s)) {
        line.wish = CommandLine::Wish::ShowHelp;
        return line;
    }

    if (line.options->isSet(u"data-dir"_s) && line.options->value(u"data-dir"_s).isEmpty())
        return wrongCommandLine(Cli::tr("--data-dir is empty"), command.words);

    line.arguments = line.options->positionalArguments().mid(command.words.size());
    const auto count = line.arguments.size();
    if (count < command.minimumArguments)
        return wrongCommandLine(Cli::tr("'%1' needs %2").arg(command.name(), command.synopsis),
                                command.words);
    if (command.maximumArguments >= 0 && count > command.maximumArguments) {
        const QString surplus = displayText(line.arguments.at(command.maximumArguments));
        return wrongCommandLine(
            Cli::tr("'%1' is one argument too many for '%2'").arg(surplus, command.name()), command.words);
    }
    return line;
}

} // namespace

QString languageFor(const QStringList &arguments, const QString &systemLocale)
{
    QCommandLineParser parser;
    addAllOptions(parser);
    parser.parse(withProgramName(arguments));
    if (parser.isSet(u"lang"_s))
        return parser.value(u"lang"_s);
    return wantsJson(parser) || systemLocale.isEmpty() ? QString() : languages::forSystem(systemLocale);
}

Outcome<CommandLine> parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser finder;
    addAllOptions(finder);
    const bool isUnderstood = finder.parse(withProgramName(arguments));
    const QStringList given = finder.positionalArguments();
    const QStringList words = knownWords(given);
    if (!isUnderstood)
        return parserRefusal(finder, words);

    CommandLine line;
    if (finder.isSet(u"version"_s)) {
        line.wish = CommandLine::Wish::ShowVersion;
        return line;
    }
    const QList<Command> commands = allCommands();
    if (const Command *command = findCommand(commands, words))
        return parseForCommand(*command, arguments);
    if (!finder.isSet(u"help"_s) || words.size() < given.size())
        return unknownCommand(given, words);
    line.wish = CommandLine::Wish::ShowHelp;
    line.helpWords = words;
    return line;
}

Refusal wrongCommandLine(const QString &what, const QStringList &commandWords)
{
    const QStringList help = QStringList{u"quorvex-cli"_s} + commandWords + QStringList{u"--help"_s};
    return {WrongCommandLine, Cli::tr("%1 (read %2)").arg(what, help.join(u' '))};
}

} // namespace cli
