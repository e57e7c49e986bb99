#include "platform/fileflags.h"
#include "platform/places.h"
#include "support/fewdescriptors.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/filenames.h"
#include "platform/folders.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <atomic>
#include <thread>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

Folders &folders()
{
    return backend().folders();
}

bool exists(const QString &path)
{
    struct stat found = {};
    return ::lstat(encodeName(path).constData(), &found) == 0;
}

// Nested folders with a file in every hundredth, deeper than any path can name.
bool makeChain(const QString &folder, int levels)
{
    FileDescriptor at(::open(encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int level = 0; level < levels && at.isValid(); ++level) {
        if (::mkdirat(at.get(), "a folder", 0700) != 0)
            return false;
        if (level % 100 == 0 &&
            !FileDescriptor(::openat(at.get(), "a file", O_WRONLY | O_CREAT | O_CLOEXEC, 0600)).isValid())
            return false;
        at = FileDescriptor(::openat(at.get(), "a folder", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    return at.isValid();
}

int openDescriptors()
{
    return int(
        QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

} // namespace

// Behaviour specific to Linux: names that are not valid text, links and special files that need no root, and
// mounts in folders.
class tst_FoldersLinux : public ContractSuite
{
    Q_OBJECT

private slots:
    void listingNamesEveryKind();
    void listingOfNamesThatAreNoText();
    void listingOfALinkIsRefused();
    void createIsForItsOwnerAlone();
    void createThroughALink();
    void createOverALinkIsRefused();
    void removeEmptyOfALinkIsRefused();
    void removeTreeKeepsWhatLinksLeadTo();
    void removeTreeOfALinkIsRefused();
    void removeTreeOfEveryKind();
    void removeTreeOfNamesThatAreNoText();
    void removeTreeOfADeepChain();
    void removeTreeClosesItsDescriptors();
    void removeTreeRefusesNamesThatAreNone();
    void removeTreeGoesOnPastWhatCannotBeRemoved();
    void removeTreeStaysOutOfAMountedVolume();
    void removeTreeStaysOutOfAFolderMountedFromElsewhere();
    void removeTreeOfAMountPointEmptiesIt();
    void removeTreeNeverFollowsALinkThatIsSwappedIn();
    void hideOfADanglingLink();
    void spaceCountsWhatIsReserved();
    void spaceOfALinkIsThatOfItsOwnVolume();
};

void tst_FoldersLinux::listingNamesEveryKind()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"link to folder"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"link to nothing"_s)));
    QCOMPARE(::mkfifo(encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    QCOMPARE(::mknod(encodeName(path(u"socket"_s)).constData(), S_IFSOCK | 0600, 0), 0);
    QMap<QString, FileKind> seen;
    QVERIFY(folders()
                .forEachEntry(m_folder,
                              [&](const QString &name, FileKind kind) {
                                  seen.insert(name, kind);
                                  return true;
                              })
                .ok());
    const QMap<QString, FileKind> expected{
        {u"file"_s, FileKind::Regular},        {u"folder"_s, FileKind::Folder},
        {u"link to folder"_s, FileKind::Link}, {u"link to nothing"_s, FileKind::Link},
        {u"pipe"_s, FileKind::Special},        {u"socket"_s, FileKind::Special},
    };
    QCOMPARE(seen, expected);
}

void tst_FoldersLinux::listingOfNamesThatAreNoText()
{
    const QByteArrayList names{"caf\xE9", "\xCE\xC4\xBC\xFE", "\xFF",
                               "\xEF\xBB\xBF"
                               "a",
                               "a"};
    for (const QByteArray &name : names)
        QCOMPARE(::mkdir((encodeName(m_folder) + '/' + name).constData(), 0700), 0);
    QByteArrayList seen;
    QVERIFY(folders()
                .forEachEntry(m_folder,
                              [&](const QString &name, FileKind) {
                                  seen.append(encodeName(name));
                                  return folders().removeEmpty(path(name)).ok();
                              })
                .ok());
    std::sort(seen.begin(), seen.end());
    QByteArrayList expected = names;
    std::sort(expected.begin(), expected.end());
    QCOMPARE(seen, expected);
    QVERIFY(QDir(m_folder).isEmpty());
}

void tst_FoldersLinux::listingOfALinkIsRefused()
{
    QVERIFY(QDir().mkpath(path(u"folder/inside"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    int calls = 0;
    const auto visit = [&](const QString &, FileKind) { return ++calls > 0; };
    QVERIFY(!folders().forEachEntry(path(u"link"_s), visit).ok());
    QVERIFY(!folders().forEachEntry(path(u"link/"_s), visit).ok());
    QCOMPARE(calls, 0);
}

void tst_FoldersLinux::createIsForItsOwnerAlone()
{
    QVERIFY(folders().create(path(u"a/b"_s)).ok());
    for (const QString &name : {u"a"_s, u"a/b"_s}) {
        struct stat found = {};
        QCOMPARE(::lstat(encodeName(path(name)).constData(), &found), 0);
        QCOMPARE(uint(found.st_mode & ALLPERMS), 0700u);
    }
}

void tst_FoldersLinux::createThroughALink()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    QVERIFY(folders().create(path(u"link/a/b"_s)).ok());
    QVERIFY(QFileInfo(path(u"folder/a/b"_s)).isDir());
}

void tst_FoldersLinux::createOverALinkIsRefused()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"dangling"_s)));
    QCOMPARE(folders().create(path(u"link"_s)).code, quint32(AlreadyExists));
    QCOMPARE(folders().create(path(u"dangling"_s)).code, quint32(AlreadyExists));
    QCOMPARE(folders().create(path(u"dangling/a"_s)).code, quint32(AlreadyExists));
    QVERIFY(!exists(path(u"none"_s)));
}

void tst_FoldersLinux::removeEmptyOfALinkIsRefused()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    QVERIFY(!folders().removeEmpty(path(u"link"_s)).ok());
    QVERIFY(!folders().removeEmpty(path(u"link/"_s)).ok());
    QVERIFY(exists(path(u"link"_s)));
    QVERIFY(exists(path(u"folder"_s)));
}

