#include "platform/places.h"
#include "support/links.h"
#include "support/plainmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/linux/linuxfolderhandle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

Files &files()
{
    return backend().files();
}

Folders &folders()
{
    return backend().folders();
}

} // namespace

// Folders that are held open, and their entries.
class tst_HeldFolders : public QObject
{
    Q_OBJECT

private slots:
    void pathsOfEntries();
    void theFolderStaysTheOneThatWasOpened();
    void everyOperationInAHeldFolder();
    void namesThatLeadElsewhereAreRefused_data();
    void namesThatLeadElsewhereAreRefused();
    void linksAreNotEntered();
    void aPathIsResolvedAsTheSystemDoes();
    void aPathOfAnyLength();
    void mountsAreEnteredOnlyWhenAsked_data();
    void mountsAreEnteredOnlyWhenAsked();
    void aFileMountedOverANameIsNotTouched();
    void mountsAreToldByWhatTheKernelTells_data();
    void mountsAreToldByWhatTheKernelTells();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    std::shared_ptr<FolderHandle> held(const QString &name) const
    {
        const auto handle = folders().hold(path(name));
        return handle ? handle.value() : nullptr;
    }

    QTemporaryDir m_folder;
};

void tst_HeldFolders::pathsOfEntries()
{
    QVERIFY(QDir().mkpath(path(u"paths"_s)));
    const auto folder = held(u"paths"_s);
    QVERIFY(folder);
    QCOMPARE(EntryPath(folder, u"a"_s).path(), path(u"paths/a"_s));
    QCOMPARE(EntryPath(folder, {}).path(), path(u"paths"_s));
    QCOMPARE(EntryPath(folder, u"a"_s).sibling(u"b"_s).path(), path(u"paths/b"_s));
    QCOMPARE(EntryPath(u"/x/a"_s).sibling(u"b"_s).path(), u"/x/b"_s);
    QCOMPARE(EntryPath(u"/a"_s).sibling(u"b"_s).path(), u"/b"_s);
    QCOMPARE(pathInFolder(u"/"_s, u"a"_s), u"/a"_s);
    QCOMPARE(pathInFolder(u"/x/"_s, u"a"_s), u"/x/a"_s);
    QCOMPARE(pathInFolder(u"E:\\"_s, u"a"_s), u"E:\\a"_s);
    // A name may end with a backslash here.
    QCOMPARE(pathInFolder(u"/x\\"_s, u"a"_s), u"/x\\/a"_s);
}

void tst_HeldFolders::theFolderStaysTheOneThatWasOpened()
{
    writeFile(path(u"one/a"_s), "one");
    writeFile(path(u"two/a"_s), "two");
    const auto folder = held(u"one"_s);
    QVERIFY(folder);
    QVERIFY(QDir().rename(path(u"one"_s), path(u"moved"_s)));
    QVERIFY(makeLink(path(u"two"_s), path(u"one"_s)));
    QVERIFY(files().remove(EntryPath(folder, u"a"_s)).ok());
    QVERIFY(!QFile::exists(path(u"moved/a"_s)));
    QCOMPARE(contentOf(path(u"two/a"_s)), QByteArray("two"));
}

void tst_HeldFolders::everyOperationInAHeldFolder()
{
    writeFile(path(u"all/a"_s), "abc");
    QVERIFY(QDir().mkpath(path(u"all/sub"_s)));
    const auto folder = held(u"all"_s);
    QVERIFY(folder);
    const EntryPath file(folder, u"a"_s);
    const auto info = files().info(file);
    QVERIFY(info.ok());
    QCOMPARE(info.value().size, 3);
    QVERIFY(!info.value().isMounted);
    QVERIFY(QFile::setPermissions(path(u"all/a"_s), QFile::ReadOwner));
    QVERIFY(files().clearReadOnly(file).ok());
    QVERIFY(QFileInfo(path(u"all/a"_s)).permissions() & QFile::WriteOwner);
    QVERIFY(files().contentPlace(file).ok());
    {
        const auto opened = files().open(file, OpenMode::Overwrite);
        QVERIFY(opened.ok());
        QCOMPARE(opened.value()->id().value(), info.value().id);
        QCOMPARE(opened.value()->write("xyz", 3).value(), 3);
        QVERIFY(opened.value()->flush().ok());
    }
    QCOMPARE(contentOf(path(u"all/a"_s)), QByteArray("xyz"));
    QVERIFY(files().rename(file, file.sibling(u"b"_s)).ok());
    QStringList names;
    QVERIFY(folders()
                .forEachEntry(EntryPath(folder, {}),
                              [&names](const QString &name, FileKind) {
                                  names += name;
                                  return true;
                              })
                .ok());
    names.sort();
    QCOMPARE(names, (QStringList{u"b"_s, u"sub"_s}));
    const auto sub = folders().holdIn(folder, u"sub"_s, Folders::Mounts::Refuse);
    QVERIFY(sub.ok());
    QCOMPARE(sub.value()->path(), path(u"all/sub"_s));
    QCOMPARE(sub.value()->id().value(), files().info(EntryPath(folder, u"sub"_s)).value().id);
    QVERIFY(folders().removeEmpty(EntryPath(folder, u"sub"_s)).ok());
    QVERIFY(files().remove(EntryPath(folder, u"b"_s)).ok());
    QVERIFY(QDir(path(u"all"_s)).isEmpty());
}

