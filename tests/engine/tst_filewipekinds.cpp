#include "filejob.h"
#include "platform/filenames.h"
#include "support/faultplan.h"
#include "support/links.h"
#include "support/observedfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using platform::OpenMode;
using platform::Status;

namespace {

// Whether an entry exists under the name, a broken link included.
bool stands(const QString &path)
{
    struct stat status = {};
    return ::lstat(platform::encodeName(path).constData(), &status) == 0;
}

void makeRawFile(const QByteArray &path, const QByteArray &content)
{
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (fd < 0 || ::write(fd, content.constData(), static_cast<size_t>(content.size())) != content.size())
        qFatal("cannot make %s", path.constData());
    ::close(fd);
}

} // namespace

// Links, hard links, pipes, sockets, device nodes, and names that are not valid text.
class tst_FileWipeKinds : public QObject
{
    Q_OBJECT

private slots:
    void aGivenLinkIsRemovedItself();
    void aGivenLinkToAFolderIsRemovedItself_data();
    void aGivenLinkToAFolderIsRemovedItself();
    void aGivenLinkToNothingIsRemoved();
    void linksInsideAFolderAreRemovedThemselves();
    void onlyLinksCountAsEmptyFiles();
    void aLinkThatTakesTheFilesPlaceIsNotFollowed();
    void aFolderThatTurnsIntoALinkIsNotRemoved();
    void anotherFolderInAFoldersPlaceIsNotRemoved();
    void specialFilesInsideAFolderAreRemovedUnopened();
    void deviceNodesInsideAFolderAreRemovedUnopened();
    void givenSpecialFilesAreLeftOut();
    void aFileWithOtherNamesIsOverwrittenAndTold();
    void twoNamesOfOneFileAreBothTold();
    void namesThatAreNoTextAreWiped();
    void aTargetWhoseNameIsNoTextIsWiped();
};

void tst_FileWipeKinds::aGivenLinkIsRemovedItself()
{
    FileJob job;
    const QString target = job.makeFile(QStringLiteral("target"), 100);
    const QString link = job.path(QStringLiteral("link"));
    QVERIFY(makeLink(target, link));
    const QString file = job.makeFile(QStringLiteral("file"), 10);
    QVERIFY(job.run({link, file}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(2, QStringLiteral("10 B")),
                                       said::pass(1, 1), said::deleting, said::allDone(2), said::succeeded}));
    QVERIFY(!stands(link));
    QCOMPARE(contentOf(target), QByteArray(100, 'M'));
    for (const FileCall &call : job.files.calls(FaultPlan::Open))
        QCOMPARE(call.path, file);
    // Links are renamed before the deletion like files.
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 2);
}

void tst_FileWipeKinds::aGivenLinkToAFolderIsRemovedItself_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end : {"", "/", "//", "/.", "/./"})
        QTest::addRow("\"%s\"", end) << QString::fromLatin1(end);
}

void tst_FileWipeKinds::aGivenLinkToAFolderIsRemovedItself()
{
    QFETCH(QString, end);
    FileJob job;
    const QString inside = job.makeFile(QStringLiteral("folder/inside"), 100);
    const QString link = job.path(QStringLiteral("link"));
    QVERIFY(makeLink(job.path(QStringLiteral("folder")), link));
    QVERIFY(job.run({link + end}));
    QVERIFY(!stands(link));
    QCOMPARE(contentOf(inside), QByteArray(100, 'M'));
    QCOMPARE(job.files.calls(FaultPlan::Open).size(), 0);
}

void tst_FileWipeKinds::aGivenLinkToNothingIsRemoved()
{
    FileJob job;
    const QString link = job.path(QStringLiteral("link"));
    QVERIFY(makeLink(job.path(QStringLiteral("nothing")), link));
    QVERIFY(job.run({link}));
    QVERIFY(!stands(link));
    QVERIFY(job.lines().contains(said::allDone(1)));
}

void tst_FileWipeKinds::linksInsideAFolderAreRemovedThemselves()
{
    FileJob job;
    const QString target = job.makeFile(QStringLiteral("target"), 100);
    const QString inside = job.makeFile(QStringLiteral("folder/inside"), 100);
    job.makeFile(QStringLiteral("t/file"), 10);
    QVERIFY(makeLink(target, job.path(QStringLiteral("t/to a file"))));
    QVERIFY(makeLink(job.path(QStringLiteral("folder")), job.path(QStringLiteral("t/to a folder"))));
    QVERIFY(makeLink(QStringLiteral(".."), job.path(QStringLiteral("t/upwards"))));
    QVERIFY(makeLink(QStringLiteral("."), job.path(QStringLiteral("t/to itself"))));
    QVERIFY(makeLink(QStringLiteral("/nothing here"), job.path(QStringLiteral("t/to nothing"))));
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    QVERIFY(job.lines().contains(said::preparing(6, QStringLiteral("10 B"))));
    QVERIFY(job.lines().contains(said::allDone(6)));
    QVERIFY(!stands(job.path(QStringLiteral("t"))));
    QCOMPARE(contentOf(target), QByteArray(100, 'M'));
    QCOMPARE(contentOf(inside), QByteArray(100, 'M'));
    for (const FileCall &call : job.files.calls(FaultPlan::Open))
        QCOMPARE(call.path, job.path(QStringLiteral("t/file")));
}

