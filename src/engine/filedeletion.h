#pragma once

#include "engine/retries.h"
#include "platform/entrypath.h"

#include <optional>

class DurabilityGroups;
class WatchedFile;

// Deletes files so that length and name are gone too. Works on whatever is not a folder; only a regular file
// is ever opened. One thread.
class FileDeletion
{
public:
    // groups: in which what is cut and removed reaches the medium, null for each file by itself.
    explicit FileDeletion(RetryPause pause, DurabilityGroups *groups = nullptr);

    // Cuts the file to nothing, renames it once and deletes it. True when it is gone, or when there was no
    // file: what cannot be looked at is not gone. A failure to cut or to rename is no obstacle. watched: what
    // the file has to be; something else keeps its content and its name.
    bool secureDeleteFile(const platform::EntryPath &file, WatchedFile *watched = nullptr);

    enum class Found {
        File,
        Another, // something else stood there
        Nothing,
    };
    // Of the last file.
    Found found() const { return m_found; }
    // Of the last file, when it is not gone: where it stands under another name.
    const std::optional<platform::EntryPath> &leftAt() const { return m_leftAt; }

    // Gives the file a random name in its folder. The new place, nothing when no attempt succeeded.
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
