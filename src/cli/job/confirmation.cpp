#include "cli/job/confirmation.h"

#include "cli/io/cliio.h"
#include "cli/texts.h"

namespace cli {

using namespace Qt::StringLiterals;
using platform::StandardStream;

std::optional<Refusal> confirm(const QStringList &summary, const ConfirmationOptions &options, CliIo &io)
{
    const bool asks = !options.skipQuestion && io.isTerminal(StandardStream::Input);
    // Nobody sees a question that is written to a file.
    const bool onErrorStream = options.json || (asks && !io.isTerminal(StandardStream::Output));
    const auto print = [&](const QString &words) { onErrorStream ? io.printError(words) : io.print(words); };

    if (asks || !options.quiet)
        print(Cli::tr("This is about to be destroyed for good:") + u'\n' + summary.join(u'\n') + u'\n');
    if (options.skipQuestion)
        return std::nullopt;
    if (!asks)
        return Refusal{Refused,
                       Cli::tr("not confirmed: standard input is no terminal; --yes skips the question")};

    print(Cli::tr("Type %1 to destroy it:").arg(u"ERASE"_s) + u' ');
    const std::optional<QString> answer = io.readLine();
    if (!answer)
        print(u"\n"_s); // ends the line of the question
    if (io.stopRequest().isRequested())
        return Refusal{Cancelled, Cli::tr("cancelled, nothing was written")};
    if (answer != u"ERASE"_s)
        return Refusal{Refused, Cli::tr("not confirmed, nothing was written")};
    return std::nullopt;
}

} // namespace cli
