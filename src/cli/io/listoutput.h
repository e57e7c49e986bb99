#pragma once

#include "cli/command.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "model/jsonwriter.h"

#include <QList>
#include <QString>

namespace cli {

/// Prints the records of a listing command: with --json as one JSON array on one line, otherwise as the text
/// of `textOf`.
template <typename Record>
Outcome<ExitCode> printList(const CommandContext &context, const QList<Record> &records,
                            void (*writeRecord)(JsonWriter &, const Record &),
                            QString (*textOf)(const QList<Record> &))
{
    if (!wantsJson(context.options)) {
        context.io.print(textOf(records));
        return Done;
    }
    JsonWriter writer(JsonWriter::Layout::Compact);
    writer.beginArray();
    for (const Record &record : records)
        writeRecord(writer, record);
    context.io.printLine(writer.endArray().text());
    return Done;
}

} // namespace cli
