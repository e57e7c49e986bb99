#pragma once

#include "platform/forwarding.h"

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

// Files on drives whose power can fail at any moment. Written bytes reach the medium when their file is
// flushed or, in a group, when the group is closed; cutPower() reverts all others. The groups are simulated,
// so that they exist on every system. Thread-safe; the functions are set before the calls begin.
class PowerCutFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    bool hasGroups = true;
    // The name of the file system that holds a folder. Each file system has one group.
    std::function<QString(const QString &folder)> fileSystemOf = [](const QString &) { return QString(); };
    // Called when a group is closed. After a failure none of its bytes are on the medium.
    std::function<platform::Status(const QString &fileSystem)> onClose;

    // Files with bytes that are not on the medium.
    QStringList unsettled() const;
    // Operations done too early: on files with such bytes, or while an earlier group had some.
    QStringList premature() const;
    int groupsBegun() const;
    int groupsOpen() const;

    // Files that no longer exist are skipped.
    void cutPower();

    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override;
    platform::Result<std::shared_ptr<platform::DurabilityGroup>>
    beginGroup(const platform::EntryPath &folder) override;
    platform::Status closeGroup(platform::DurabilityGroup &group) override;
    platform::Status rename(const platform::EntryPath &from, const platform::EntryPath &to) override;
    platform::Status remove(const platform::EntryPath &entry) override;

private:
    class Group;
    class Handle;

    struct Change
    {
        QString path;
        qint64 position = 0;
        QByteArray before;
        quint64 opening = 0;            // until its flush
        std::shared_ptr<Group> group{}; // null: the flush settles the file
    };

    void note(const QString &what, const QString &path);
    void write(Change change);
    void flush(quint64 opening);

    mutable QMutex m_mutex; // guards the members below
    std::vector<Change> m_changes;
    QStringList m_premature;
    quint64 m_openings = 0;
    int m_begun = 0;
    int m_closed = 0;
};
