#pragma once

#include "engine/retries.h"
#include "platform/entrypath.h"

#include <optional>

class DurabilityGroups;
class WatchedFile;

/// Deletes files so that length and name are gone too. Accepts everything but folders; only regular files are
/// opened. One thread.
class FileDeletion
{
public:
    /// groups: flushes the cuts and removals of the files together; null flushes each file by itself.
    explicit FileDeletion(RetryPause pause, DurabilityGroups *groups = nullptr);

    /// Cuts the file to nothing, renames it once and deletes it. Returns true when it is gone, or when there
    /// was no file; a file that cannot be looked at does not count as gone. A failure to cut or to rename
    /// does not stop the deletion. watched: the expected identity; another file keeps its content and its
    /// name.
    bool secureDeleteFile(const platform::EntryPath &file, WatchedFile *watched = nullptr);

    enum class Found {
        File,
        Another, ///< another file stood there
        Nothing,
    };
    /// The finding for the last file.
    Found found() const { return m_found; }
    /// The place of the last file under its random name, when it was renamed but not deleted.
    const std::optional<platform::EntryPath> &leftAt() const { return m_leftAt; }

    /// Gives the file a random name in its folder. Returns the new place, nothing when every attempt failed.
    static std::optional<platform::EntryPath> randomRenameFile(const platform::EntryPath &file);

private:
    platform::Status cutToNothing(const platform::EntryPath &path, WatchedFile *watched);
    void giveBack(const platform::EntryPath &renamed, const platform::EntryPath &file);
    void remove(const platform::EntryPath &file);

    RetryPause m_pause;
    DurabilityGroups *m_groups;
    Found m_found = Found::Nothing;
    std::optional<platform::EntryPath> m_leftAt;
};
