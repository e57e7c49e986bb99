#include "platform/fileflags.h"
#include "platform/places.h"
#include "support/bytes.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

using namespace platform;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Files &files()
{
    return backend().files();
}

constexpr OpenMode EveryMode[] = {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate,
                                  OpenMode::CreateFill};

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (::lstat(encodeName(path).constData(), &status) != 0)
        QTest::qFail(qPrintable(u"nothing at "_s + path), __FILE__, __LINE__);
    return status;
}

} // namespace

// Behaviour specific to Linux: names that are not valid text, and links and special files that need no root.
class tst_FilesLinux : public ContractSuite
{
    Q_OBJECT

private slots:
    void opensWithTheFlagsItPromises();
    void overwriteKeepsTheInode();
    void overwriteFillsHoles();
    void createFillIsForItsOwnerAlone();
    void clearReadOnlyKeepsTheOtherPermissions_data();
    void clearReadOnlyKeepsTheOtherPermissions();
    void clearReadOnlyLeavesALinkAndItsTarget();
    void infoOfLinks();
    void contentPlaceSaysWhereItIsOverwritten();
    void contentPlaceWhereNoExtentsAreShown();
    void idWhereNumbersMayNotLast();
    void contentPlaceOpensNothingButFilesAndFolders();
    void openOfALinkIsRefused();
    void openOfADanglingLinkCreatesNothing();
    void slashAfterALinkDoesNotFollowIt();
    void linksOnTheWayAreFollowed();
    void openNeverFollowsALinkThatIsSwappedIn();
    void removeOfALinkKeepsItsTarget();
    void renameOfALinkKeepsItsTarget();
    void renameOverALinkKeepsItsTarget();
    void specialFilesAreRefused_data();
    void specialFilesAreRefused();
    void pipeIsNotEvenOpened();
    void namesThatAreNoText_data();
    void namesThatAreNoText();
    void namesDifferInEveryByte();
    void backslashIsPartOfAName();
    void longestName();
};

void tst_FilesLinux::opensWithTheFlagsItPromises()
{
    const QString name = path(u"file"_s);
    writeFile(name, QByteArray(10000, 'a'));
    QFETCH_GLOBAL(QString, place);
    // ramfs keeps files in the page cache only and refuses the flag.
    const int direct = place == u"ramfs"_s ? 0 : O_DIRECT;
    constexpr int Asked = O_ACCMODE | O_DIRECT | O_SYNC | O_CLOEXEC | O_APPEND;
    const auto flagsIn = [&](OpenMode mode) {
        const auto file = files().open(name, mode);
        return file ? openFlags(name) & Asked : -1;
    };
    QCOMPARE(flagsIn(OpenMode::Overwrite), O_RDWR | direct | O_DSYNC | O_CLOEXEC);
    QCOMPARE(flagsIn(OpenMode::Verify), O_RDONLY | direct | O_CLOEXEC);
    QCOMPARE(flagsIn(OpenMode::Truncate), O_WRONLY | O_CLOEXEC);
    QCOMPARE(flagsIn(OpenMode::CreateFill), O_WRONLY | direct | O_CLOEXEC);
    QCOMPARE(openFlags(name), -1); // closed with the handle
}

void tst_FilesLinux::overwriteKeepsTheInode()
{
    const QString name = path(u"file"_s);
    for (const qint64 length : {1, 512, 4097, 100000}) {
        writeFile(name, QByteArray(length, 'a'));
        const struct stat before = statusOf(name);
        {
            auto file = files().open(name, OpenMode::Overwrite);
            QVERIFY(file.ok());
            QCOMPARE(file.value()->write(QByteArray(length, 'z').constData(), length).valueOr(-1), length);
            QVERIFY(file.value()->flush().ok());
        }
        const struct stat after = statusOf(name);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_size, before.st_size);
        QCOMPARE(after.st_mode, before.st_mode);
    }
}

