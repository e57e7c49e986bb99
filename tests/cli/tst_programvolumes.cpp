#include "model/units.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

// The program, started as by a script, on mounted volumes of the test.
class tst_ProgramVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aLimitOfFileSizesEndsInAReport();
    void whatAKilledJobLeftIsRemovedByTheNext();
    void aSecondProgramIsRefused();
    void holesThatDoNotFitAreRefused();
    void theFileBelowADeviceIsRefused_data();
    void theFileBelowADeviceIsRefused();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LoopMount> m_volume;
};

namespace {

// Started by the constructor, with its own data folder.
struct Program
{
    explicit Program(const LoopMount &volume, const QString &before = {})
        : Program(QStringList{u"free"_s, volume.mountPoint()}, before)
    {}
    explicit Program(const QStringList &what, const QString &before = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        // The shell sets limits and then replaces itself by the program.
        process.start(u"/bin/sh"_s,
                      QStringList{u"-c"_s, before + u" exec \"$@\""_s, u"sh"_s, QStringLiteral(QUORVEX_CLI),
                                  u"wipe"_s} +
                          what +
                          QStringList{u"--yes"_s, u"--buffer-mb"_s, u"1"_s, u"--report"_s,
                                      home.filePath(u"report.json"_s)},
                      QIODevice::ReadOnly);
    }
    int code()
    {
        process.waitForFinished(-1);
        output += process.readAll();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    QJsonObject report() const
    {
        return QJsonDocument::fromJson(contentOf(home.filePath(u"report.json"_s))).object();
    }

    QTemporaryDir home;
    QProcess process;
    QByteArray output;
};

QStringList below(const LoopMount &volume, const QString &pattern)
{
    QStringList found;
    const QDir root(volume.mountPoint());
    for (const QString &name : root.entryList({u".quorvex_temp_*"_s}, QDir::Dirs | QDir::Hidden)) {
        for (const QString &entry :
             QDir(root.filePath(name)).entryList({pattern}, QDir::AllEntries | QDir::NoDotAndDotDot))
            found.append(root.filePath(name) + u'/' + entry);
    }
    return found;
}

} // namespace

void tst_ProgramVolumes::initTestCase()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_ProgramVolumes::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_volume = std::make_unique<LoopMount>(m_folder->path(), LoopMount::Options{.sizeBytes = 300 * MiB});
    QVERIFY2(m_volume->isReady(), qPrintable(m_volume->error()));
}

void tst_ProgramVolumes::cleanup()
{
    m_volume.reset();
    m_folder.reset();
}

void tst_ProgramVolumes::theFileBelowADeviceIsRefused_data()
{
    QTest::addColumn<QStringList>("what"); // %1: the file, %2: its folder
    QTest::newRow("file") << QStringList{u"files"_s, u"%1"_s};
    QTest::newRow("folder") << QStringList{u"files"_s, u"%2"_s};
    QTest::newRow("drive") << QStringList{u"disk"_s, u"%1"_s, u"--image"_s, u"%1"_s, u"--only-images"_s};
}

void tst_ProgramVolumes::theFileBelowADeviceIsRefused()
{
    QFETCH(QStringList, what);
    writeFile(m_volume->mountPoint() + u"/kept"_s, "kept");
    const QString image = m_volume->image();
    what.replaceInStrings(u"%1"_s, image).replaceInStrings(u"%2"_s, QFileInfo(image).path());
    Program program(what);
    QCOMPARE(program.code(), 3);
    QVERIFY2(
        program.output.contains(u"The loop device %1 is attached to "_s.arg(m_volume->device()).toUtf8()),
        program.output.constData());
    QVERIFY(QFile::exists(image));
    QCOMPARE(contentOf(m_volume->mountPoint() + u"/kept"_s), QByteArray("kept"));
}

void tst_ProgramVolumes::aLimitOfFileSizesEndsInAReport()
{
    // ulimit counts blocks of 512 bytes in a POSIX shell. The limit is below a buffer and above the size of
    // database and log.
    Program program(*m_volume, u"ulimit -f 1500;"_s);
    QCOMPARE(program.code(), 1);
    QVERIFY2(program.output.contains("PARTLY DONE"), program.output.constData());
    QVERIFY(program.output.contains("free space was left that could not be filled"));
    QCOMPARE(program.report().value(u"operationType"), QJsonValue(2));
    QVERIFY(below(*m_volume, u"*"_s).isEmpty());
}

