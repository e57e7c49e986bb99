#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/entrypath.h"
#include "platform/windows/windowsfiles.h"
#include "platform/windows/windowsfolders.h"
#include "platform/windows/windowslongpath.h"
#include "windows/win32calls.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

WindowsFiles files;
WindowsFolders folders;

bool move(const QString &from, const QString &to)
{
    return ::MoveFileExW(toLongPath(from).c_str(), toLongPath(to).c_str(), 0);
}

DWORD WINAPI noFinalPath(HANDLE, LPWSTR, DWORD, DWORD)
{
    ::SetLastError(ERROR_PATH_NOT_FOUND);
    return 0;
}

DWORD WINAPI finalPathTooLong(HANDLE, LPWSTR, DWORD, DWORD)
{
    ::SetLastError(ERROR_MORE_DATA);
    return 0;
}

// The folder "a" is a link.
DWORD WINAPI attributesWithLink(LPCWSTR name)
{
    const DWORD attributes = ::GetFileAttributesW(name);
    return QString::fromWCharArray(name).endsWith(u"\\a"_s) ? attributes | FILE_ATTRIBUTE_REPARSE_POINT
                                                            : attributes;
}

// A folder that can be traversed but not listed.
HANDLE WINAPI unlistable(LPCWSTR name, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD flags, HANDLE pattern)
{
    if (access == FILE_LIST_DIRECTORY) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    return ::CreateFileW(name, access, sharing, security, disposition, flags, pattern);
}

} // namespace

// The path of a held folder keeps leading to it, since neither it nor a folder above it can be moved.
class tst_WindowsHeldFolders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_folder.reset(); }

    void nobodyMovesAHeldFolder();
    void aFolderHoldsThoseAboveIt();
    void everyOperationInAHeldFolder();
    void namesThatLeadElsewhereAreRefused_data();
    void namesThatLeadElsewhereAreRefused();
    void whatIsNoFolderIsNotHeld();
    void aFolderWithoutAFinalPathIsNotHeld();
    void aPathTooLongToBeToldIsTakenWithoutLinksOnly();
    void aFolderThatCannotBeListedIsHeld();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_WindowsHeldFolders::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    writeFile(path(u"a/b/file"_s), "abc");
}

void tst_WindowsHeldFolders::nobodyMovesAHeldFolder()
{
    {
        const auto held = folders.hold(path(u"a"_s));
        QVERIFY2(held.ok(), qPrintable(held.status().diagnostic()));
        QVERIFY(!move(path(u"a"_s), path(u"moved"_s)));
    }
    QVERIFY(move(path(u"a"_s), path(u"moved"_s)));
}

void tst_WindowsHeldFolders::aFolderHoldsThoseAboveIt()
{
    std::shared_ptr<FolderHandle> inner;
    {
        const auto held = folders.hold(path(u"a"_s));
        QVERIFY(held.ok());
        const auto below = folders.holdIn(held.value(), u"b"_s, Folders::Mounts::Refuse);
        QVERIFY(below.ok());
        inner = below.value();
    }
    QVERIFY(!move(path(u"a"_s), path(u"moved"_s)));
    QVERIFY(!move(path(u"a/b"_s), path(u"moved"_s)));
    inner.reset();
    QVERIFY(move(path(u"a/b"_s), path(u"moved"_s)));
}

void tst_WindowsHeldFolders::everyOperationInAHeldFolder()
{
    const auto held = folders.hold(path(u"a/b"_s));
    QVERIFY(held.ok());
    const EntryPath file(held.value(), u"file"_s);
    QCOMPARE(file.path(), path(u"a/b/file"_s));
    QCOMPARE(files.info(file).value().size, 3);
    QVERIFY(files.open(file, OpenMode::Overwrite).ok());
    QVERIFY(files.rename(file, file.sibling(u"other"_s)).ok());
    QStringList names;
    QVERIFY(folders
                .forEachEntry(EntryPath(held.value(), {}),
                              [&names](const QString &name, FileKind) {
                                  names += name;
                                  return true;
                              })
                .ok());
    QCOMPARE(names, QStringList{u"other"_s});
    QVERIFY(files.remove(file.sibling(u"other"_s)).ok());
    QVERIFY(QDir().mkdir(path(u"a/b/sub"_s)));
    QVERIFY(folders.removeEmpty(EntryPath(held.value(), u"sub"_s)).ok());
    QVERIFY(QDir(path(u"a/b"_s)).isEmpty());
}

void tst_WindowsHeldFolders::namesThatLeadElsewhereAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {".", "..", "b/file", "b\\file", "..\\a"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_WindowsHeldFolders::namesThatLeadElsewhereAreRefused()
{
    QFETCH(QString, name);
    const auto held = folders.hold(path(u"a"_s));
    QVERIFY(held.ok());
    QCOMPARE(files.info(EntryPath(held.value(), name)).code(), quint32(InvalidParameter));
    QCOMPARE(folders.holdIn(held.value(), name, Folders::Mounts::Enter).code(), quint32(InvalidParameter));
}

void tst_WindowsHeldFolders::whatIsNoFolderIsNotHeld()
{
    const auto held = folders.hold(path(u"a/b"_s));
    QVERIFY(held.ok());
    QCOMPARE(folders.holdIn(held.value(), u"file"_s, Folders::Mounts::Enter).code(), quint32(PathNotFound));
    QVERIFY(folders.holdIn(held.value(), u"none"_s, Folders::Mounts::Enter).status().isAbsent());
    QCOMPARE(folders.holdIn(held.value(), {}, Folders::Mounts::Enter).code(), quint32(InvalidParameter));
}

// The location of the folder is unknown.
void tst_WindowsHeldFolders::aFolderWithoutAFinalPathIsNotHeld()
{
    Win32Calls calls;
    calls.getFinalPathName = &noFinalPath;
    const ScopedWin32Calls scope(calls);
    QCOMPARE(folders.hold(path(u"a"_s)).code(), quint32(PathNotFound));
}

void tst_WindowsHeldFolders::aPathTooLongToBeToldIsTakenWithoutLinksOnly()
{
    Win32Calls calls;
    calls.getFinalPathName = &finalPathTooLong;
    {
        const ScopedWin32Calls scope(calls);
        const auto held = folders.hold(path(u"a/b"_s));
        QVERIFY(held.ok());
        QVERIFY(files.info(EntryPath(held.value(), u"file"_s)).ok());
        QVERIFY(!move(path(u"a/b"_s), path(u"moved"_s)));
    }
    calls.getFileAttributes = &attributesWithLink;
    const ScopedWin32Calls scope(calls);
    QCOMPARE(folders.hold(path(u"a/b"_s)).code(), quint32(MoreData));
}

void tst_WindowsHeldFolders::aFolderThatCannotBeListedIsHeld()
{
    Win32Calls calls;
    calls.createFile = &unlistable;
    const ScopedWin32Calls scope(calls);
    const auto held = folders.hold(path(u"a"_s));
    QVERIFY(held.ok());
    QVERIFY(files.info(EntryPath(held.value(), u"b"_s)).ok());
}

QUORVEX_SUITE(tst_WindowsHeldFolders, QCoreApplication)
#include "tst_windowsheldfolders.moc"
