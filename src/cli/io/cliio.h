#pragma once

#include "cli/io/stoprequest.h"
#include "platform/process.h"

#include <QString>

#include <optional>

namespace cli {

// What a command reads, writes and listens to: the process's own streams and signals, or those of a test.
class CliIo
{
public:
    CliIo() = default;
    virtual ~CliIo() = default;
    CliIo(const CliIo &) = delete;
    CliIo &operator=(const CliIo &) = delete;

    virtual bool isTerminal(platform::StandardStream stream) const = 0;
    // Of the terminal behind standard error, 0 when unknown.
    virtual int columns() const = 0;
    // The next line without its end; nothing at the end of the input or when a stop is requested meanwhile.
    virtual std::optional<QString> readLine() = 0;
    virtual StopRequest &stopRequest() = 0;

    // To standard output.
    void print(const QString &text);
    void printLine(const QString &text) { print(text + u'\n'); }
    void printLine(const QByteArray &utf8);
    // To standard error.
    void printError(const QString &text);
    void printErrorLine(const QString &text) { printError(text + u'\n'); }

    // Whether something meant for standard output did not get there.
    bool hasLostOutput() const { return m_hasLostOutput; }

protected:
    // False when not all of it was written.
    virtual bool write(platform::StandardStream stream, const QByteArray &utf8) = 0;

private:
    bool m_hasLostOutput = false;
};

} // namespace cli
