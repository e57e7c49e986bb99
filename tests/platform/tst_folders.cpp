#include "platform/places.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QStorageInfo>
#include <QString>
#include <QTest>

#include <filesystem>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

Folders &folders()
{
    return backend().folders();
}

// The space of the folder's volume, determined by other means. QStorageInfo cannot tell it where the root is
// no mount point, and MinGW's standard library cannot read long paths.
std::uintmax_t sizeOfVolume(const QString &folder)
{
#ifdef Q_OS_WIN
    return static_cast<std::uintmax_t>(QStorageInfo(folder).bytesTotal());
#else
    return std::filesystem::space(nativePath(folder)).capacity;
#endif
}

bool isEmptyFolder(const QString &path)
{
    return QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

// The contract of folders, on every backend and file system.
class tst_Folders : public ContractSuite
{
    Q_OBJECT

private slots:
    void listingSeesEveryEntryOnce();
    void listingNamesTheKinds();
    void listingOfAnEmptyFolder();
    void listingOfManyEntries();
    void visitorEndsTheListing();
    void visitorMayRemoveWhatItSees();
    void listingsNest();
    void listingOfNothing();
    void listingOfAFileIsRefused();
    void createWithMissingParents();
    void createOfWhatExists();
    void createOverAFileIsRefused();
    void createBelowAFileIsRefused();
    void removeEmptyRemoves();
    void removeEmptyKeepsAFullFolder();
    void removeEmptyOfAFileIsRefused();
    void removeEmptyOfNothing();
    void removeTreeRemovesEverything();
    void removeTreeOfManyEntries();
    void removeTreeOfManyFolders();
    void removeTreeTakesNamesWithSlashes_data();
    void removeTreeTakesNamesWithSlashes();
    void removeTreeOfAnEmptyFolder();
    void removeTreeOfAFileIsRefused();
    void removeTreeOfNothing();
    void hideOfAnEntry();
    void hideOfNothing();
    void distrustOfPrograms();
    void spaceOfTheVolume();
    void spaceOfAVanishedPath();
    void zeroInAPathIsRefused();

private:
    QMap<QString, FileKind> listed(const QString &folder);
};

QMap<QString, FileKind> tst_Folders::listed(const QString &folder)
{
    QMap<QString, FileKind> entries;
    int calls = 0;
    const Status status = folders().forEachEntry(folder, [&](const QString &name, FileKind kind) {
        ++calls;
        entries.insert(name, kind);
        return true;
    });
    if (!status.ok() || calls != entries.size())
        QTest::qFail("the listing failed or named an entry twice", __FILE__, __LINE__);
    return entries;
}

void tst_Folders::listingSeesEveryEntryOnce()
{
    QStringList names{u".hidden"_s, u"文件.txt"_s, u"a b"_s, u"file"_s, u".quorvex_temp_0a1b2c3d"_s};
#ifndef Q_OS_WIN
    names.append(u"..."_s); // Windows removes trailing dots
#endif
    for (const QString &name : names)
        writeFile(path(name), "abc");
    QStringList expected = names;
    expected.sort();
    QCOMPARE(QStringList(listed(m_folder).keys()), expected);
}

void tst_Folders::listingNamesTheKinds()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    const QMap<QString, FileKind> expected{{u"file"_s, FileKind::Regular}, {u"folder"_s, FileKind::Folder}};
    QCOMPARE(listed(m_folder), expected);
    QCOMPARE(listed(m_folder + u'/'), expected);
}

void tst_Folders::listingOfAnEmptyFolder()
{
    QVERIFY(listed(m_folder).isEmpty());
}

void tst_Folders::listingOfManyEntries()
{
    for (int i = 0; i < 3000; ++i)
        writeFile(path(u"a somewhat longer name, so that one read does not do %1"_s.arg(i)), {});
    QCOMPARE(listed(m_folder).size(), 3000);
}

void tst_Folders::visitorEndsTheListing()
{
    for (int i = 0; i < 5; ++i)
        writeFile(path(QString::number(i)), {});
    int calls = 0;
    const Status status =
        folders().forEachEntry(m_folder, [&](const QString &, FileKind) { return ++calls < 3; });
    QVERIFY(status.ok());
    QCOMPARE(calls, 3);
}

void tst_Folders::visitorMayRemoveWhatItSees()
{
    for (int i = 0; i < 500; ++i)
        writeFile(path(QString::number(i)), {});
    QStringList seen;
    const Status status = folders().forEachEntry(m_folder, [&](const QString &name, FileKind) {
        seen.append(name);
        return backend().files().remove(path(name)).ok();
    });
    QVERIFY(status.ok());
    QCOMPARE(seen.size(), 500);
    QCOMPARE(seen.removeDuplicates(), 0);
    QVERIFY(isEmptyFolder(m_folder));
}

