#include "pages.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "certificate/certificaterenderer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_LINUX
#include "support/largestfile.h"

#include <csignal>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QByteArray previous = "the certificate of before";

bool exportTo(const QString &path)
{
    return CertificateRenderer().exportToPdf(shortReport(), path);
}

bool isPdf(const QByteArray &bytes)
{
    return bytes.startsWith("%PDF-1.") && bytes.endsWith("%%EOF\n");
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

#ifdef Q_OS_LINUX
// Switches the file access of this thread to a user without rights for its lifetime, because root ignores
// permissions.
class AsNobody
{
public:
    AsNobody()
    {
        if (::geteuid() == 0)
            ::setfsuid(user);
    }
    ~AsNobody() { ::setfsuid(::geteuid()); }
    AsNobody(const AsNobody &) = delete;
    AsNobody &operator=(const AsNobody &) = delete;

    static bool give(const QString &path)
    {
        return ::geteuid() != 0 || ::chown(QFile::encodeName(path).constData(), user, gid_t(-1)) == 0;
    }

    static constexpr uid_t user = 65534;
};
#endif

} // namespace

class tst_CertificateFile : public QObject
{
    Q_OBJECT

private slots:
    void newFileIsWritten();
    void existingFileIsReplaced();
    void nameIsTakenAsItIs();
    void missingFolderFails();
    void emptyNameFails();
    void folderInThePlaceOfTheFileFails();
#ifdef Q_OS_LINUX
    void readOnlyFolderFails();
    void readOnlyFileFails();
    void fullDiskKeepsThePreviousFile();
    void killedProgramKeepsThePreviousFile();
    void deviceTakesItAndStays();
    void linkIsFollowed();
    void danglingLinkMakesItsFile();
#endif
};

void tst_CertificateFile::newFileIsWritten()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"证书 100% &.pdf"_s);
    QVERIFY(exportTo(path));
    QVERIFY(isPdf(contentOf(path)));
    QCOMPARE(entriesOf(folder.path()).size(), 1);
}

void tst_CertificateFile::existingFileIsReplaced()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"c.pdf"_s);
    writeFile(path, previous);
    QVERIFY(exportTo(path));
    QVERIFY(isPdf(contentOf(path)));
    QCOMPARE(entriesOf(folder.path()), QStringList{u"c.pdf"_s});
}

void tst_CertificateFile::nameIsTakenAsItIs()
{
    const QTemporaryDir folder;
    QVERIFY(exportTo(folder.filePath(u"certificate"_s)));
    QCOMPARE(entriesOf(folder.path()), QStringList{u"certificate"_s});
}

void tst_CertificateFile::missingFolderFails()
{
    const QTemporaryDir folder;
    QVERIFY(!exportTo(folder.filePath(u"missing/c.pdf"_s)));
    QVERIFY(entriesOf(folder.path()).isEmpty());
}

void tst_CertificateFile::emptyNameFails()
{
    QVERIFY(!exportTo(QString()));
}

void tst_CertificateFile::folderInThePlaceOfTheFileFails()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"c.pdf"_s));
    writeFile(folder.filePath(u"c.pdf/inside"_s), previous);
    QVERIFY(!exportTo(folder.filePath(u"c.pdf"_s)));
    QVERIFY(!exportTo(folder.path()));
    QCOMPARE(entriesOf(folder.path()), QStringList{u"c.pdf"_s});
    QCOMPARE(contentOf(folder.filePath(u"c.pdf/inside"_s)), previous);
}

#ifdef Q_OS_LINUX
void tst_CertificateFile::readOnlyFolderFails()
{
    const QTemporaryDir folder;
    QVERIFY(AsNobody::give(folder.path()));
    const QString path = folder.filePath(u"c.pdf"_s);
    const AsNobody nobody;
    QVERIFY(exportTo(path)); // the same user can export while the folder allows it
    writeFile(path, previous);
    QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool replaced = exportTo(path);
    const bool added = exportTo(folder.filePath(u"d.pdf"_s));
    QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(!replaced);
    QVERIFY(!added);
    QCOMPARE(contentOf(path), previous);
    QCOMPARE(entriesOf(folder.path()), QStringList{u"c.pdf"_s});
}

// Runs in a child process, which can switch to another user for good.
void tst_CertificateFile::readOnlyFileFails()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"c.pdf"_s);
    writeFile(path, previous);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QVERIFY(AsNobody::give(folder.path()));
    QVERIFY(AsNobody::give(path));
    const pid_t child = ::fork();
    if (child == 0) {
        const bool isSomebodyElse = ::geteuid() != 0 || ::setuid(AsNobody::user) == 0;
        const bool beside = isSomebodyElse && exportTo(folder.filePath(u"d.pdf"_s));
        const bool replaced = exportTo(path);
        ::_exit((beside ? 1 : 0) + (replaced ? 2 : 0));
    }
    QVERIFY(child > 0);
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 1); // only the new file beside it was written
    QCOMPARE(contentOf(path), previous);
}

void tst_CertificateFile::fullDiskKeepsThePreviousFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"c.pdf"_s);
    QVERIFY(exportTo(path));
    const qint64 size = QFileInfo(path).size();
    for (const qint64 room : {qint64(0), qint64(1), qint64(4096), size / 2, size - 512}) {
        QVERIFY(QFile::remove(path));
        writeFile(path, previous);
        bool done = false;
        {
            const LargestFile limit(room);
            done = exportTo(path);
        }
        QVERIFY2(!done, qPrintable(QString::number(room)));
        QCOMPARE(contentOf(path), previous);
        QCOMPARE(entriesOf(folder.path()), QStringList{u"c.pdf"_s});
    }
    QVERIFY(exportTo(path)); // control: nothing else prevents the export
}

// The kernel kills the program in the middle of the write.
void tst_CertificateFile::killedProgramKeepsThePreviousFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"c.pdf"_s);
    writeFile(path, previous);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        std::signal(SIGXFSZ, SIG_DFL);
        ::_exit(exportTo(path) ? 0 : 1);
    }
    QVERIFY(child > 0);
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGXFSZ);
    QCOMPARE(contentOf(path), previous);
}

void tst_CertificateFile::deviceTakesItAndStays()
{
    QVERIFY(exportTo(u"/dev/null"_s));
    QVERIFY(!exportTo(u"/dev/full"_s));
    for (const char *device : {"/dev/full", "/dev/null"}) {
        struct stat status = {};
        QCOMPARE(::lstat(device, &status), 0);
        QVERIFY(S_ISCHR(status.st_mode));
    }
}

void tst_CertificateFile::linkIsFollowed()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"real.pdf"_s);
    const QString link = folder.filePath(u"c.pdf"_s);
    writeFile(target, previous);
    QVERIFY(QFile::link(target, link));
    QVERIFY(exportTo(link));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(isPdf(contentOf(target)));
}

void tst_CertificateFile::danglingLinkMakesItsFile()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"real.pdf"_s);
    const QString link = folder.filePath(u"c.pdf"_s);
    QVERIFY(QFile::link(target, link));
    QVERIFY(exportTo(link));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(isPdf(contentOf(target)));
}
#endif

QUORVEX_SUITE(tst_CertificateFile, QGuiApplication)
#include "tst_certificatefile.moc"