void tst_ProgramVolumes::whatAKilledJobLeftIsRemovedByTheNext()
{
    // The program is killed in the last phase, after it has made some files. That phase is short, so another
    // run is killed where the phase was already over.
    QStringList left;
    while (left.isEmpty()) {
        Program killed(*m_volume);
        QVERIFY(killed.process.waitForStarted(-1));
        while (below(*m_volume, u"mft_clean"_s).isEmpty() && !killed.process.waitForFinished(1)) {
        }
        killed.process.kill();
        killed.code();
        left = below(*m_volume, u"mft_clean"_s);
    }
    QCOMPARE(left.size(), 1);

    Program next(*m_volume);
    const int code = next.code();
    QVERIFY2(code == 1, next.output.constData()); // the reserve is large relative to this small volume
    QVERIFY(next.output.contains("PARTLY DONE"));
    QVERIFY(!QFileInfo::exists(left.first()));
    QVERIFY(below(*m_volume, u"*"_s).isEmpty());
}

void tst_ProgramVolumes::aSecondProgramIsRefused()
{
    Program first(*m_volume);
    QVERIFY(first.process.waitForStarted(-1));
    while (below(*m_volume, u"fill_*"_s).isEmpty() && !first.process.waitForFinished(1)) {
    }
    // The first process is stopped, so that it cannot end before the second has begun.
    const auto process = static_cast<pid_t>(first.process.processId());
    QVERIFY(process > 0 && ::kill(process, SIGSTOP) == 0);
    Program second(*m_volume);
    const int code = second.code();
    const QStringList files = below(*m_volume, u"fill_*"_s);
    ::kill(process, SIGCONT);
    QVERIFY2(code == 3, second.output.constData());
    QVERIFY2(second.output.contains("Another job is erasing the free space of this volume"),
             second.output.constData());
    QVERIFY(!QFileInfo::exists(second.home.filePath(u"report.json"_s)));
    QVERIFY(!files.isEmpty());
    const int firstCode = first.code();
    QVERIFY2(firstCode == 1 && first.output.contains("PARTLY DONE"), first.output.constData());
    QVERIFY(!first.output.contains("could not be filled"));
}

void tst_ProgramVolumes::holesThatDoNotFitAreRefused()
{
    QVERIFY(QDir(m_volume->mountPoint()).mkpath(u"folder/sub"_s));
    const QString folder = m_volume->mountPoint() + u"/folder"_s;
    const QString other = writeFile(folder + u"/other"_s, QByteArray(5000, 'o'));
    // Each file alone fits into the free space, but not both.
    const QStringList sparse{writeFile(folder + u"/a"_s, "beginning"), folder + u"/sub/b"_s};
    writeFile(sparse.last(), "beginning");
    for (const QString &path : sparse)
        QVERIFY(QFile::resize(path, 160 * MiB));
    const QStorageInfo before(m_volume->mountPoint());
    QVERIFY(before.bytesFree() > 160 * MiB && before.bytesFree() < 320 * MiB);

    Program program({u"files"_s, folder});
    QCOMPARE(program.code(), 3);
    QVERIFY2(program.output.contains("when they are overwritten, and only"), program.output.constData());
    QVERIFY(program.output.contains("Nothing was written."));
    QVERIFY(!program.output.contains("about to be destroyed"));
    QCOMPARE(QStorageInfo(m_volume->mountPoint()).bytesFree(), before.bytesFree());
    QCOMPARE(contentOf(other), QByteArray(5000, 'o'));
    for (const QString &path : sparse)
        QCOMPARE(contentOf(path).first(9), QByteArray("beginning"));

    // One file fits.
    Program fitting({u"files"_s, sparse.first()});
    QVERIFY2(fitting.code() == 0, fitting.output.constData());
    QVERIFY(!QFileInfo::exists(sparse.first()));
}

QUORVEX_SUITE(tst_ProgramVolumes, QCoreApplication)
#include "tst_programvolumes.moc"
