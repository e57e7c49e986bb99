#include "cli/io/refusaloutput.h"

#include "cli/io/cliio.h"
#include "model/jsonwriter.h"

namespace cli {

using namespace Qt::StringLiterals;

ExitCode printRefusal(const Refusal &refusal, bool asEvent, CliIo &io)
{
    if (asEvent && refusal.code != WrongCommandLine) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        writer.beginObject().member(u"event", u"error").member(u"message", refusal.message).endObject();
        io.printLine(writer.text());
    }
    io.printErrorLine(u"quorvex-cli: "_s + refusal.message);
    return refusal.code;
}

} // namespace cli
