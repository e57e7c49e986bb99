#include "engine/diskwipeworker.h"
#include "model/wipetask.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/workerrecord.h"
#include "windows/win32calls.h"

#include <QCoreApplication>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Volumes that volumefixture.sh makes visible to Wine: E: is an image file, F: a block device, both of this
// size. The script checks from outside of Wine that every byte is erased.
namespace {

constexpr qint64 VolumeSize = 24 * 1024 * 1024;
constexpr int DriveNumber = 7;

// Adds the drive behind these volumes, which Wine does not report. Opening, locking, dismounting and writing
// are Wine's own.
class DriveBehindVolumes
{
public:
    DriveBehindVolumes(const QString &standIn, qint64 size)
        : m_standIn(standIn.toStdWString())
        , m_size(size)
    {
        s_current = this;
        m_calls.createFile = &createFile;
        m_calls.deviceIoControl = &deviceIoControl;
        // Wine's own volumes are hidden from the test.
        m_calls.findFirstVolume = [](LPWSTR, DWORD) -> HANDLE {
            ::SetLastError(ERROR_NO_MORE_FILES);
            return INVALID_HANDLE_VALUE;
        };
        m_scope.emplace(m_calls);
    }
    ~DriveBehindVolumes()
    {
        m_scope.reset();
        s_current = nullptr;
    }
    DriveBehindVolumes(const DriveBehindVolumes &) = delete;
    DriveBehindVolumes &operator=(const DriveBehindVolumes &) = delete;

    // The single volume on the drive.
    QString volume;

    static QString drivePath() { return uR"(\\.\PhysicalDrive%1)"_s.arg(DriveNumber); }

private:
    static HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                                    DWORD disposition, DWORD flags, HANDLE pattern)
    {
        const QString path = QString::fromWCharArray(name);
        const bool isDrive = path == drivePath();
        if (path.startsWith(uR"(\\.\)"_s) && !isDrive && path != uR"(\\.\)"_s + s_current->volume) {
            ::SetLastError(ERROR_FILE_NOT_FOUND);
            return INVALID_HANDLE_VALUE;
        }
        const HANDLE handle = ::CreateFileW(isDrive ? s_current->m_standIn.c_str() : name, access, sharing,
                                            security, disposition, flags, pattern);
        const QMutexLocker locker(&s_current->m_mutex);
        s_current->m_isDrive.insert(handle, isDrive);
        return handle;
    }

    static BOOL WINAPI deviceIoControl(HANDLE handle, DWORD code, LPVOID input, DWORD inputSize,
                                       LPVOID output, DWORD outputSize, LPDWORD returned,
                                       LPOVERLAPPED overlapped)
    {
        if (code == IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS && !s_current->isDrive(handle)) {
            VOLUME_DISK_EXTENTS extents = {};
            extents.NumberOfDiskExtents = 1;
            extents.Extents[0].DiskNumber = DriveNumber;
            extents.Extents[0].ExtentLength.QuadPart = VolumeSize;
            return reply(extents, output, outputSize, returned);
        }
        if (code == IOCTL_DISK_GET_DRIVE_GEOMETRY_EX && s_current->isDrive(handle)) {
            DISK_GEOMETRY_EX geometry = {};
            geometry.Geometry.BytesPerSector = 512;
            geometry.DiskSize.QuadPart = s_current->m_size;
            return reply(geometry, output, outputSize, returned);
        }
        return ::DeviceIoControl(handle, code, input, inputSize, output, outputSize, returned, overlapped);
    }

    template <typename T>
    static BOOL reply(const T &record, LPVOID output, DWORD outputSize, LPDWORD returned)
    {
        if (outputSize < sizeof(record)) {
            ::SetLastError(ERROR_INSUFFICIENT_BUFFER);
            return FALSE;
        }
        std::memcpy(output, &record, sizeof(record));
        *returned = sizeof(record);
        return TRUE;
    }

