#pragma once

#include "platform/anchoredfolder.h"
#include "platform/devices.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "platform/volumejournal.h"

/// A wrapper beside each interface that forwards every call, so that a subclass overrides only the methods
/// that it changes. The wrapped object is not owned unless it is given as a unique_ptr; otherwise it must
/// outlive the wrapper.

namespace platform {

class ForwardingFileHandle : public FileHandle
{
public:
    explicit ForwardingFileHandle(std::unique_ptr<FileHandle> target)
        : m_target(std::move(target))
    {}
    Status seek(qint64 position) override { return m_target->seek(position); }
    Result<qint64> read(void *data, qint64 size) override { return m_target->read(data, size); }
    Result<qint64> write(const void *data, qint64 size) override { return m_target->write(data, size); }
    Status setEnd() override { return m_target->setEnd(); }
    Status flush() override { return m_target->flush(); }
    Result<FileId> id() override { return m_target->id(); }
    Result<ContentPlace> contentPlace() override { return m_target->contentPlace(); }

protected:
    std::unique_ptr<FileHandle> m_target;
};

class ForwardingFiles : public Files
{
public:
    explicit ForwardingFiles(Files &target)
        : m_target(target)
    {}
    Result<FileInfo> info(const EntryPath &entry) override { return m_target.info(entry); }
    Result<std::unique_ptr<FileHandle>> openIn(const std::shared_ptr<DurabilityGroup> &group,
                                               const EntryPath &entry, OpenMode mode) override
    {
        return m_target.openIn(group, entry, mode);
    }
    Result<std::shared_ptr<DurabilityGroup>> beginGroup(const EntryPath &folder) override
    {
        return m_target.beginGroup(folder);
    }
    Status closeGroup(DurabilityGroup &group) override { return m_target.closeGroup(group); }
    Result<ContentPlace> contentPlace(const EntryPath &entry) override
    {
        return m_target.contentPlace(entry);
    }
    Result<QList<NamedStream>> namedStreams(const EntryPath &entry) override
    {
        return m_target.namedStreams(entry);
    }
    Result<QByteArray> readBeginning(const QString &path, qint64 limit) override
    {
        return m_target.readBeginning(path, limit);
    }
    Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) override
    {
        return m_target.openForAppending(path);
    }
    bool isStream(const QString &path) override { return m_target.isStream(path); }
    bool openStream(QFile &stream, QIODevice::OpenMode mode) override
    {
        return m_target.openStream(stream, mode);
    }
    bool isWrittenOut(const QFileDevice &file) override { return m_target.isWrittenOut(file); }
    int spareOpenFiles() override { return m_target.spareOpenFiles(); }
    Status clearReadOnly(const EntryPath &entry) override { return m_target.clearReadOnly(entry); }
    Status rename(const EntryPath &from, const EntryPath &to) override { return m_target.rename(from, to); }
    Status remove(const EntryPath &entry) override { return m_target.remove(entry); }

protected:
    Files &m_target;
};

class ForwardingVolumeJournal : public VolumeJournal
{
public:
    explicit ForwardingVolumeJournal(std::unique_ptr<VolumeJournal> target)
        : m_target(std::move(target))
    {}
    qint64 size() const override { return m_target->size(); }
    qint64 blockSize() const override { return m_target->blockSize(); }
    Result<qint64> written() override { return m_target->written(); }
    Status changeBlock(const QString &name, quint64 mark) override
    {
        return m_target->changeBlock(name, mark);
    }
    Status commit() override { return m_target->commit(); }
    Status settle() override { return m_target->settle(); }

protected:
    std::unique_ptr<VolumeJournal> m_target;
};

class ForwardingAnchoredFolder : public AnchoredFolder
{
public:
    explicit ForwardingAnchoredFolder(std::unique_ptr<AnchoredFolder> target)
        : m_target(std::move(target))
    {}
    QString path() const override { return m_target->path(); }
    bool isClaimed() const override { return m_target->isClaimed(); }
    Result<QString> volumeIdentity() override { return m_target->volumeIdentity(); }
    Result<SpaceInfo> space() override { return m_target->space(); }
    Status forEachEntry(const Folders::Visitor &visit) override { return m_target->forEachEntry(visit); }
    Result<FileInfo> info(const QString &name) override { return m_target->info(name); }
    Result<std::unique_ptr<FileHandle>> createFile(const QString &name) override
    {
        return m_target->createFile(name);
    }
    Status removeFile(const QString &name) override { return m_target->removeFile(name); }
    Result<std::unique_ptr<AnchoredFolder>> createFolder(const QString &name) override
    {
        return m_target->createFolder(name);
    }
    Result<std::unique_ptr<AnchoredFolder>> openFolder(const QString &name) override
    {
        return m_target->openFolder(name);
    }
    Status hide() override { return m_target->hide(); }
    Status removeFolder(const QString &name) override { return m_target->removeFolder(name); }
    Status removeTree(const QString &name) override { return m_target->removeTree(name); }
    Result<std::unique_ptr<VolumeJournal>> journal() override { return m_target->journal(); }

protected:
    std::unique_ptr<AnchoredFolder> m_target;
};

