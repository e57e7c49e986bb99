#pragma once

#include "platform/files.h"

#include <QtGlobal>

#include <optional>

// What a job knows of one of its entries since it found it, so that it notices what becomes of it meanwhile.
// One thread at a time.
class WatchedFile
{
public:
    // Only the first call counts.
    void find(const platform::FileInfo &info);
    // Nothing for an entry that nobody could look at so far.
    const std::optional<platform::FileInfo> &found() const { return m_found; }

    // Whether something else stands under the path now.
    bool isReplacedBy(const platform::FileInfo &now) const;
    // The same of what was opened there. Where the file system knows its files by lasting numbers, an earlier
    // answer counts from now on.
    bool isReplacedBy(platform::FileHandle &opened);

    // A pass is going to overwrite so many bytes, from the beginning. The bytes that the file has lost since
    // the last look: they were given up before this pass could reach them.
    qint64 beginPass(qint64 size);
    // All passes are to be received once more.
    void beginAnew() { m_overwritten = -1; }
    // The bytes at its end that did not receive every pass.
    qint64 grownBy(const platform::FileInfo &now) const;

    // True once: where the content lies has not been asked yet.
    bool isToBeLocated();
    // The same of its streams.
    bool areStreamsToBeLocated();
    // True once, for a file whose content may lie elsewhere.
    bool isToBeCountedElsewhere();

    // Nothing stood there when it was looked for: no byte of it is known to have received every pass.
    void vanish()
    {
        m_isVanished = true;
        m_overwritten = 0;
    }
    bool isVanished() const { return m_isVanished; }
    // It was removed by the job.
    void remove() { m_isRemoved = true; }
    bool isRemoved() const { return m_isRemoved; }

private:
    std::optional<platform::FileInfo> m_found;
    qint64 m_length = 0;       // at the last look
    qint64 m_overwritten = -1; // bytes that received every pass so far; below 0 before the first
    bool m_hasLastingId = false;
    bool m_isLocated = false;
    bool m_areStreamsLocated = false;
    bool m_isCountedElsewhere = false;
    bool m_isVanished = false;
    bool m_isRemoved = false;
};
