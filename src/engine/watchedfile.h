#pragma once

#include "platform/files.h"

#include <QtGlobal>

#include <optional>

/// The state of one entry since the job found it, which shows whether the entry has changed or vanished
/// meanwhile. One thread at a time.
class WatchedFile
{
public:
    /// Records the found entry; only the first call counts.
    void find(const platform::FileInfo &info);
    /// Nothing until the entry could be looked at.
    const std::optional<platform::FileInfo> &found() const { return m_found; }

    /// Whether another entry stands under the path now.
    bool isReplacedBy(const platform::FileInfo &now) const;
    /// Whether the opened file is another entry. Where the file system has lasting file numbers, the other
    /// overload compares them too from then on.
    bool isReplacedBy(platform::FileHandle &opened);

    /// Starts a pass over the first size bytes. Returns the bytes that the file has lost since the last look;
    /// the file gave them up before this pass could reach them.
    qint64 beginPass(qint64 size);
    /// All passes have to be written once more.
    void beginAnew() { m_overwritten = -1; }
    /// The bytes at its end that did not receive every pass.
    qint64 grownBy(const platform::FileInfo &now) const;

    /// True once, as long as the place of the content has not been queried.
    bool isToBeLocated();
    /// True once, as long as the places of its streams have not been queried.
    bool areStreamsToBeLocated();
    /// True once, for a file whose content may lie elsewhere.
    bool isToBeCountedElsewhere();

    /// The entry was missing when it was looked for; none of its bytes is known to have received every pass.
    void vanish()
    {
        m_isVanished = true;
        m_overwritten = 0;
    }
    bool isVanished() const { return m_isVanished; }
    /// The job has removed it.
    void remove() { m_isRemoved = true; }
    bool isRemoved() const { return m_isRemoved; }

private:
    std::optional<platform::FileInfo> m_found;
    qint64 m_length = 0;       ///< at the last look
    qint64 m_overwritten = -1; ///< bytes that received every pass so far; below 0 before the first
    bool m_hasLastingId = false;
    bool m_isLocated = false;
    bool m_areStreamsLocated = false;
    bool m_isCountedElsewhere = false;
    bool m_isVanished = false;
    bool m_isRemoved = false;
};
