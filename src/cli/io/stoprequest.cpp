#include "cli/io/stoprequest.h"

#include <utility>

namespace cli {

StopRequest::StopRequest(std::function<bool()> isAsked, QObject *parent)
    : QObject(parent)
    , m_isAsked(std::move(isAsked))
{}

void StopRequest::request()
{
    if (m_requested)
        return;
    m_requested = true;
    emit requested();
}

bool StopRequest::isRequested() const
{
    return m_requested || (m_isAsked && m_isAsked());
}

} // namespace cli