void tst_FileWipeKinds::onlyLinksCountAsEmptyFiles()
{
    FileJob job;
    const QString link = job.path(QStringLiteral("link"));
    QVERIFY(makeLink(job.makeFile(QStringLiteral("target"), 100), link));
    QVERIFY(job.run({link}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(1, QStringLiteral("0 B")),
                                       said::allEmpty, said::deleting, said::allDone(1), said::succeeded}));
}

void tst_FileWipeKinds::aLinkThatTakesTheFilesPlaceIsNotFollowed()
{
    // The file is replaced between the last check and the opening, a gap that cannot be closed.
    FileJob job;
    const QString victim = job.makeFile(QStringLiteral("victim"), 10);
    const QString file = job.makeFile(QStringLiteral("file"), 10);
    bool swapped = false;
    job.files.hook = [&](const FileCall &call) {
        if (!swapped && call.kind == FaultPlan::Open) {
            swapped = QFile::remove(file) && makeLink(victim, file);
        }
        return Status();
    };
    QVERIFY(!job.run({file}));
    QVERIFY(swapped);
    QVERIFY(job.lines().contains(said::cannotOpen(file)));
    QCOMPARE(contentOf(victim), QByteArray(10, 'M'));
}

void tst_FileWipeKinds::aFolderThatTurnsIntoALinkIsNotRemoved()
{
    FileJob job;
    const QString victim = job.makeFile(QStringLiteral("victims/victim"), 10);
    job.makeFile(QStringLiteral("t/file"), 10);
    const QString folder = job.path(QStringLiteral("t"));
    bool swapped = false;
    job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Info && call.path == folder &&
            !QFileInfo::exists(folder + QStringLiteral("/file")))
            swapped = QDir().rmdir(folder) && makeLink(job.path(QStringLiteral("victims")), folder);
        return Status();
    };
    QVERIFY(job.run({folder}));
    QVERIFY(swapped);
    QVERIFY(stands(folder));
    QCOMPARE(contentOf(victim), QByteArray(10, 'M'));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, folder}}));
}

void tst_FileWipeKinds::anotherFolderInAFoldersPlaceIsNotRemoved()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/file"), 10);
    const QString folder = job.path(QStringLiteral("t"));
    bool swapped = false;
    job.files.hook = [&](const FileCall &call) {
        if (!swapped && call.kind == FaultPlan::Info && call.path == folder &&
            !QFileInfo::exists(folder + QStringLiteral("/file")))
            swapped = QFile::rename(folder, job.path(QStringLiteral("away"))) && QDir().mkdir(folder);
        return Status();
    };
    QVERIFY(job.run({folder}));
    QVERIFY(swapped);
    QVERIFY(stands(folder));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, folder}}));
}

void tst_FileWipeKinds::specialFilesInsideAFolderAreRemovedUnopened()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/file"), 10);
    const QString pipe = job.path(QStringLiteral("t/pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QByteArray socketPath = QFile::encodeName(job.path(QStringLiteral("t/s")));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    QVERIFY(static_cast<size_t>(socketPath.size()) < sizeof(address.sun_path));
    memcpy(address.sun_path, socketPath.constData(), static_cast<size_t>(socketPath.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QVERIFY(fd >= 0);
    QCOMPARE(::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);

    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    ::close(fd);
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(3, QStringLiteral("10 B")),
                                       said::pass(1, 1), said::deleting, said::allDone(3), said::succeeded}));
    QVERIFY(!stands(job.path(QStringLiteral("t"))));
    for (const FileCall &call : job.files.calls(FaultPlan::Open))
        QCOMPARE(call.path, job.path(QStringLiteral("t/file")));
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 3);
}

void tst_FileWipeKinds::deviceNodesInsideAFolderAreRemovedUnopened()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/file"), 10);
    // The null device, so that a write would do no damage.
    const QByteArray node = QFile::encodeName(job.path(QStringLiteral("t/node")));
    if (::mknod(node.constData(), S_IFCHR | 0600, makedev(1, 3)) != 0)
        QSKIP("SKIPPED: making a device node needs root");
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    QVERIFY(job.lines().contains(said::allDone(2)));
    QVERIFY(!stands(job.path(QStringLiteral("t"))));
    for (const FileCall &call : job.files.calls(FaultPlan::Open))
        QCOMPARE(call.path, job.path(QStringLiteral("t/file")));
}