void tst_Folders::listingsNest()
{
    QVERIFY(QDir().mkpath(path(u"a/b/c/d"_s)));
    QStringList seen;
    std::function<bool(const QString &, FileKind)> descend;
    QString at = m_folder;
    descend = [&](const QString &name, FileKind) {
        seen.append(name);
        at += u'/' + name;
        return folders().forEachEntry(at, descend).ok();
    };
    QVERIFY(folders().forEachEntry(m_folder, descend).ok());
    QCOMPARE(seen, (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
}

void tst_Folders::listingOfNothing()
{
    const auto visit = [](const QString &, FileKind) {
        QTest::qFail("nothing was to be seen", __FILE__, __LINE__);
        return true;
    };
    const quint32 code = folders().forEachEntry(path(u"none"_s), visit).code;
    QVERIFY(code == FileNotFound || code == PathNotFound);
    QVERIFY(!folders().forEachEntry(QString(), visit).ok());
}

void tst_Folders::listingOfAFileIsRefused()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(!folders().forEachEntry(path(u"file"_s), [](const QString &, FileKind) { return true; }).ok());
}

void tst_Folders::createWithMissingParents()
{
    QVERIFY(folders().create(path(u"one"_s)).ok());
    QVERIFY(folders().create(path(u"a/b//c/d/"_s)).ok());
    QVERIFY(folders().create(path(u"a/b/e"_s)).ok());
    for (const QString &name : {u"one"_s, u"a/b/c/d"_s, u"a/b/e"_s})
        QVERIFY(QFileInfo(path(name)).isDir());
    QVERIFY(isEmptyFolder(path(u"a/b/c/d"_s)));
}

void tst_Folders::createOfWhatExists()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(folders().create(m_folder).ok());
    QVERIFY(folders().create(m_folder + u'/').ok());
    QVERIFY(folders().create(QDir::rootPath()).ok());
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Folders::createOverAFileIsRefused()
{
    writeFile(path(u"file"_s), "abc");
    QCOMPARE(folders().create(path(u"file"_s)).code, quint32(AlreadyExists));
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Folders::createBelowAFileIsRefused()
{
    writeFile(path(u"file"_s), "abc");
    QCOMPARE(folders().create(path(u"file/folder"_s)).code, quint32(PathNotFound));
    QCOMPARE(folders().create(path(u"file/folder/folder"_s)).code, quint32(PathNotFound));
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Folders::removeEmptyRemoves()
{
    QVERIFY(QDir().mkpath(path(u"a/b"_s)));
    QVERIFY(folders().removeEmpty(path(u"a/b/"_s)).ok());
    QVERIFY(folders().removeEmpty(path(u"a"_s)).ok());
    QVERIFY(isEmptyFolder(m_folder));
}

void tst_Folders::removeEmptyKeepsAFullFolder()
{
    QVERIFY(QDir().mkpath(path(u"a/b"_s)));
    QCOMPARE(folders().removeEmpty(path(u"a"_s)).code, quint32(DirectoryNotEmpty));
    QVERIFY(QFileInfo(path(u"a/b"_s)).isDir());
    writeFile(path(u"a/b/.hidden"_s), {});
    QCOMPARE(folders().removeEmpty(path(u"a/b"_s)).code, quint32(DirectoryNotEmpty));
    QVERIFY(QFileInfo::exists(path(u"a/b/.hidden"_s)));
}

void tst_Folders::removeEmptyOfAFileIsRefused()
{
    writeFile(path(u"file"_s), {});
    QVERIFY(!folders().removeEmpty(path(u"file"_s)).ok());
    QVERIFY(QFileInfo::exists(path(u"file"_s)));
}

void tst_Folders::removeEmptyOfNothing()
{
    QCOMPARE(folders().removeEmpty(path(u"none"_s)).code, quint32(FileNotFound));
}

void tst_Folders::removeTreeRemovesEverything()
{
    QVERIFY(QDir().mkpath(path(u"tree/a/b/c"_s)));
    QVERIFY(QDir().mkpath(path(u"tree/a/d"_s)));
    QVERIFY(QDir().mkpath(path(u"tree/.e/文件夹"_s)));
    for (const QString &name :
         {u"tree/file"_s, u"tree/.hidden"_s, u"tree/a/b/c/文件"_s, u"tree/.e/文件夹/x"_s})
        writeFile(path(name), "abc");
    QVERIFY(QFile::setPermissions(path(u"tree/file"_s), QFileDevice::ReadOwner));
    writeFile(path(u"beside"_s), "abc");
    const Status status = folders().removeTree(path(u"tree"_s));
    QVERIFY2(status.ok(), qPrintable(status.diagnostic()));
    QCOMPARE(listed(m_folder).keys(), QStringList{u"beside"_s});
}

void tst_Folders::removeTreeOfManyEntries()
{
    QVERIFY(QDir().mkdir(path(u"mft_clean"_s)));
    for (int i = 0; i < 3000; ++i)
        writeFile(path(u"mft_clean/%1.tmp"_s.arg(i)), QByteArray(i % 3, 'x'));
    QVERIFY(folders().removeTree(path(u"mft_clean"_s)).ok());
    QVERIFY(isEmptyFolder(m_folder));
}

void tst_Folders::removeTreeOfManyFolders()
{
    for (int i = 0; i < 300; ++i)
        QVERIFY(QDir().mkpath(path(u"dir_clean/%1/%2"_s.arg(i).arg(i % 7))));
    QVERIFY(folders().removeTree(path(u"dir_clean"_s)).ok());
    QVERIFY(isEmptyFolder(m_folder));
}

void tst_Folders::removeTreeTakesNamesWithSlashes_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("at the end") << u"a/b/"_s;
    QTest::newRow("doubled") << u"a//b"_s;
}

void tst_Folders::removeTreeTakesNamesWithSlashes()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(path(u"a/b/c"_s)));
    QVERIFY(folders().removeTree(path(name)).ok());
    QVERIFY(isEmptyFolder(path(u"a"_s)));
}