void tst_HeldFolders::namesThatLeadElsewhereAreRefused_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {".", "..", "../beside", "sub/a", "/etc"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_HeldFolders::namesThatLeadElsewhereAreRefused()
{
    QFETCH(QString, name);
    writeFile(path(u"names/sub/a"_s), "abc");
    writeFile(path(u"beside"_s), "abc");
    const auto folder = held(u"names"_s);
    QVERIFY(folder);
    QCOMPARE(files().info(EntryPath(folder, name)).code(), quint32(InvalidParameter));
    QCOMPARE(files().open(EntryPath(folder, name), OpenMode::Overwrite).code(), quint32(InvalidParameter));
    QCOMPARE(files().remove(EntryPath(folder, name)).code, quint32(InvalidParameter));
    QCOMPARE(folders().holdIn(folder, name, Folders::Mounts::Enter).code(), quint32(InvalidParameter));
}

void tst_HeldFolders::linksAreNotEntered()
{
    QVERIFY(QDir().mkpath(path(u"links/real"_s)));
    QVERIFY(makeLink(path(u"links/real"_s), path(u"links/link"_s)));
    writeFile(path(u"links/file"_s), "abc");
    const auto folder = held(u"links"_s);
    QVERIFY(folder);
    for (const QString &name : {u"link"_s, u"file"_s})
        QCOMPARE(folders().holdIn(folder, name, Folders::Mounts::Enter).code(), quint32(PathNotFound));
    QCOMPARE(folders().holdIn(folder, u"none"_s, Folders::Mounts::Enter).code(), quint32(FileNotFound));
    QVERIFY(!folders().forEachEntry(EntryPath(folder, u"link"_s),
                                    [](const QString &, FileKind) { return true; }));
}

void tst_HeldFolders::aPathIsResolvedAsTheSystemDoes()
{
    writeFile(path(u"resolved/a"_s), "abc");
    QVERIFY(makeLink(path(u"resolved"_s), path(u"to resolved"_s)));
    const auto folder = held(u"to resolved"_s);
    QVERIFY(folder);
    QCOMPARE(folder->path(), path(u"to resolved"_s));
    QVERIFY(files().info(EntryPath(folder, u"a"_s)).ok());
    QCOMPARE(folders().hold(path(u"no folder"_s)).code(), quint32(FileNotFound));
    QCOMPARE(folders().hold(path(u"resolved/a"_s)).code(), quint32(PathNotFound));
}

void tst_HeldFolders::aPathOfAnyLength()
{
    const QString name(200, u'n');
    auto folder = held(u"."_s);
    for (int level = 0; level < 50; ++level) {
        QVERIFY(folder);
        const auto *const at = dynamic_cast<LinuxFolderHandle *>(folder.get());
        QVERIFY(at);
        QCOMPARE(::mkdirat(at->descriptor(), name.toUtf8().constData(), 0700), 0);
        folder = folders().holdIn(folder, name, Folders::Mounts::Refuse).valueOr(nullptr);
    }
    QVERIFY(folder);
    QVERIFY(folder->path().size() > 10'000);
    const auto again = folders().hold(folder->path());
    QVERIFY2(again.ok(), qPrintable(again.status().diagnostic()));
    QCOMPARE(again.value()->id().value(), folder->id().value());
    QVERIFY(folders().removeTree(path(name)).ok());
}

void tst_HeldFolders::mountsAreEnteredOnlyWhenAsked_data()
{
    QTest::addColumn<bool>("isBind");
    QTest::newRow("a volume") << false;
    QTest::newRow("a folder from elsewhere on the same volume") << true;
}

void tst_HeldFolders::mountsAreEnteredOnlyWhenAsked()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    QFETCH(bool, isBind);
    QVERIFY(QDir().mkpath(path(u"mounts/here"_s)));
    QVERIFY(QDir().mkpath(path(u"elsewhere"_s)));
    const auto before = held(u"mounts"_s);
    QVERIFY(before);
    const PlainMount mount(isBind ? "" : "tmpfs", isBind ? path(u"elsewhere"_s) : u"inside"_s,
                           path(u"mounts/here"_s), isBind ? MS_BIND : 0);
    QVERIFY(mount.isMounted());
    QVERIFY(files().info(EntryPath(before, u"here"_s)).value().isMounted);
    QCOMPARE(folders().holdIn(before, u"here"_s, Folders::Mounts::Refuse).code(), quint32(NotSameDevice));
    QVERIFY(!folders().forEachEntry(EntryPath(before, u"here"_s),
                                    [](const QString &, FileKind) { return true; }));
    const auto inside = folders().holdIn(before, u"here"_s, Folders::Mounts::Enter);
    QVERIFY(inside.ok());
    // An entry inside is on the same mount as the folder itself.
    writeFile(path(u"mounts/here/a"_s), "abc");
    QVERIFY(!files().info(EntryPath(inside.value(), u"a"_s)).value().isMounted);
    QCOMPARE(folders().removeEmpty(EntryPath(before, u"here"_s)).code, quint32(SharingViolation));
}

void tst_HeldFolders::aFileMountedOverANameIsNotTouched()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    const QString victim = writeFile(path(u"victim"_s), "somebody else's");
    const QString own = writeFile(path(u"over/a"_s), "abc");
    QVERIFY(QFile::setPermissions(victim, QFile::ReadOwner));
    const auto folder = held(u"over"_s);
    QVERIFY(folder);
    const PlainMount mount("", victim, own, MS_BIND);
    QVERIFY(mount.isMounted());
    const EntryPath entry(folder, u"a"_s);
    QVERIFY(files().info(entry).value().isMounted);
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate})
        QCOMPARE(files().open(entry, mode).code(), quint32(NotSameDevice));
    QCOMPARE(files().contentPlace(entry).code(), quint32(NotSameDevice));
    QCOMPARE(files().clearReadOnly(entry).code, quint32(NotSameDevice));
    QVERIFY(!(QFileInfo(victim).permissions() & QFile::WriteOwner));
    QCOMPARE(files().rename(entry, entry.sibling(u"b"_s)).code, quint32(SharingViolation));
    QCOMPARE(files().remove(entry).code, quint32(SharingViolation));
    QCOMPARE(contentOf(victim), QByteArray("somebody else's"));
}

