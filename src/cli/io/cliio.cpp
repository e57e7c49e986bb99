#include "cli/io/cliio.h"

namespace cli {

using platform::StandardStream;

void CliIo::print(const QString &text)
{
    if (!write(StandardStream::Output, text.toUtf8()))
        m_hasLostOutput = true;
}

void CliIo::printLine(const QByteArray &utf8)
{
    if (!write(StandardStream::Output, utf8 + '\n'))
        m_hasLostOutput = true;
}

void CliIo::printError(const QString &text)
{
    // If standard error fails, there is no way left to report it.
    [[maybe_unused]] const bool written = write(StandardStream::Error, text.toUtf8());
}

} // namespace cli