class ForwardingFolders : public Folders
{
public:
    explicit ForwardingFolders(Folders &target)
        : m_target(target)
    {}
    Result<std::unique_ptr<AnchoredFolder>> anchor(const EntryPath &folder) override
    {
        return m_target.anchor(folder);
    }
    Status forEachEntry(const EntryPath &folder, const Visitor &visit) override
    {
        return m_target.forEachEntry(folder, visit);
    }
    Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) override
    {
        return m_target.hold(folder);
    }
    Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name, Mounts mounts) override
    {
        return m_target.holdIn(parent, name, mounts);
    }
    Status create(const QString &folder) override { return m_target.create(folder); }
    Status removeEmpty(const EntryPath &folder) override { return m_target.removeEmpty(folder); }
    Status removeTree(const QString &folder) override { return m_target.removeTree(folder); }
    Result<FolderOwner> owner(const QString &folder) override { return m_target.owner(folder); }
    Status hide(const QString &path) override { return m_target.hide(path); }
    Result<SpaceInfo> space(const QString &path) override { return m_target.space(path); }
    bool mayDistrustProgram(quint32 code) override { return m_target.mayDistrustProgram(code); }
    Result<int> snapshots(const QString &path) override { return m_target.snapshots(path); }

protected:
    Folders &m_target;
};

class ForwardingDeviceQuery : public DeviceQuery
{
public:
    explicit ForwardingDeviceQuery(std::unique_ptr<DeviceQuery> target)
        : m_target(std::move(target))
    {}
    Result<Geometry> geometry() override { return m_target->geometry(); }
    Result<QByteArray> descriptor() override { return m_target->descriptor(); }
    Result<QString> worldWideName() override { return m_target->worldWideName(); }
    Result<bool> seekPenalty() override { return m_target->seekPenalty(); }
    Result<bool> trimEnabled() override { return m_target->trimEnabled(); }
    Result<DeviceUse> use() override { return m_target->use(); }
    Result<QList<Extent>> extents(int maxExtents) override { return m_target->extents(maxExtents); }

protected:
    std::unique_ptr<DeviceQuery> m_target;
};

/// For both kinds of raw device: Base is RawDevice or VolumeDevice.
template <typename Base>
class ForwardingTransfers : public Base
{
public:
    explicit ForwardingTransfers(std::unique_ptr<Base> target)
        : m_target(std::move(target))
    {}
    Result<Geometry> geometry() override { return m_target->geometry(); }
    Result<qint32> bytesPerSector() override { return m_target->bytesPerSector(); }
    Result<qint64> length() override { return m_target->length(); }
    Status seek(qint64 position) override { return m_target->seek(position); }
    Result<qint64> read(void *data, qint64 size) override { return m_target->read(data, size); }
    Result<qint64> write(const void *data, qint64 size) override { return m_target->write(data, size); }
    Status flush() override { return m_target->flush(); }

protected:
    std::unique_ptr<Base> m_target;
};

using ForwardingRawDevice = ForwardingTransfers<RawDevice>;

class ForwardingVolumeDevice : public ForwardingTransfers<VolumeDevice>
{
public:
    using ForwardingTransfers<VolumeDevice>::ForwardingTransfers;
    Status lock() override { return m_target->lock(); }
    Status dismount() override { return m_target->dismount(); }
    Status allowExtendedIo() override { return m_target->allowExtendedIo(); }
    Status unlock() override { return m_target->unlock(); }
};

class ForwardingDevices : public Devices
{
public:
    explicit ForwardingDevices(Devices &target)
        : m_target(target)
    {}
    QString drivePath(int number) override { return m_target.drivePath(number); }
    Result<std::unique_ptr<DeviceQuery>> queryDrive(int number) override
    {
        return m_target.queryDrive(number);
    }
    Result<std::unique_ptr<DeviceQuery>> queryVolume(const QString &name) override
    {
        return m_target.queryVolume(name);
    }
    Result<std::unique_ptr<RawDevice>> openDrive(const DriveIdentity &drive, DriveAccess access) override
    {
        return m_target.openDrive(drive, access);
    }
    Result<std::unique_ptr<VolumeDevice>> openVolume(const QString &name, const DriveIdentity &drive) override
    {
        return m_target.openVolume(name, drive);
    }
    VolumeRelease releaseVolumes(const DriveIdentity &drive) override
    {
        return m_target.releaseVolumes(drive);
    }
    QStringList volumeNames() override { return m_target.volumeNames(); }
    Result<QStringList> machineVolumes() override { return m_target.machineVolumes(); }
    QList<MountedVolume> mountedVolumes() override { return m_target.mountedVolumes(); }

protected:
    Devices &m_target;
};

class ForwardingSession : public Session
{
public:
    explicit ForwardingSession(Session &target)
        : m_target(target)
    {}
    QStringList systemVolumes() override { return m_target.systemVolumes(); }
    bool isSystemRoot(const QString &rootPath) override { return m_target.isSystemRoot(rootPath); }
    bool holdsSystemFiles(const QString &rootPath) override { return m_target.holdsSystemFiles(rootPath); }
    QString userId() override { return m_target.userId(); }
    Result<bool> isAdministrator() override { return m_target.isAdministrator(); }
    QString foreignAccount() override { return m_target.foreignAccount(); }
    void tellBinChanged() override { m_target.tellBinChanged(); }
    Result<std::unique_ptr<AwakeHold>> keepAwake(const AwakeRequest &request) override
    {
        return m_target.keepAwake(request);
    }

protected:
    Session &m_target;
};

/// A platform composed of parts of any origin.
class ForwardingPlatform : public Platform
{
public:
    ForwardingPlatform(Files &files, Folders &folders, Devices &devices, Session &session)
        : m_files(files)
        , m_folders(folders)
        , m_devices(devices)
        , m_session(session)
    {}
    Files &files() override { return m_files; }
    Folders &folders() override { return m_folders; }
    Devices &devices() override { return m_devices; }
    Session &session() override { return m_session; }

private:
    Files &m_files;
    Folders &m_folders;
    Devices &m_devices;
    Session &m_session;
};

} // namespace platform
