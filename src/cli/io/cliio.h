#pragma once

#include "cli/io/stoprequest.h"
#include "platform/process.h"

#include <QString>

#include <optional>

namespace cli {

/// The input and output of a command: streams and signals of the process, or those of a test.
class CliIo
{
public:
    CliIo() = default;
    virtual ~CliIo() = default;
    CliIo(const CliIo &) = delete;
    CliIo &operator=(const CliIo &) = delete;

    virtual bool isTerminal(platform::StandardStream stream) const = 0;
    /// The width of the terminal of standard error; 0 when unknown.
    virtual int columns() const = 0;
    /// The next line of the input without its line end. Nothing at the end of the input, or when a stop is
    /// requested while waiting.
    virtual std::optional<QString> readLine() = 0;
    virtual StopRequest &stopRequest() = 0;

    /// Prints to standard output.
    void print(const QString &text);
    void printLine(const QString &text) { print(text + u'\n'); }
    void printLine(const QByteArray &utf8);
    /// Prints to standard error.
    void printError(const QString &text);
    void printErrorLine(const QString &text) { printError(text + u'\n'); }

    /// Whether a write to standard output has failed.
    bool hasLostOutput() const { return m_hasLostOutput; }

protected:
    /// False when not everything was written.
    virtual bool write(platform::StandardStream stream, const QByteArray &utf8) = 0;

private:
    bool m_hasLostOutput = false;
};

} // namespace cli