void tst_FoldersLinux::removeTreeKeepsWhatLinksLeadTo()
{
    QVERIFY(QDir().mkpath(path(u"outside/folder"_s)));
    writeFile(path(u"outside/file"_s), "abc");
    QVERIFY(QDir().mkpath(path(u"tree/a"_s)));
    QVERIFY(makeLink(path(u"outside"_s), path(u"tree/to folder"_s)));
    QVERIFY(makeLink(u"../../outside"_s, path(u"tree/a/relative"_s)));
    QVERIFY(makeLink(path(u"outside/file"_s), path(u"tree/a/to file"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"tree/a/to nothing"_s)));
    QVERIFY(makeLink(u"."_s, path(u"tree/a/round"_s)));
    QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
    QVERIFY(!exists(path(u"tree"_s)));
    QCOMPARE(contentOf(path(u"outside/file"_s)), QByteArray("abc"));
    QVERIFY(exists(path(u"outside/folder"_s)));
}

void tst_FoldersLinux::removeTreeOfALinkIsRefused()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    writeFile(path(u"folder/file"_s), "abc");
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    QVERIFY(!folders().removeTree(path(u"link"_s)).ok());
    QVERIFY(!folders().removeTree(path(u"link/"_s)).ok());
    QVERIFY(exists(path(u"link"_s)));
    QCOMPARE(contentOf(path(u"folder/file"_s)), QByteArray("abc"));
}

void tst_FoldersLinux::removeTreeOfEveryKind()
{
    QVERIFY(QDir().mkpath(path(u"tree/a"_s)));
    QCOMPARE(::mkfifo(encodeName(path(u"tree/a/pipe"_s)).constData(), 0600), 0);
    QCOMPARE(::mknod(encodeName(path(u"tree/a/socket"_s)).constData(), S_IFSOCK | 0600, 0), 0);
    if (::geteuid() == 0)
        QCOMPARE(::mknod(encodeName(path(u"tree/device"_s)).constData(), S_IFBLK | 0600, ::makedev(240, 77)),
                 0);
    else
        qInfo("without a device node, which only root makes");
    writeFile(path(u"tree/file"_s), "abc");
    QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
    QVERIFY(!exists(path(u"tree"_s)));
}

void tst_FoldersLinux::removeTreeOfNamesThatAreNoText()
{
    const QByteArray tree = encodeName(m_folder) + "/tr\xE9\xE9";
    QCOMPARE(::mkdir(tree.constData(), 0700), 0);
    for (const QByteArray &name : {QByteArray("\xFF"), QByteArray("caf\xE9"), QByteArray("\n")})
        QCOMPARE(::mkdir((tree + '/' + name).constData(), 0700), 0);
    QCOMPARE(::mkfifo((tree + "/caf\xE9/\xCE\xC4").constData(), 0600), 0);
    QVERIFY(folders().removeTree(decodeName(tree)).ok());
    QVERIFY(QDir(m_folder).isEmpty());
}

