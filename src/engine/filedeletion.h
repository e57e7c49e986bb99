#pragma once

#include <QString>

#include <chrono>
#include <functional>

// Deletes files so that length and name are gone too. Works on whatever is not a folder; only a regular file
// is ever opened. One thread.
class FileDeletion
{
public:
    // Waits for the time given; false to give up the attempts.
    using Pause = std::function<bool(std::chrono::milliseconds)>;

    explicit FileDeletion(Pause pause);

    // Cuts the file to nothing, renames it once and deletes it. True when it is gone, or when there was no
    // file: what cannot be looked at is not gone. A failure to cut or to rename is no obstacle.
    bool secureDeleteFile(const QString &path);

    // Gives the file a random name in its folder. The new path, empty when no attempt succeeded.
    static QString randomRenameFile(const QString &path);

private:
    void removeWithRetries(const QString &path);

    Pause m_pause;
};
