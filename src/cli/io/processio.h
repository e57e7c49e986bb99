#pragma once

#include "cli/io/cliio.h"

namespace cli {

/// The streams and stop signals of this process. Only one instance at a time, on the thread of the
/// QCoreApplication.
class ProcessIo : public CliIo
{
public:
    ProcessIo();

    bool isTerminal(platform::StandardStream stream) const override { return platform::isTerminal(stream); }
    int columns() const override { return platform::terminalColumns(platform::StandardStream::Error); }
    std::optional<QString> readLine() override { return platform::readLine(); }
    StopRequest &stopRequest() override { return m_stopRequest; }

protected:
    bool write(platform::StandardStream stream, const QByteArray &utf8) override;

private:
    StopRequest m_stopRequest;
    platform::StopHandler m_stopHandler;
};

} // namespace cli
