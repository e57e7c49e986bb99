#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/job/trashtarget.h"
#include "cli/records/recordjson.h"
#include "cli/texts.h"
#include "model/jsonwriter.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"trash"_s, u"list"_s};
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto found = findTrash(context, words());
    if (!found)
        return found.refusal();
    if (wantsJson(context.options)) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        writeTrash(writer, *found);
        context.io.printLine(writer.text());
        return Done;
    }
    QString text;
    for (const RecycleBinItem &item : found->items)
        text += describeItem(item) + u'\n';
    for (const RecycleBinItem &item : found->unrecorded)
        text += describeItem(item) + u'\n';
    const QStringList ends =
        accountLines(*found) + amountLines(*found) + unrecordedLines(*found) + unscannedLines(*found);
    context.io.print(text + ends.join(u'\n') + u'\n');
    return Done;
}

} // namespace

Command trashListCommand()
{
    Command command;
    command.words = words();
    command.summary = Cli::tr("Lists what 'wipe trash' would erase");
    command.example = u"trash list"_s;
    command.options = trashOptions();
    command.run = run;
    return command;
}

} // namespace cli