void tst_HeldFolders::mountsAreToldByWhatTheKernelTells_data()
{
    QTest::addColumn<bool>("hasMountId");
    QTest::addColumn<bool>("hasAttribute");
    QTest::newRow("by the number of the mount") << true << true;
    QTest::newRow("by the attribute") << false << true;
    QTest::newRow("by the device number") << false << false;
}

void tst_HeldFolders::mountsAreToldByWhatTheKernelTells()
{
    QFETCH(bool, hasMountId);
    QFETCH(bool, hasAttribute);
    struct statx folder = {};
    folder.stx_dev_minor = 1;
#ifdef STATX_MNT_ID
    folder.stx_mask = hasMountId ? STATX_MNT_ID : 0;
    folder.stx_mnt_id = 7;
#endif
    folder.stx_attributes_mask = hasAttribute ? STATX_ATTR_MOUNT_ROOT : 0;
    folder.stx_attributes = folder.stx_attributes_mask;
    struct statx found = folder;
    found.stx_attributes = 0;
    QVERIFY(!isOnAnotherMount(folder, found));
    // A subvolume of btrfs has its own device number but lies on the same mount.
    found.stx_dev_minor = 2;
    QCOMPARE(isOnAnotherMount(folder, found), !hasMountId && !hasAttribute);
    found.stx_dev_minor = 1;
    found.stx_attributes = found.stx_attributes_mask;
#ifdef STATX_MNT_ID
    found.stx_mnt_id = 8;
#endif
    QCOMPARE(isOnAnotherMount(folder, found), hasMountId || hasAttribute);
}

QUORVEX_SUITE(tst_HeldFolders, QCoreApplication)
#include "tst_heldfolders.moc"
