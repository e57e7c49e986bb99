#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/forwarding.h"
#include "platform/platform.h"
#include "platform/wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <future>

#ifdef Q_OS_LINUX
#include "support/largestfile.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::WholeFile;

namespace {

const QByteArray Previous = "what stood there before";

bool write(const QString &path, const QByteArray &bytes)
{
    WholeFile file(path);
    return file.open() && file.commit(bytes);
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class tst_WholeFile : public QObject
{
    Q_OBJECT
private slots:
    void aNewFileHasItsBytes();
    void aFileIsReplacedAndKeepsItsMode();
    void nothingChangesBeforeTheCommit();
    void bytesLostOnTheWayKeepWhatWasThere();
    void foldersAreRefused();
    void linksAreFollowed();
#ifdef Q_OS_LINUX
    void aFullDiskKeepsWhatWasThere();
    void aDeviceIsWrittenThrough();
    void aPipeIsWrittenThrough();
    void whatIsNoPipeAnyMoreIsNotTouched();
    void socketsAndBlockDevicesAreRefused();
#endif
};

void tst_WholeFile::aNewFileHasItsBytes()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"r.json"_s);
    QVERIFY(write(path, "{}"));
    QCOMPARE(contentOf(path), QByteArray("{}"));
    QVERIFY(!write(folder.filePath(u"no/such/folder"_s), "{}"));
    QVERIFY(!write(QString(), "{}"));
    QCOMPARE(entriesOf(folder.path()), QStringList{u"r.json"_s});
}

void tst_WholeFile::aFileIsReplacedAndKeepsItsMode()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"r.json"_s), QByteArray(100'000, 'o'));
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path, mode));
    const auto before = QFileInfo(path).permissions();
    QVERIFY(write(path, "{}"));
    QCOMPARE(contentOf(path), QByteArray("{}"));
    QCOMPARE(QFileInfo(path).permissions(), before);
    QCOMPARE(entriesOf(folder.path()), QStringList{u"r.json"_s});
}

void tst_WholeFile::nothingChangesBeforeTheCommit()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"r.json"_s), Previous);
    {
        WholeFile file(path);
        QVERIFY(file.open());
    }
    QCOMPARE(contentOf(path), Previous);
    QCOMPARE(entriesOf(folder.path()), QStringList{u"r.json"_s});
}

void tst_WholeFile::bytesLostOnTheWayKeepWhatWasThere()
{
    // A system that has accepted the bytes and fails to write them to the medium.
    class LosingFiles : public platform::ForwardingFiles
    {
    public:
        using ForwardingFiles::ForwardingFiles;
        bool isWrittenOut(const QFileDevice &) override { return false; }
    };
    auto &machine = platform::Platform::current();
    LosingFiles files(machine.files());
    platform::ForwardingPlatform losing(files, machine.folders(), machine.devices(), machine.session());
    const platform::ScopedPlatform scope(losing);
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"r.json"_s), Previous);
    QVERIFY(!write(path, "{}"));
    QCOMPARE(contentOf(path), Previous);
    QCOMPARE(entriesOf(folder.path()), QStringList{u"r.json"_s});
}

void tst_WholeFile::foldersAreRefused()
{
    const QTemporaryDir folder;
    QVERIFY(!WholeFile::isPossible(folder.path()));
    QVERIFY(!WholeFile(folder.path()).open());
    QVERIFY(WholeFile::isPossible(folder.filePath(u"new"_s)));
}

void tst_WholeFile::linksAreFollowed()
{
    const QTemporaryDir folder;
    const QString target = writeFile(folder.filePath(u"target"_s), Previous);
    const QString link = folder.filePath(u"link"_s);
    if (!makeLink(target, link))
        QSKIP("SKIPPED: the system makes no symbolic links here");
    QVERIFY(write(link, "{}"));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentOf(target), QByteArray("{}"));
}

#ifdef Q_OS_LINUX
void tst_WholeFile::aFullDiskKeepsWhatWasThere()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"r.json"_s), Previous);
    // Sizes that stay in a buffer until the file is closed, and larger ones.
    for (const qsizetype size : {1'000, 100'000}) {
        bool isWritten = true;
        {
            const LargestFile limit(100);
            isWritten = write(path, QByteArray(size, 'n'));
        }
        QVERIFY(!isWritten);
        QCOMPARE(contentOf(path), Previous);
        QCOMPARE(entriesOf(folder.path()), QStringList{u"r.json"_s});
    }
}

void tst_WholeFile::aDeviceIsWrittenThrough()
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"link"_s);
    QVERIFY(QFile::link(u"/dev/null"_s, link));
    QVERIFY(write(u"/dev/null"_s, "{}"));
    QVERIFY(write(link, "{}"));
    QVERIFY(!write(u"/dev/full"_s, "{}"));
    for (const char *device : {"/dev/null", "/dev/full"}) {
        struct stat status = {};
        QCOMPARE(::lstat(device, &status), 0);
        QVERIFY(S_ISCHR(status.st_mode));
    }
}

void tst_WholeFile::aPipeIsWrittenThrough()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QVERIFY(WholeFile(path).open()); // without a reader, and without waiting for it
    const QByteArray bytes(300'000, 'r');
    auto reader = std::async(std::launch::async, [&path] { return contentOf(path); });
    QVERIFY(write(path, bytes));
    QVERIFY(reader.get() == bytes);
    QCOMPARE(entriesOf(folder.path()), QStringList{u"pipe"_s});
}

void tst_WholeFile::whatIsNoPipeAnyMoreIsNotTouched()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    WholeFile file(path);
    QVERIFY(file.open());
    QVERIFY(QFile::remove(path));
    QVERIFY(!file.commit("{}"));
    QVERIFY(!QFile::exists(path));
    writeFile(path, Previous);
    QVERIFY(!file.commit("{}"));
    QCOMPARE(contentOf(path), Previous);
}

void tst_WholeFile::socketsAndBlockDevicesAreRefused()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"socket"_s);
    const QByteArray name = QFile::encodeName(path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    QVERIFY(name.size() < qsizetype(sizeof address.sun_path));
    std::copy(name.begin(), name.end(), std::begin(address.sun_path));
    QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    QVERIFY(!WholeFile::isPossible(path));
    QVERIFY(!WholeFile(path).open());
    ::close(listener);

    // A node without a drive; its number belongs to the range reserved for local use.
    const QString block = folder.filePath(u"block"_s);
    if (::mknod(QFile::encodeName(block).constData(), S_IFBLK | 0600, makedev(240, 0)) != 0)
        QSKIP("SKIPPED: making a device node needs root");
    QVERIFY(!WholeFile::isPossible(block));
    QVERIFY(!WholeFile(block).open());
}
#endif

QUORVEX_SUITE(tst_WholeFile, suites::NoApplication)
#include "tst_wholefile.moc"
