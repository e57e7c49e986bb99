#include "cli/io/processio.h"

namespace cli {

ProcessIo::ProcessIo()
    : m_stopRequest(&platform::StopHandler::isAsked)
    , m_stopHandler([this] { m_stopRequest.request(); })
{}

bool ProcessIo::write(platform::StandardStream stream, const QByteArray &utf8)
{
    return platform::writeText(stream, utf8).ok();
}

} // namespace cli
