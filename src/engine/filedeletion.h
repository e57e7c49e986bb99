#pragma once

#include "engine/removalretries.h"

#include <QString>

// Deletes files so that length and name are gone too. Works on whatever is not a folder; only a regular file
// is ever opened. One thread.
class FileDeletion
{
public:
    explicit FileDeletion(RetryPause pause);

    // Cuts the file to nothing, renames it once and deletes it. True when it is gone, or when there was no
    // file: what cannot be looked at is not gone. A failure to cut or to rename is no obstacle.
    bool secureDeleteFile(const QString &path);

    // Gives the file a random name in its folder. The new path, empty when no attempt succeeded.
    static QString randomRenameFile(const QString &path);

private:
    void remove(const QString &path);

    RetryPause m_pause;
};
