#pragma once

#include "platform/forwarding.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// Folders on a file system whose journal is played. Without hasJournal there is none, also where the real
// file system has one. One thread.
class JournaledFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    bool hasJournal = false;
    qint64 size = 1024 * 1024;
    qint64 blockSize = 4096;
    bool isElsewhere = false; // the device of the file system takes nothing of it

    // Called with "journal FOLDER", "change FILE", "commit" or "settle" before the call. A failure becomes
    // the answer.
    std::function<platform::Status(const QString &call)> hook;
    QStringList calls() const { return m_calls; }
    // The bytes of the journal that were logged by commits.
    qint64 logged() const { return m_logged; }

    platform::Result<std::unique_ptr<platform::AnchoredFolder>>
    anchor(const platform::EntryPath &folder) override;

private:
    class Folder;
    class Journal;

    platform::Status begin(const QString &call);

    QStringList m_calls;
    qint64 m_changed = 0; // blocks since the last commit
    qint64 m_logged = 0;
};