    bool isDrive(HANDLE handle)
    {
        const QMutexLocker locker(&m_mutex);
        return m_isDrive.value(handle);
    }

    inline static DriveBehindVolumes *s_current = nullptr;

    std::wstring m_standIn;
    qint64 m_size;
    QMutex m_mutex;
    QHash<HANDLE, bool> m_isDrive;
    platform::Win32Calls m_calls;
    std::optional<platform::ScopedWin32Calls> m_scope;
};

} // namespace

// Volumes opened, locked and written to by the system's own calls.
class tst_WineVolume : public QObject
{
    Q_OBJECT

private slots:
    void everyByteIsWrittenThroughTheVolume_data();
    void everyByteIsWrittenThroughTheVolume();
};

void tst_WineVolume::everyByteIsWrittenThroughTheVolume_data()
{
    QTest::addColumn<QString>("volume");
    QTest::addColumn<int>("method");
    QTest::addColumn<qint64>("driveSize");

    // Wine does not report the length of a volume, so the drive's length is used; a longer write would make
    // the file grow.
    QTest::newRow("image file") << u"E:"_s << 0 << VolumeSize;
    // The volume ends before the assumed length.
    QTest::newRow("block device") << u"F:"_s << 3 << VolumeSize + 5 * 1024 * 1024;
}

void tst_WineVolume::everyByteIsWrittenThroughTheVolume()
{
    QFETCH(const QString, volume);
    QFETCH(const int, method);
    QFETCH(const qint64, driveSize);
    const QTemporaryDir folder;
    const QString standIn = writeFile(folder.filePath(u"drive"_s), QByteArray(512, 'd'));
    DriveBehindVolumes behind(standIn, driveSize);
    behind.volume = volume;

    WipeTask task;
    task.setOperationType(DiskWipe);
    DiskInfo disk;
    disk.diskNumber = DriveNumber;
    disk.devicePath = DriveBehindVolumes::drivePath();
    disk.sizeBytes = driveSize;
    disk.bytesPerSector = 512;
    task.setDisk(disk);
    task.setMethod(WipeMethod::fromType(method));
    task.setVerifyAfterWipe(true);
    task.setBufferSizeMB(10);
    DiskWipeWorker worker(&task);
    const WorkerRecord record(worker);
    worker.process();

    const QStringList lines = record.lines();
    const QString all = lines.join(u'\n');
    if (lines.contains(u"2 无法打开卷 %1，错误码: 2"_s.arg(volume)))
        QSKIP("SKIPPED: this volume needs a loop device, and so root");
    QVERIFY2(record.succeeded(), qPrintable(all));
    QVERIFY2(lines.contains(u"0 找到卷: "_s + volume), qPrintable(all));
    QVERIFY2(lines.contains(u"0 卷 %1 锁定成功"_s.arg(volume)), qPrintable(all));
    // Wine only dismounts its own mounts: error 50 or 87, which does not stop a job.
    QVERIFY2(lines.contains(u"0 卷 %1 卸载成功"_s.arg(volume)) ||
                 all.contains(u"卷 %1 卸载失败，错误码: 50"_s.arg(volume)) ||
                 all.contains(u"卷 %1 卸载失败，错误码: 87"_s.arg(volume)),
             qPrintable(all));
    QVERIFY2(all.contains(u"使用估算卷大小: "_s), qPrintable(all));
    if (driveSize > VolumeSize)
        QVERIFY2(lines.contains(u"0 写入字节数为0，到达卷末尾"_s), qPrintable(all));
    QVERIFY2(lines.contains(u"0 验证通过"_s) == task.method().passes.constLast().verify, qPrintable(all));

    // The drive itself is unchanged, because only its volume is held.
    QCOMPARE(contentOf(standIn), QByteArray(512, 'd'));
}

QUORVEX_SUITE(tst_WineVolume, QCoreApplication)
#include "tst_winevolume.moc"

#include <winioctl.h>
