#include "engine/watchedfile.h"

#include <algorithm>
#include <utility>

using platform::FileKind;

void WatchedFile::find(const platform::FileInfo &info)
{
    if (m_found)
        return;
    m_found = info;
    m_length = info.size;
}

bool WatchedFile::isReplacedBy(const platform::FileInfo &now) const
{
    return m_found && (m_found->kind != now.kind || (m_hasLastingId && m_found->id != now.id));
}

bool WatchedFile::isReplacedBy(platform::FileHandle &opened)
{
    const auto id = opened.id();
    if (!m_found || !id)
        return false;
    m_hasLastingId = true;
    return m_found->id != id.value();
}

qint64 WatchedFile::beginPass(qint64 size)
{
    const qint64 lost = std::max<qint64>(m_length - size, 0);
    m_length = size;
    m_overwritten = m_overwritten < 0 ? size : std::min(m_overwritten, size);
    return lost;
}

qint64 WatchedFile::grownBy(const platform::FileInfo &now) const
{
    if (now.kind != FileKind::Regular)
        return 0;
    return std::max<qint64>(now.size - std::max<qint64>(m_overwritten, 0), 0);
}

bool WatchedFile::isToBeLocated()
{
    return !std::exchange(m_isLocated, true);
}

bool WatchedFile::areStreamsToBeLocated()
{
    return !std::exchange(m_areStreamsLocated, true);
}

bool WatchedFile::isToBeCountedElsewhere()
{
    return !std::exchange(m_isCountedElsewhere, true);
}