void tst_Folders::removeTreeOfAnEmptyFolder()
{
    QVERIFY(QDir().mkdir(path(u"a"_s)));
    QVERIFY(folders().removeTree(path(u"a"_s)).ok());
    QVERIFY(isEmptyFolder(m_folder));
}

void tst_Folders::removeTreeOfAFileIsRefused()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(!folders().removeTree(path(u"file"_s)).ok());
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Folders::removeTreeOfNothing()
{
    QCOMPARE(folders().removeTree(path(u"none"_s)).code, quint32(FileNotFound));
    QVERIFY(!folders().removeTree(QString()).ok());
}

void tst_Folders::hideOfAnEntry()
{
    QVERIFY(QDir().mkdir(path(u".folder"_s)));
    writeFile(path(u".file"_s), "abc");
    for (const QString &name : {u".folder"_s, u".file"_s}) {
        QVERIFY(folders().hide(path(name)).ok());
        QVERIFY(QFileInfo(path(name)).isHidden());
    }
    QCOMPARE(contentOf(path(u".file"_s)), QByteArray("abc"));
}

void tst_Folders::hideOfNothing()
{
    QCOMPARE(folders().hide(path(u"none"_s)).code, quint32(FileNotFound));
}

void tst_Folders::distrustOfPrograms()
{
#ifdef Q_OS_WIN
    constexpr bool HasControlledFolders = true;
#else
    constexpr bool HasControlledFolders = false;
#endif
    for (const quint32 code : {quint32(AccessDenied), quint32(FileNotFound)})
        QCOMPARE(folders().mayDistrustProgram(code), HasControlledFolders);
    for (const quint32 code : {quint32(NoError), quint32(PathNotFound), quint32(WriteProtect)})
        QVERIFY(!folders().mayDistrustProgram(code));
}

void tst_Folders::spaceOfTheVolume()
{
    writeFile(path(u"file"_s), "abc");
    const std::uintmax_t total = sizeOfVolume(m_folder);
    for (const QString &name : {m_folder, m_folder + u'/', path(u"file"_s)}) {
        const Result<SpaceInfo> space = folders().space(name);
        QVERIFY(space.ok());
        QCOMPARE(static_cast<std::uintmax_t>(space.value().totalBytes), total);
        QVERIFY(space.value().freeBytes >= 0);
        QVERIFY(space.value().freeBytes <= space.value().totalBytes);
        QCOMPARE(space.value().availableBytes > 0, space.value().freeBytes > 0);
        QVERIFY(space.value().availableBytes <= space.value().freeBytes);
    }
}

void tst_Folders::spaceOfAVanishedPath()
{
    QVERIFY(QDir().mkdir(path(u"a"_s)));
    QVERIFY(folders().space(path(u"a"_s)).ok());
    QVERIFY(QDir().rmdir(path(u"a"_s)));
    QVERIFY(!folders().space(path(u"a"_s)).ok());
    QVERIFY(!folders().space(path(u"a/b"_s)).ok());
}

void tst_Folders::zeroInAPathIsRefused()
{
    QVERIFY(QDir().mkdir(path(u"a"_s)));
    const QString name = path(u"a"_s) + QChar(u'\0') + u"b"_s;
    QCOMPARE(folders().create(name).code, quint32(InvalidParameter));
    QCOMPARE(folders().removeEmpty(name).code, quint32(InvalidParameter));
    QCOMPARE(folders().removeTree(name).code, quint32(InvalidParameter));
    QCOMPARE(folders().hide(name).code, quint32(InvalidParameter));
    QCOMPARE(folders().space(name).code(), quint32(InvalidParameter));
    QCOMPARE(folders().forEachEntry(name, [](const QString &, FileKind) { return true; }).code,
             quint32(InvalidParameter));
    QVERIFY(QFileInfo(path(u"a"_s)).isDir());
}

QUORVEX_SUITE(tst_Folders, QCoreApplication)
#include "tst_folders.moc"