void tst_FilesLinux::overwriteFillsHoles()
{
    const QString name = path(u"file"_s);
    const qint64 length = 300000;
    writeFile(name, {});
    QVERIFY(QFile::resize(name, length));
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(QByteArray(length, 'z').constData(), length).valueOr(-1), length);
    QVERIFY(file.value()->flush().ok());
    file.take().reset();
    QCOMPARE(firstDifference(contentOf(name), QByteArray(length, 'z')), -1);
    QFETCH_GLOBAL(QString, place);
    if (place != u"ramfs"_s) // reports no blocks
        QVERIFY(statusOf(name).st_blocks * 512 >= length);
}

void tst_FilesLinux::createFillIsForItsOwnerAlone()
{
    const QString name = path(u"file"_s);
    QVERIFY(files().open(name, OpenMode::CreateFill).ok());
    QCOMPARE(statusOf(name).st_mode & 0777u, 0600u);
}

void tst_FilesLinux::clearReadOnlyKeepsTheOtherPermissions_data()
{
    QTest::addColumn<uint>("before");
    QTest::addColumn<uint>("after");
    QTest::newRow("nothing allowed") << 0000u << 0200u;
    QTest::newRow("readable by the owner") << 0400u << 0600u;
    QTest::newRow("readable by all") << 0444u << 0644u;
    QTest::newRow("a program") << 0555u << 0755u;
    QTest::newRow("with the identity of its owner") << 04555u << 04755u;
    QTest::newRow("writable by the group alone") << 0060u << 0260u;
    QTest::newRow("writable already") << 0640u << 0640u;
}

void tst_FilesLinux::clearReadOnlyKeepsTheOtherPermissions()
{
    QFETCH(uint, before);
    QFETCH(uint, after);
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    QCOMPARE(::chmod(encodeName(name).constData(), before), 0);
    QVERIFY(files().clearReadOnly(name).ok());
    QCOMPARE(uint(statusOf(name).st_mode & ALLPERMS), after);
}

void tst_FilesLinux::clearReadOnlyLeavesALinkAndItsTarget()
{
    writeFile(path(u"target"_s), "abc");
    QCOMPARE(::chmod(encodeName(path(u"target"_s)).constData(), 0400), 0);
    QVERIFY(makeLink(path(u"target"_s), path(u"link"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"dangling"_s)));
    QVERIFY(files().clearReadOnly(path(u"link"_s)).ok());
    QVERIFY(files().clearReadOnly(path(u"dangling"_s)).ok());
    QCOMPARE(uint(statusOf(path(u"target"_s)).st_mode & ALLPERMS), 0400u);
}

void tst_FilesLinux::contentPlaceSaysWhereItIsOverwritten()
{
    QFETCH_GLOBAL(QString, place);
    const bool isElsewhere = place == u"btrfs"_s;
    const ElsewhereReasons reasons = isElsewhere ? Elsewhere::Relocating : ElsewhereReasons();
    writeFile(path(u"file"_s), QByteArray(12345, 'a'));
    const ContentPlace expected{reasons, isElsewhere ? 12345 : 0};
    QCOMPARE(files().contentPlace(path(u"file"_s)).value(), expected);
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify})
        QCOMPARE(files().open(path(u"file"_s), mode).value()->contentPlace().value(), expected);
    QCOMPARE(files().contentPlace(m_folder).value(), (ContentPlace{reasons, -1}));
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray(12345, 'a'));
}

// The kernel's own file system, of which no properties are known.
void tst_FilesLinux::contentPlaceWhereNoExtentsAreShown()
{
    const QString file = u"/sys/class/net/lo/mtu"_s;
    const qint64 size = statusOf(file).st_size;
    QVERIFY(size > 0);
    QCOMPARE(files().contentPlace(file).value(), (ContentPlace{Elsewhere::Unknown, size}));
}

void tst_FilesLinux::idWhereNumbersMayNotLast()
{
    const auto file = files().open(u"/sys/class/net/lo/mtu"_s, OpenMode::Verify);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->id().code(), quint32(NotSupported));
}