void tst_FoldersLinux::removeTreeOfADeepChain()
{
    QVERIFY(QDir().mkdir(path(u"tree"_s)));
    // Takes half a minute on a busy disk, because each of these folders is synced.
    QVERIFY(makeChain(path(u"tree"_s), m_places.isMemoryOnly() ? 10000 : 1500));
    const FewDescriptors limit(rlim_t(openDescriptors()) + 8);
    QVERIFY(limit.isSet());
    const Status status = folders().removeTree(path(u"tree"_s));
    QVERIFY2(status.ok(), qPrintable(status.diagnostic()));
    QVERIFY(!exists(path(u"tree"_s)));
}

void tst_FoldersLinux::removeTreeClosesItsDescriptors()
{
    const int before = openDescriptors();
    for (int i = 0; i < 20; ++i) {
        QVERIFY(QDir().mkpath(path(u"tree/a/b/c"_s)));
        QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
        QVERIFY(!folders().removeTree(path(u"tree"_s)).ok());
        QVERIFY(folders().forEachEntry(m_folder, [](const QString &, FileKind) { return false; }).ok());
        QVERIFY(folders().space(m_folder).ok());
    }
    QCOMPARE(openDescriptors(), before);
}

void tst_FoldersLinux::removeTreeRefusesNamesThatAreNone()
{
    QVERIFY(QDir().mkpath(path(u"a/b"_s)));
    writeFile(path(u"a/file"_s), "abc");
    for (const QString &name : {u"a/."_s, u"a/b/.."_s, u"a/b/../"_s})
        QCOMPARE(folders().removeTree(path(name)).code, quint32(InvalidParameter));
    QCOMPARE(contentOf(path(u"a/file"_s)), QByteArray("abc"));
    QVERIFY(exists(path(u"a/b"_s)));
}

void tst_FoldersLinux::removeTreeGoesOnPastWhatCannotBeRemoved()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root makes a file that root cannot remove");
    QVERIFY(QDir().mkpath(path(u"tree/a/b"_s)));
    QVERIFY(QDir().mkpath(path(u"tree/c/d"_s)));
    QVERIFY(QDir().mkpath(path(u"tree/e"_s)));
    for (const QString &name :
         {u"tree/a/1"_s, u"tree/c/stays"_s, u"tree/c/2"_s, u"tree/c/d/3"_s, u"tree/e/4"_s})
        writeFile(path(name), "abc");
    if (!setImmutable(path(u"tree/c/stays"_s), true))
        QSKIP("SKIPPED: this file system has no immutable files");
    const Status status = folders().removeTree(path(u"tree"_s));
    QVERIFY(setImmutable(path(u"tree/c/stays"_s), false));
    QCOMPARE(status.code, quint32(AccessDenied));
    QVERIFY(!exists(path(u"tree/a"_s)));
    QVERIFY(!exists(path(u"tree/e"_s)));
    QCOMPARE(QDir(path(u"tree/c"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"stays"_s});
    QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
}

void tst_FoldersLinux::removeTreeStaysOutOfAMountedVolume()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    QVERIFY(QDir().mkpath(path(u"tree/a/mounted"_s)));
    writeFile(path(u"tree/a/file"_s), "abc");
    writeFile(path(u"tree/z"_s), "abc");
    {
        const PlainMount mount("tmpfs", u"inside"_s, path(u"tree/a/mounted"_s));
        QVERIFY(mount.isMounted());
        QVERIFY(QDir().mkdir(path(u"tree/a/mounted/folder"_s)));
        writeFile(path(u"tree/a/mounted/file"_s), "abc");
        QCOMPARE(folders().removeTree(path(u"tree"_s)).code, quint32(SharingViolation));
        QCOMPARE(contentOf(path(u"tree/a/mounted/file"_s)), QByteArray("abc"));
        QVERIFY(exists(path(u"tree/a/mounted/folder"_s)));
        QVERIFY(!exists(path(u"tree/a/file"_s)));
        QVERIFY(!exists(path(u"tree/z"_s)));
    }
    QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
}

