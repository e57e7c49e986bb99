#pragma once

#include "platform/forwarding.h"

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

// Files on drives whose power can fail at any moment. What was written is on the medium when its file was
// flushed, in a group when that was closed; cutPower() takes back everything else. The groups are its own, so
// that they are there on every system. Thread-safe; the functions are set before the calls begin.
class PowerCutFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    bool hasGroups = true;
    // What tells the file systems apart, by the path of a folder: one group each.
    std::function<QString(const QString &folder)> fileSystemOf = [](const QString &) { return QString(); };
    // Asked when a group is closed. After a failure nothing of it is on the medium.
    std::function<platform::Status(const QString &fileSystem)> onClose;

    // Files with bytes that are not on the medium.
    QStringList unsettled() const;
    // What was done too early: to files with such bytes, or while an earlier group had some.
    QStringList premature() const;
    int groupsBegun() const;
    int groupsOpen() const;

    // Files that are no longer there are left out.
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
        std::shared_ptr<Group> group{}; // without one the flush is the end of it
    };

    void note(const QString &what, const QString &path);
    void write(Change change);
    void flush(quint64 opening);

    mutable QMutex m_mutex; // guards what follows
    std::vector<Change> m_changes;
    QStringList m_premature;
    quint64 m_openings = 0;
    int m_begun = 0;
    int m_closed = 0;
};