void tst_FileWipeKinds::givenSpecialFilesAreLeftOut()
{
    FileJob job;
    const QString pipe = job.path(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString file = job.makeFile(QStringLiteral("file"), 10);
    QVERIFY(job.run({pipe, file}));
    QVERIFY(job.lines().contains(said::allDone(1)));
    QVERIFY(stands(pipe));
    FileJob alone;
    const QString other = alone.path(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(other).constData(), 0600), 0);
    QVERIFY(!alone.run({other}));
    QCOMPARE(alone.lines(), (QStringList{said::scanning, said::nothingFound, said::failed}));
}

void tst_FileWipeKinds::aFileWithOtherNamesIsOverwrittenAndTold()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("file"), 10);
    for (const char *name : {"second", "third"})
        QCOMPARE(::link(QFile::encodeName(file).constData(),
                        QFile::encodeName(job.path(QString::fromLatin1(name))).constData()),
                 0);
    job.task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    QVERIFY(job.run({file}));
    const QString told = QStringLiteral("1 文件还有 2 个其他硬链接: ") + file;
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, told, said::preparing(1, QStringLiteral("10 B")), said::pass(1, 2),
                          said::pass(2, 2), said::deleting, said::allDone(1), said::succeeded}));
    // The other names stay, but their shared content is gone.
    QCOMPARE(contentOf(job.path(QStringLiteral("second"))), QByteArray());
}

void tst_FileWipeKinds::twoNamesOfOneFileAreBothTold()
{
    FileJob job;
    const QString one = job.makeFile(QStringLiteral("one"), 10);
    const QString two = job.path(QStringLiteral("two"));
    QCOMPARE(::link(QFile::encodeName(one).constData(), QFile::encodeName(two).constData()), 0);
    QVERIFY(job.run({one, two}));
    QCOMPARE(job.lines().count(QStringLiteral("1 文件还有 1 个其他硬链接: ") + one), 1);
    QCOMPARE(job.lines().count(QStringLiteral("1 文件还有 1 个其他硬链接: ") + two), 1);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeKinds::namesThatAreNoTextAreWiped()
{
    FileJob job;
    const QByteArray folder = QFile::encodeName(job.makeFolder(QStringLiteral("t"))) + '/';
    QByteArray lastContent;
    job.files.hook = [&lastContent](const FileCall &call) {
        if (call.kind == FaultPlan::Open && call.mode == OpenMode::Truncate) {
            const int fd = ::open(platform::encodeName(call.path).constData(), O_RDONLY | O_CLOEXEC);
            QByteArray content(20, 'x');
            const ssize_t count = ::read(fd, content.data(), 20);
            lastContent = content.first(std::max<qsizetype>(count, 0));
            ::close(fd);
        }
        return Status();
    };
    // Latin-1, a cut UTF-8 sequence and an encoded surrogate, in names of files and of a folder.
    makeRawFile(folder + "caf\xe9", QByteArray(10, 'M'));
    makeRawFile(folder + "\xe4\xb8", QByteArray(10, 'M'));
    makeRawFile(folder + "\xed\xb3\xa9", QByteArray(10, 'M'));
    QCOMPARE(::mkdir((folder + "d\xff").constData(), 0700), 0);
    makeRawFile(folder + "d\xff/in\xfe", QByteArray(10, 'M'));
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    QVERIFY(job.lines().contains(said::preparing(4, QStringLiteral("40 B"))));
    QCOMPARE(job.files.opened(OpenMode::Overwrite).size(), 4);
    QCOMPARE(lastContent, QByteArray(10, '\0'));
    QVERIFY(!stands(job.path(QStringLiteral("t"))));
}

void tst_FileWipeKinds::aTargetWhoseNameIsNoTextIsWiped()
{
    FileJob job;
    const QByteArray path = QFile::encodeName(job.path({})) + "/caf\xe9";
    makeRawFile(path, QByteArray(10, 'M'));
    makeRawFile(QFile::encodeName(job.path({})) + "/caf", QByteArray(10, 'M'));
    const QString target = platform::decodeName(path);
    QVERIFY(job.run({target}));
    QVERIFY(job.lines().contains(said::preparing(1, QStringLiteral("10 B"))));
    QVERIFY(!stands(target));
    QCOMPARE(contentOf(job.path(QStringLiteral("caf"))), QByteArray(10, 'M'));
}

QUORVEX_SUITE(tst_FileWipeKinds, QCoreApplication)
#include "tst_filewipekinds.moc"