void tst_FilesLinux::contentPlaceOpensNothingButFilesAndFolders()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(makeLink(path(u"file"_s), path(u"link"_s)));
    QVERIFY(makeLink(m_folder, path(u"to a folder"_s)));
    QCOMPARE(::mkfifo(encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    for (const QString &name : {u"link"_s, u"to a folder"_s, u"pipe"_s})
        QCOMPARE(files().contentPlace(path(name)).code(), quint32(CannotAccessFile));
}

void tst_FilesLinux::infoOfLinks()
{
    writeFile(path(u"target"_s), QByteArray(5000, 'a'));
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"target"_s), path(u"to file"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"to folder"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"to nothing"_s)));
    QVERIFY(makeLink(path(u"to itself"_s), path(u"to itself"_s)));
    for (const QString &name : {u"to file"_s, u"to folder"_s, u"to nothing"_s, u"to itself"_s}) {
        const Result<FileInfo> info = files().info(path(name));
        QVERIFY(info.ok());
        QCOMPARE(info.value().kind, FileKind::Link);
        QCOMPARE(info.value().size, 0);
    }
}

void tst_FilesLinux::openOfALinkIsRefused()
{
    writeFile(path(u"target"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"target"_s), path(u"to file"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"to folder"_s)));
    for (const OpenMode mode : EveryMode) {
        QCOMPARE(files().open(path(u"to file"_s), mode).code(), quint32(CannotAccessFile));
        QCOMPARE(files().open(path(u"to folder"_s), mode).code(), quint32(CannotAccessFile));
    }
    QCOMPARE(contentOf(path(u"target"_s)), QByteArray("abc"));
}

void tst_FilesLinux::openOfADanglingLinkCreatesNothing()
{
    QVERIFY(makeLink(path(u"none"_s), path(u"link"_s)));
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files().open(path(u"link"_s), mode).code(), quint32(CannotAccessFile));
    QVERIFY(!QFileInfo::exists(path(u"none"_s)));
}

void tst_FilesLinux::slashAfterALinkDoesNotFollowIt()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    writeFile(path(u"folder/file"_s), "abc");
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    QCOMPARE(files().info(path(u"link/"_s)).value().kind, FileKind::Link);
    QVERIFY(files().rename(path(u"link/"_s), path(u"other/"_s)).ok());
    QVERIFY(files().remove(path(u"other//"_s)).ok());
    QCOMPARE(contentOf(path(u"folder/file"_s)), QByteArray("abc"));
}

void tst_FilesLinux::linksOnTheWayAreFollowed()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    writeFile(path(u"folder/file"_s), "abc");
    QVERIFY(makeLink(path(u"folder"_s), path(u"link"_s)));
    {
        auto file = files().open(path(u"link/file"_s), OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("xyz", 3).valueOr(-1), 3);
    }
    QCOMPARE(contentOf(path(u"folder/file"_s)), QByteArray("xyz"));
    QVERIFY(files().remove(path(u"link/file"_s)).ok());
    QVERIFY(QDir(path(u"folder"_s)).isEmpty());
}

