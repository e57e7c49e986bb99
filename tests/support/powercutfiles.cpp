#include "support/powercutfiles.h"

#include <QFile>
#include <QMutexLocker>

#include <algorithm>
#include <utility>

class PowerCutFiles::Group : public platform::DurabilityGroup
{
public:
    Group(const PowerCutFiles &files, QString name)
        : fileSystem(std::move(name))
        , m_files(files)
    {}
    bool covers(const platform::FolderHandle &folder) const override
    {
        return m_files.fileSystemOf(folder.path()) == fileSystem;
    }

    const QString fileSystem;

private:
    const PowerCutFiles &m_files;
};

class PowerCutFiles::Handle : public platform::ForwardingFileHandle
{
public:
    Handle(std::unique_ptr<platform::FileHandle> target, PowerCutFiles &files, QString path,
           std::shared_ptr<Group> group, quint64 opening)
        : ForwardingFileHandle(std::move(target))
        , m_files(files)
        , m_path(std::move(path))
        , m_group(std::move(group))
        , m_opening(opening)
    {}
    platform::Status seek(qint64 position) override
    {
        const platform::Status status = ForwardingFileHandle::seek(position);
        if (status)
            m_position = position;
        return status;
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        m_files.note(QStringLiteral("read"), m_path);
        const auto count = ForwardingFileHandle::read(data, size);
        m_position += count.valueOr(0);
        return count;
    }
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly) || !file.seek(m_position))
            qFatal("the content before a write cannot be kept");
        m_files.write({m_path, m_position, file.read(size), m_opening, m_group});
        const auto count = ForwardingFileHandle::write(data, size);
        m_position += count.valueOr(0);
        return count;
    }
    platform::Status setEnd() override
    {
        m_files.note(QStringLiteral("cut"), m_path);
        return ForwardingFileHandle::setEnd();
    }
    platform::Status flush() override
    {
        const platform::Status status = ForwardingFileHandle::flush();
        if (status)
            m_files.flush(m_opening);
        return status;
    }

private:
    PowerCutFiles &m_files;
    const QString m_path;
    const std::shared_ptr<Group> m_group;
    const quint64 m_opening;
    qint64 m_position = 0;
};

QStringList PowerCutFiles::unsettled() const
{
    const QMutexLocker locker(&m_mutex);
    QStringList paths;
    for (const Change &change : m_changes) {
        if (!paths.contains(change.path))
            paths.append(change.path);
    }
    return paths;
}

QStringList PowerCutFiles::premature() const
{
    const QMutexLocker locker(&m_mutex);
    return m_premature;
}

int PowerCutFiles::groupsBegun() const
{
    const QMutexLocker locker(&m_mutex);
    return m_begun;
}

int PowerCutFiles::groupsOpen() const
{
    const QMutexLocker locker(&m_mutex);
    return m_begun - m_closed;
}

void PowerCutFiles::cutPower()
{
    const QMutexLocker locker(&m_mutex);
    for (auto change = m_changes.rbegin(); change != m_changes.rend(); ++change) {
        QFile file(change->path);
        if (!file.exists())
            continue;
        if (!file.open(QIODevice::ReadWrite) || !file.seek(change->position) ||
            file.write(change->before) != change->before.size())
            qFatal("the write that is to be dropped cannot be taken back");
    }
    m_changes.clear();
}

platform::Result<std::unique_ptr<platform::FileHandle>>
PowerCutFiles::openIn(const std::shared_ptr<platform::DurabilityGroup> &group,
                      const platform::EntryPath &entry, platform::OpenMode mode)
{
    auto opened = ForwardingFiles::openIn(nullptr, entry, mode);
    if (!opened)
        return opened;
    const QMutexLocker locker(&m_mutex);
    return std::unique_ptr<platform::FileHandle>(std::make_unique<Handle>(
        opened.take(), *this, entry.path(), std::static_pointer_cast<Group>(group), ++m_openings));
}

platform::Result<std::shared_ptr<platform::DurabilityGroup>>
PowerCutFiles::beginGroup(const platform::EntryPath &folder)
{
    if (!hasGroups)
        return platform::Status{platform::NotSupported, 0, "beginGroup"};
    const QMutexLocker locker(&m_mutex);
    ++m_begun;
    return std::shared_ptr<platform::DurabilityGroup>(
        std::make_shared<Group>(*this, fileSystemOf(folder.path())));
}

platform::Status PowerCutFiles::closeGroup(platform::DurabilityGroup &group)
{
    const platform::Status status =
        onClose ? onClose(static_cast<Group &>(group).fileSystem) : platform::Status();
    const QMutexLocker locker(&m_mutex);
    ++m_closed;
    if (status) {
        std::erase_if(m_changes, [&group](const Change &change) {
            return change.group.get() == &group && change.opening == 0;
        });
    }
    return status;
}

platform::Status PowerCutFiles::rename(const platform::EntryPath &from, const platform::EntryPath &to)
{
    note(QStringLiteral("renamed"), from.path());
    return ForwardingFiles::rename(from, to);
}

platform::Status PowerCutFiles::remove(const platform::EntryPath &entry)
{
    note(QStringLiteral("removed"), entry.path());
    return ForwardingFiles::remove(entry);
}

void PowerCutFiles::note(const QString &what, const QString &path)
{
    const QMutexLocker locker(&m_mutex);
    if (std::ranges::any_of(m_changes, [&path](const Change &change) { return change.path == path; }))
        m_premature.append(what + QLatin1Char(' ') + path);
}

void PowerCutFiles::write(Change change)
{
    const QMutexLocker locker(&m_mutex);
    const auto isOfEarlierPass = [&change](const Change &earlier) {
        if (earlier.path == change.path)
            return earlier.opening != change.opening;
        return earlier.group && change.group && earlier.group != change.group &&
               earlier.group->fileSystem == change.group->fileSystem;
    };
    if (std::ranges::any_of(m_changes, isOfEarlierPass))
        m_premature.append(QStringLiteral("written ") + change.path);
    m_changes.push_back(std::move(change));
}

void PowerCutFiles::flush(quint64 opening)
{
    const QMutexLocker locker(&m_mutex);
    std::erase_if(m_changes, [opening](const Change &change) {
        return change.opening == opening && change.group == nullptr;
    });
    for (Change &change : m_changes) {
        if (change.opening == opening)
            change.opening = 0;
    }
}
