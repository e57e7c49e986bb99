#include "support/suite.h"
#include "windows/win32faults.h"

#include "platform/windows/windowsfolders.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr DWORD OwnSerial = 0x1234ABCD;

struct Copy
{
    DWORD serialNumber = OwnSerial;
    DWORD openError = ERROR_SUCCESS;
    DWORD answerError = ERROR_SUCCESS;
};

// The copies of the machine by number, and the answers of the test's volume.
struct Machine
{
    QMap<int, Copy> copies;
    QString fileSystem = u"NTFS"_s;
    DWORD volumeError = ERROR_SUCCESS;
    QHash<HANDLE, int> opened;
    QString folder; // the folder behind every copy
};

Machine s_machine;

HANDLE WINAPI openCopy(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                       DWORD disposition, DWORD flags, HANDLE pattern)
{
    const QString path = QString::fromWCharArray(name);
    const QString prefix = QStringLiteral(R"(\\?\GLOBALROOT\Device\HarddiskVolumeShadowCopy)");
    if (!path.startsWith(prefix))
        return ::CreateFileW(name, access, sharing, security, disposition, flags, pattern);
    const int number = path.endsWith(u'\\') ? path.mid(prefix.size()).chopped(1).toInt() : 0;
    const Copy copy = s_machine.copies.value(number, Copy{0, ERROR_FILE_NOT_FOUND, 0});
    if (copy.openError != ERROR_SUCCESS) {
        ::SetLastError(copy.openError);
        return INVALID_HANDLE_VALUE;
    }
    // GENERIC rights would exceed the rights of ordinary users on a copy.
    if (access != FILE_READ_ATTRIBUTES || !(flags & FILE_FLAG_BACKUP_SEMANTICS)) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    HANDLE const handle = ::CreateFileW(s_machine.folder.toStdWString().c_str(), access, sharing, security,
                                        disposition, flags, pattern);
    s_machine.opened.insert(handle, number);
    return handle;
}

BOOL WINAPI tellVolume(HANDLE handle, LPWSTR, DWORD, LPDWORD serial, LPDWORD, LPDWORD, LPWSTR fileSystem,
                       DWORD room)
{
    const int number = s_machine.opened.take(handle);
    const DWORD error = number == 0 ? s_machine.volumeError : s_machine.copies.value(number).answerError;
    if (error != ERROR_SUCCESS || DWORD(s_machine.fileSystem.size()) >= room) {
        ::SetLastError(error);
        return FALSE;
    }
    *serial = number == 0 ? OwnSerial : s_machine.copies.value(number).serialNumber;
    fileSystem[s_machine.fileSystem.toWCharArray(fileSystem)] = L'\0';
    return TRUE;
}

} // namespace

class tst_WindowsShadowCopies : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copiesOfTheVolumeAreCounted();
    void aFileTellsOfItsVolume();
    void otherFileSystemsHaveNone();
    void whatCannotBeAskedIsNotNone();
    void everyHandleIsClosed();

private:
    Result<int> ask() { return WindowsFolders().snapshots(m_folder->path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Win32Faults> m_faults;
};

void tst_WindowsShadowCopies::init()
{
    m_faults.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    s_machine = {};
    s_machine.folder = m_folder->path();
    m_faults = std::make_unique<Win32Faults>();
    m_faults->target().createFile = openCopy;
    m_faults->target().getVolumeInformation = tellVolume;
}

void tst_WindowsShadowCopies::copiesOfTheVolumeAreCounted()
{
    QVERIFY(ask().ok());
    QCOMPARE(ask().value(), 0);
    s_machine.copies = {{1, {}}, {7, {0x99, 0, 0}}, {300, {}}};
    QVERIFY(ask().ok());
    QCOMPARE(ask().value(), 2);
}

void tst_WindowsShadowCopies::aFileTellsOfItsVolume()
{
    s_machine.copies = {{4, {}}};
    QFile file(m_folder->filePath(u"a file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QCOMPARE(WindowsFolders().snapshots(file.fileName()).valueOr(-1), 1);
    QCOMPARE(WindowsFolders().snapshots(m_folder->filePath(u"none"_s)).code(), quint32(FileNotFound));
}

void tst_WindowsShadowCopies::otherFileSystemsHaveNone()
{
    s_machine.copies = {{1, {}}};
    s_machine.fileSystem = u"ReFS"_s;
    QCOMPARE(ask().valueOr(-1), 1);
    for (const QString &name : {u"FAT32"_s, u"exFAT"_s, u"UDF"_s}) {
        s_machine.fileSystem = name;
        QCOMPARE(ask().code(), quint32(NotSupported));
    }
}

void tst_WindowsShadowCopies::whatCannotBeAskedIsNotNone()
{
    s_machine.volumeError = ERROR_IO_DEVICE;
    QCOMPARE(ask().code(), quint32(IoDevice));
    s_machine.volumeError = ERROR_SUCCESS;
    s_machine.copies = {{2, {OwnSerial, ERROR_ACCESS_DENIED, 0}}};
    QCOMPARE(ask().code(), quint32(AccessDenied));
    s_machine.copies = {{2, {OwnSerial, 0, ERROR_NOT_READY}}};
    QCOMPARE(ask().code(), quint32(NotReady));
    // One copy is certain, whatever the other one is.
    s_machine.copies.insert(3, {});
    QCOMPARE(ask().valueOr(-1), 1);
}

void tst_WindowsShadowCopies::everyHandleIsClosed()
{
    s_machine.copies = {{1, {}}, {2, {0x99, 0, 0}}, {3, {OwnSerial, 0, ERROR_NOT_READY}}};
    QVERIFY(ask().ok());
    QCOMPARE(m_faults->openHandles(), 0);
}

QUORVEX_SUITE(tst_WindowsShadowCopies, QCoreApplication)
#include "tst_windowsshadowcopies.moc"