// Another thread keeps exchanging the file for a link to a file that must not be touched.
void tst_FilesLinux::openNeverFollowsALinkThatIsSwappedIn()
{
    const QByteArray precious(512, 'p');
    writeFile(path(u"precious"_s), precious);
    writeFile(path(u"victim"_s), QByteArray(512, 'a'));
    std::atomic<bool> ended{false};
    std::atomic<bool> swapping{true};
    std::thread swapper([&] {
        const QByteArray target = encodeName(path(u"precious"_s));
        const QByteArray victim = encodeName(path(u"victim"_s));
        const QByteArray spare = encodeName(path(u"spare"_s));
        const QByteArray link = encodeName(path(u"link"_s));
        while (!ended && swapping) {
            swapping = ::symlink(target.constData(), link.constData()) == 0 &&
                       ::rename(link.constData(), victim.constData()) == 0;
            const FileDescriptor made(::open(spare.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
            swapping = swapping && made.isValid() && ::ftruncate(made.get(), 512) == 0 &&
                       ::rename(spare.constData(), victim.constData()) == 0;
        }
    });
    int opened = 0;
    int refused = 0;
    const QDeadlineTimer deadline(60s);
    for (int i = 0; i < 5000 || ((opened == 0 || refused == 0) && !deadline.hasExpired()); ++i) {
        // Overwrite is left out, because each of its writes would wait for the device.
        auto file = files().open(path(u"victim"_s), i % 2 ? OpenMode::Truncate : OpenMode::CreateFill);
        if (file && file.value()->write(QByteArray(100, 'z').constData(), 100).ok())
            ++opened;
        else
            ++refused;
    }
    ended = true;
    swapper.join();
    QVERIFY(swapping);
    QVERIFY(opened > 0);
    QVERIFY(refused > 0);
    QCOMPARE(contentOf(path(u"precious"_s)), precious);
}

void tst_FilesLinux::removeOfALinkKeepsItsTarget()
{
    writeFile(path(u"target"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QVERIFY(makeLink(path(u"target"_s), path(u"to file"_s)));
    QVERIFY(makeLink(path(u"folder"_s), path(u"to folder"_s)));
    QVERIFY(makeLink(path(u"none"_s), path(u"to nothing"_s)));
    for (const QString &name : {u"to file"_s, u"to folder"_s, u"to nothing"_s}) {
        QVERIFY(files().remove(path(name)).ok());
        QCOMPARE(files().info(path(name)).code(), quint32(FileNotFound));
    }
    QCOMPARE(contentOf(path(u"target"_s)), QByteArray("abc"));
    QVERIFY(QFileInfo(path(u"folder"_s)).isDir());
}

void tst_FilesLinux::renameOfALinkKeepsItsTarget()
{
    writeFile(path(u"target"_s), "abc");
    QVERIFY(makeLink(path(u"target"_s), path(u"link"_s)));
    QVERIFY(files().rename(path(u"link"_s), path(u"other"_s)).ok());
    QCOMPARE(files().info(path(u"other"_s)).value().kind, FileKind::Link);
    QCOMPARE(contentOf(path(u"target"_s)), QByteArray("abc"));
}

void tst_FilesLinux::renameOverALinkKeepsItsTarget()
{
    writeFile(path(u"target"_s), "abc");
    writeFile(path(u"file"_s), "xyz");
    QVERIFY(makeLink(path(u"target"_s), path(u"link"_s)));
    QVERIFY(files().rename(path(u"file"_s), path(u"link"_s)).ok());
    QCOMPARE(files().info(path(u"link"_s)).value().kind, FileKind::Regular);
    QCOMPARE(contentOf(path(u"target"_s)), QByteArray("abc"));
}

void tst_FilesLinux::specialFilesAreRefused_data()
{
    QTest::addColumn<uint>("type");
    QTest::newRow("pipe") << uint(S_IFIFO);
    QTest::newRow("socket") << uint(S_IFSOCK);
    QTest::newRow("character device") << uint(S_IFCHR);
    QTest::newRow("block device") << uint(S_IFBLK);
}

void tst_FilesLinux::specialFilesAreRefused()
{
    QFETCH(uint, type);
    const bool isDevice = type == S_IFCHR || type == S_IFBLK;
    if (isDevice && ::geteuid() != 0)
        QSKIP("SKIPPED: only root makes device nodes");
    const QString name = path(u"special"_s);
    // No driver has this device number, so opening the node would fail with NotReady.
    QCOMPARE(::mknod(encodeName(name).constData(), type | 0600, isDevice ? ::makedev(240, 77) : 0), 0);
    const Result<FileInfo> info = files().info(name);
    QVERIFY(info.ok());
    QCOMPARE(info.value().kind, FileKind::Special);
    QCOMPARE(info.value().size, 0);
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files().open(name, mode).code(), quint32(CannotAccessFile));
    QVERIFY(files().rename(name, path(u"other"_s)).ok());
    QVERIFY(files().remove(path(u"other"_s)).ok());
    QVERIFY(QDir(m_folder).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
}

// Opening for writing and closing again would signal the end of the data to the reader of the pipe.
void tst_FilesLinux::pipeIsNotEvenOpened()
{
    const QString name = path(u"pipe"_s);
    QCOMPARE(::mkfifo(encodeName(name).constData(), 0600), 0);
    const FileDescriptor reader(::open(encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    QVERIFY(reader.isValid());
    for (const OpenMode mode : EveryMode)
        QVERIFY(!files().open(name, mode).ok());
    pollfd noticed = {reader.get(), POLLIN, 0};
    QCOMPARE(::poll(&noticed, 1, 0), 0);
    // The check itself detects an opening.
    {
        const FileDescriptor writer(::open(encodeName(name).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        QVERIFY(writer.isValid());
    }
    QCOMPARE(::poll(&noticed, 1, 0), 1);
    QVERIFY(noticed.revents & POLLHUP);
}

void tst_FilesLinux::namesThatAreNoText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Latin-1") << QByteArray("caf\xE9.txt");
    QTest::newRow("Chinese in another encoding") << QByteArray("\xCE\xC4\xBC\xFE");
    QTest::newRow("every byte from 0x80") << [] {
        QByteArray bytes;
        for (int byte = 0x80; byte < 0x100; ++byte)
            bytes += char(byte);
        return bytes;
    }();
    QTest::newRow("control characters") << QByteArray("a\n\t\x01\x7F");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF.txt");
}

void tst_FilesLinux::namesThatAreNoText()
{
    QFETCH(QByteArray, name);
    const QByteArray bytes = encodeName(m_folder) + '/' + name;
    {
        const FileDescriptor made(::open(bytes.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0400));
        QVERIFY(made.isValid());
        QCOMPARE(::write(made.get(), "abc", 3), 3);
    }
    const QString decoded = decodeName(bytes);
    QCOMPARE(files().info(decoded).value().size, 3);
    QVERIFY(files().clearReadOnly(decoded).ok());
    {
        auto file = files().open(decoded, OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("xyz", 3).valueOr(-1), 3);
    }
    QVERIFY(files().rename(decoded, path(u"plain"_s)).ok());
    QCOMPARE(contentOf(path(u"plain"_s)), QByteArray("xyz"));
    QVERIFY(files().rename(path(u"plain"_s), decoded).ok());
    struct stat found = {};
    QCOMPARE(::lstat(bytes.constData(), &found), 0);
    QVERIFY(files().remove(decoded).ok());
    QVERIFY(::lstat(bytes.constData(), &found) != 0);
}

void tst_FilesLinux::namesDifferInEveryByte()
{
    const QByteArrayList names{"\xC3\xA9", "\xE9", "e\xCC\x81", "\xEF\xBB\xBF\xC3\xA9", "\xC3\x89"};
    for (const QByteArray &name : names) {
        const QByteArray bytes = encodeName(m_folder) + '/' + name;
        QVERIFY(FileDescriptor(::open(bytes.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600))
                    .isValid());
    }
    int left = names.size();
    for (const QByteArray &name : names) {
        QVERIFY(files().remove(path(decodeName(name))).ok());
        --left;
        int remaining = 0;
        for (const QByteArray &other : names)
            remaining += ::access((encodeName(m_folder) + '/' + other).constData(), F_OK) == 0;
        QCOMPARE(remaining, left);
    }
}

void tst_FilesLinux::backslashIsPartOfAName()
{
    QVERIFY(QDir().mkdir(path(u"a"_s)));
    writeFile(path(u"a/b"_s), "below");
    writeFile(path(u"a\\b"_s), "beside");
    QCOMPARE(files().info(path(u"a\\b"_s)).value().size, 6);
    QVERIFY(files().remove(path(u"a\\b"_s)).ok());
    QCOMPARE(contentOf(path(u"a/b"_s)), QByteArray("below"));
}

void tst_FilesLinux::longestName()
{
    const QString name = path(QString(255, u'n'));
    writeFile(name, "abc");
    QVERIFY(files().open(name, OpenMode::Overwrite).ok());
    QVERIFY(files().rename(name, path(u"short"_s)).ok());
    QVERIFY(files().rename(path(u"short"_s), name).ok());
    QVERIFY(files().remove(name).ok());
    const QString tooLong = path(QString(256, u'n'));
    QCOMPARE(files().info(tooLong).code(), quint32(FileNameTooLong));
    QCOMPARE(files().open(tooLong, OpenMode::CreateFill).code(), quint32(FileNameTooLong));
    QCOMPARE(files().remove(tooLong).code, quint32(FileNameTooLong));
}

QUORVEX_SUITE(tst_FilesLinux, QCoreApplication)
#include "tst_fileslinux.moc"