// The same volume, and therefore the same device number.
void tst_FoldersLinux::removeTreeStaysOutOfAFolderMountedFromElsewhere()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    QVERIFY(QDir().mkpath(path(u"tree/mounted"_s)));
    QVERIFY(QDir().mkdir(path(u"elsewhere"_s)));
    writeFile(path(u"elsewhere/file"_s), "abc");
    {
        const PlainMount mount("", path(u"elsewhere"_s), path(u"tree/mounted"_s), MS_BIND);
        QVERIFY(mount.isMounted());
        QCOMPARE(folders().removeTree(path(u"tree"_s)).code, quint32(SharingViolation));
        QCOMPARE(contentOf(path(u"elsewhere/file"_s)), QByteArray("abc"));
    }
    QVERIFY(folders().removeTree(path(u"tree"_s)).ok());
    QCOMPARE(contentOf(path(u"elsewhere/file"_s)), QByteArray("abc"));
}

void tst_FoldersLinux::removeTreeOfAMountPointEmptiesIt()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root mounts");
    QVERIFY(QDir().mkdir(path(u"mounted"_s)));
    const PlainMount mount("tmpfs", u"inside"_s, path(u"mounted"_s));
    QVERIFY(mount.isMounted());
    QVERIFY(QDir().mkpath(path(u"mounted/a/b"_s)));
    QCOMPARE(folders().removeTree(path(u"mounted"_s)).code, quint32(SharingViolation));
    QVERIFY(exists(path(u"mounted"_s)));
    QVERIFY(QDir(path(u"mounted"_s)).isEmpty());
}

// Another thread keeps exchanging a folder of the tree for a link to a folder that must not be touched.
void tst_FoldersLinux::removeTreeNeverFollowsALinkThatIsSwappedIn()
{
    QVERIFY(QDir().mkpath(path(u"precious/folder"_s)));
    writeFile(path(u"precious/file"_s), "abc");
    std::atomic<bool> ended{false};
    std::thread swapper([&] {
        const QByteArray target = encodeName(path(u"precious"_s));
        const QByteArray inside = encodeName(path(u"tree/swapped"_s));
        while (!ended) { // each call may fail, since the tree keeps changing
            ::mkdir(inside.constData(), 0700);
            ::mkdir((inside + "/a").constData(), 0700);
            ::rmdir((inside + "/a").constData());
            ::rmdir(inside.constData());
            [[maybe_unused]] const int made = ::symlink(target.constData(), inside.constData());
            ::unlink(inside.constData());
        }
    });
    int removed = 0;
    for (int i = 0; i < 300; ++i) {
        ::mkdir(encodeName(path(u"tree"_s)).constData(), 0700);
        ::mkdir(encodeName(path(u"tree/beside"_s)).constData(), 0700);
        removed += folders().removeTree(path(u"tree"_s)).ok();
    }
    ended = true;
    swapper.join();
    QVERIFY(removed > 0);
    QCOMPARE(contentOf(path(u"precious/file"_s)), QByteArray("abc"));
    QVERIFY(exists(path(u"precious/folder"_s)));
}

void tst_FoldersLinux::hideOfADanglingLink()
{
    QVERIFY(makeLink(path(u"none"_s), path(u"link"_s)));
    QVERIFY(folders().hide(path(u"link"_s)).ok());
}

void tst_FoldersLinux::spaceCountsWhatIsReserved()
{
    struct statvfs volume = {};
    QCOMPARE(::statvfs(encodeName(m_folder).constData(), &volume), 0);
    const Result<SpaceInfo> space = folders().space(m_folder);
    QVERIFY(space.ok());
    QCOMPARE(space.value().totalBytes, qint64(volume.f_blocks * volume.f_frsize));
    if (!Places::areMounted())
        return; // other processes also write there
    // ext4 keeps a twentieth for root.
    QCOMPARE(space.value().freeBytes, qint64(volume.f_bfree * volume.f_frsize));
    const auto available = ::geteuid() == 0 ? volume.f_bfree : volume.f_bavail;
    QCOMPARE(space.value().availableBytes, qint64(available * volume.f_frsize));
    QFETCH_GLOBAL(QString, place);
    if (place.startsWith(u"ext4"_s))
        QVERIFY(space.value().freeBytes > qint64(volume.f_bavail * volume.f_frsize));
}

void tst_FoldersLinux::spaceOfALinkIsThatOfItsOwnVolume()
{
    QVERIFY(makeLink(u"/proc"_s, path(u"link"_s)));
    const Result<SpaceInfo> own = folders().space(m_folder);
    const Result<SpaceInfo> link = folders().space(path(u"link"_s));
    QVERIFY(own.ok());
    QVERIFY(link.ok());
    QCOMPARE(link.value().totalBytes, own.value().totalBytes);
}

QUORVEX_SUITE(tst_FoldersLinux, QCoreApplication)
#include "tst_folderslinux.moc"
