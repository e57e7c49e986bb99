#include "cli/programrun.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QRandomGenerator>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;

// The program itself, started as by a shell.
class tst_CliProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void itTellsItsVersion();
    void itLinksNoWindows();
    void anImageIsErasedToTheLastByte();
    void anotherDataFolderLeavesTheUsersAlone();
    void theReportNamesTheComputer();
    void withoutATerminalItRefuses();
    void aPipedWordIsNoConfirmation();
    void onATerminalItAsksAndShowsProgress();
    void interruptAtTheQuestionCancels();
    void aSignalCancelsTheJob_data();
    void aSignalCancelsTheJob();
    void impatienceDoesNotChangeTheEnd();
    void interruptIsHeardInTheBackgroundOfAShell();
    void hangUpIsLeftAloneUnderNohup();
    void aStopAtAnyMomentIsTold();
    void fewOpenFilesAreEnough();
    void aReaderThatGoesAwayDoesNotBreakTheJob();
    void aFullDiskUnderTheOutputIsAFailure();
    void aReportGoesThroughAPipe();
    void diagnosticsAreSilentUnlessWanted();
    void aFileWithAnUndecodableNameIsErased();
    void anUndecodableImageIsErased();
    void theLogGoesIntoTheUsersFolder();

private:
    QByteArray image(qint64 size = 1 << 20)
    {
        return writeFile(m_folder->filePath(u"disk.img"_s), QByteArray(size, 'x')).toUtf8();
    }
    QByteArray content(const QByteArray &path) const
    {
        const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
        QFile file;
        return file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle) ? file.readAll()
                                                                                  : QByteArray();
    }
    bool exists(const QByteArray &path) const { return ::access(path.constData(), F_OK) == 0; }
    QByteArray inFolder(const QByteArray &name) const { return m_folder->path().toUtf8() + '/' + name; }
    void writeBytes(const QByteArray &path, const QByteArray &bytes) const
    {
        const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        if (::write(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size())
            qFatal("no file");
        ::close(descriptor);
    }
    // Enough passes over a large enough image for a signal in the first pass to arrive long before the end.
    QByteArrayList longJob()
    {
        return {"wipe",  "disk",     "0",       "--image",     image(64 << 20),
                "--yes", "--method", "gutmann", "--buffer-mb", "1"};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QJsonObject lastEvent(const QByteArray &out)
{
    return QJsonDocument::fromJson(out.trimmed().split('\n').constLast()).object();
}

// Sends each signal once, as soon as the text appears.
std::function<void(const QByteArray &, pid_t)> sendAt(const QByteArray &text, QList<int> signalNumbers)
{
    return [text, signalNumbers](const QByteArray &out, pid_t process) mutable {
        if (!out.contains(text))
            return;
        for (const int number : std::as_const(signalNumbers))
            ::kill(process, number);
        signalNumbers.clear();
    };
}

} // namespace

void tst_CliProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_CliProgram::itTellsItsVersion()
{
    ProgramRun run;
    run({"--version"});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, QByteArray("Quorvex 5.0\n"));
    QCOMPARE(run.err, QByteArray());
}

// Servers have no window system. Certificates need Qt's fonts and painting, but no widgets.
void tst_CliProgram::itLinksNoWindows()
{
    QProcess ldd;
    ldd.start(u"ldd"_s, {QStringLiteral(QUORVEX_CLI)});
    QVERIFY(ldd.waitForFinished());
    const QByteArray libraries = ldd.readAllStandardOutput();
    QVERIFY(libraries.contains("libc.so"));
    QVERIFY2(!libraries.contains("Widgets"), libraries.constData());
    QVERIFY2(!libraries.contains("PrintSupport"), libraries.constData());
}

void tst_CliProgram::anImageIsErasedToTheLastByte()
{
    const QByteArray path = image(5'000'700); // not a multiple of the sector size
    ProgramRun run;
    run({"wipe", "disk", path, "--image", path, "--yes"});
    QCOMPARE(run.code, 0);
    QCOMPARE(content(path), QByteArray(5'000'700, '\0'));
    QCOMPARE(run.err, QByteArray());
    QVERIFY(run.out.trimmed().split('\n').constLast().startsWith("DONE: "));
    QVERIFY(!run.out.contains('\r'));
}

void tst_CliProgram::anotherDataFolderLeavesTheUsersAlone()
{
    const QByteArray path = image();
    ProgramRun run;
    run.environment = {"XDG_DATA_HOME=" + inFolder("home")};
    run({"wipe", "disk", "0", "--image", path, "--yes", "--data-dir", inFolder("data")});
    QCOMPARE(run.code, 0);
    QVERIFY(!QDir(QFile::decodeName(inFolder("home"))).exists());
    const QStringList kept = QDir(QFile::decodeName(inFolder("data"))).entryList(QDir::Files);
    QCOMPARE(kept, (QStringList{u"quorvex.db"_s, u"quorvex.log"_s}));
}

void tst_CliProgram::theReportNamesTheComputer()
{
    const QByteArray path = image();
    const QByteArray report = inFolder("r.json");
    ProgramRun run;
    run.environment = {"COMPUTERNAME="};
    run({"wipe", "disk", "0", "--image", path, "--yes", "--report", report});
    QCOMPARE(run.code, 0);
    const QJsonObject json = QJsonDocument::fromJson(content(report)).object();
    QVERIFY(!QSysInfo::machineHostName().isEmpty());
    QCOMPARE(json.value(u"computerName"), QJsonValue(QSysInfo::machineHostName()));

    ProgramRun named;
    named.environment = {"COMPUTERNAME=WORKSTATION"};
    named({"wipe", "disk", "0", "--image", path, "--yes", "--report", report});
    QCOMPARE(named.code, 0);
    QCOMPARE(QJsonDocument::fromJson(content(report)).object().value(u"computerName"),
             QJsonValue(u"WORKSTATION"_s));
}

void tst_CliProgram::withoutATerminalItRefuses()
{
    const QByteArray path = image();
    ProgramRun run;
    run({"wipe", "disk", "0", "--image", path});
    QCOMPARE(run.code, 3);
    QCOMPARE(content(path), QByteArray(1 << 20, 'x'));
    QCOMPARE(run.err.count('\n'), 1);
}

void tst_CliProgram::aPipedWordIsNoConfirmation()
{
    const QByteArray path = image();
    ProgramRun run;
    run.input = "ERASE\n";
    run({"wipe", "disk", "0", "--image", path});
    QCOMPARE(run.code, 3);
    QCOMPARE(content(path), QByteArray(1 << 20, 'x'));
}

void tst_CliProgram::onATerminalItAsksAndShowsProgress()
{
    const QByteArray path = image(16 << 20);
    ProgramRun run;
    run.onTerminal = true;
    run.input = "ERASE\n";
    run({"wipe", "disk", "0", "--image", path, "--buffer-mb", "1"});
    QCOMPARE(run.code, 0);
    QCOMPARE(content(path), QByteArray(16 << 20, '\0'));
    QVERIFY(run.out.contains("Type ERASE to destroy it: "));
    QVERIFY(run.out.contains("\r  6%  pass 1/1")); // the first of 16 writes
    // Every log line begins where the progress line was cleared.
    const QList<QByteArray> lines = run.out.split('\n');
    for (const QByteArray &line : lines) {
        if (line.contains("[info]"))
            QVERIFY2(line.startsWith("[info]") || line.contains("\r[info]"), line.constData());
    }
    QVERIFY(run.out.trimmed().split('\n').constLast().contains("DONE: "));

    image(16 << 20);
    ProgramRun refused;
    refused.onTerminal = true;
    refused.input = "erase\n";
    refused({"wipe", "disk", "0", "--image", path});
    QCOMPARE(refused.code, 3);
    QCOMPARE(content(path), QByteArray(16 << 20, 'x'));

    ProgramRun endOfInput;
    endOfInput.onTerminal = true;
    endOfInput.input = "\x04"; // Ctrl+D
    endOfInput({"wipe", "disk", "0", "--image", path});
    QCOMPARE(endOfInput.code, 3);
}

void tst_CliProgram::interruptAtTheQuestionCancels()
{
    const QByteArray path = image();
    ProgramRun run;
    run.onTerminal = true;
    run.onOutput = sendAt("to destroy it: ", {SIGINT});
    run({"wipe", "disk", "0", "--image", path});
    QCOMPARE(run.code, 4);
    QCOMPARE(content(path), QByteArray(1 << 20, 'x'));
    QVERIFY(run.out.contains("cancelled, nothing was written"));
}

void tst_CliProgram::aSignalCancelsTheJob_data()
{
    QTest::addColumn<QList<int>>("signalNumbers");
    QTest::newRow("interrupt") << QList<int>{SIGINT};
    QTest::newRow("terminate") << QList<int>{SIGTERM};
    QTest::newRow("hang up") << QList<int>{SIGHUP};
    QTest::newRow("several") << QList<int>{SIGINT, SIGTERM, SIGINT};
}

void tst_CliProgram::aSignalCancelsTheJob()
{
    QFETCH(const QList<int>, signalNumbers);
    ProgramRun run;
    run.onOutput = sendAt("\"progress\"", signalNumbers);
    run(longJob() + QByteArrayList{"--json", "--report", inFolder("r.json")});
    QCOMPARE(run.signalNumber, 0);
    QCOMPARE(run.code, 4);
    const QJsonObject finished = lastEvent(run.out);
    QCOMPARE(finished.value(u"event"), QJsonValue(u"finished"_s));
    QCOMPARE(finished.value(u"cancelled"), QJsonValue(true));
    QCOMPARE(finished.value(u"success"), QJsonValue(false));
    const QJsonObject report = QJsonDocument::fromJson(content(inFolder("r.json"))).object();
    QVERIFY(report.value(u"status").toInt() == 4 || report.value(u"status").toInt() == 5);
    QCOMPARE(report, finished.value(u"report").toObject());
}

void tst_CliProgram::impatienceDoesNotChangeTheEnd()
{
    ProgramRun run;
    // Called with every line, including the last one.
    run.onOutput = [](const QByteArray &out, pid_t process) {
        if (out.contains("\"progress\""))
            ::kill(process, SIGINT);
    };
    run(longJob() + QByteArrayList{"--json"});
    QCOMPARE(run.signalNumber, 0);
    QCOMPARE(run.code, 4);
    QCOMPARE(lastEvent(run.out).value(u"event"), QJsonValue(u"finished"_s));
}

void tst_CliProgram::interruptIsHeardInTheBackgroundOfAShell()
{
    // A shell makes programs that it starts with "&" ignore SIGINT, and they inherit this.
    ::signal(SIGINT, SIG_IGN);
    ProgramRun run;
    run.onOutput = sendAt("\"progress\"", {SIGINT});
    run(longJob() + QByteArrayList{"--json"});
    ::signal(SIGINT, SIG_DFL);
    QCOMPARE(run.code, 4);
}

// Before the program's first line no handler receives the signal, but no data has been touched either.
void tst_CliProgram::aStopAtAnyMomentIsTold()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    // The duration of a run depends on the machine, so a first run determines the moments.
    const QByteArrayList job = {"--yes", "--buffer-mb", "1", "--method", "gutmann", "--json"};
    const auto begin = std::chrono::steady_clock::now();
    ProgramRun whole;
    whole(QByteArrayList{"wipe", "disk", "0", "--image", image(4 << 20)} + job);
    QCOMPARE(whole.code, 0);
    const auto length =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
    int told = 0;
    for (int i = 0; i < 30 || told == 0; ++i) {
        const QByteArray path = image(4 << 20);
        const int delay = random.bounded(static_cast<int>(length.count()));
        ProgramRun run;
        std::thread sender;
        run.onStart = [&sender, delay](pid_t child) {
            // After the process has ended its number may be reused.
            const int process = static_cast<int>(::syscall(SYS_pidfd_open, child, 0));
            sender = std::thread([process, delay] {
                std::this_thread::sleep_for(std::chrono::microseconds(delay));
                ::syscall(SYS_pidfd_send_signal, process, SIGTERM, nullptr, 0);
                ::close(process);
            });
        };
        run(QByteArrayList{"wipe", "disk", "0", "--image", path} + job);
        sender.join();
        const QByteArray where =
            "after " + QByteArray::number(delay) + " us: " + run.out.right(300) + run.err;
        if (run.code == 0)
            continue; // already ended
        if (run.signalNumber != 0) {
            QVERIFY2(run.out.isEmpty() && run.err.isEmpty(), where.constData());
            QVERIFY2(content(path) == QByteArray(4 << 20, 'x'), where.constData());
            continue;
        }
        QVERIFY2(run.code == 4, where.constData());
        QVERIFY2(lastEvent(run.out).value(u"outcome") == QJsonValue(u"cancelled"_s), where.constData());
        ++told;
    }
}

// The limit is below one descriptor for each thread and folder.
void tst_CliProgram::fewOpenFilesAreEnough()
{
    const QByteArray folder = inFolder("many");
    QCOMPARE(::mkdir(folder.constData(), 0700), 0);
    for (int i = 0; i < 40; ++i) {
        const QByteArray inner = folder + '/' + QByteArray::number(i);
        QCOMPARE(::mkdir(inner.constData(), 0700), 0);
        writeBytes(inner + "/a", QByteArray(5000, 'x'));
    }
    ProgramRun run;
    run.openFiles = 24;
    run({"wipe", "files", folder, "--yes", "--threads", "32"});
    QVERIFY2(run.code == 0, (run.out + run.err).constData());
    QVERIFY(!exists(folder));
}

void tst_CliProgram::hangUpIsLeftAloneUnderNohup()
{
    ::signal(SIGHUP, SIG_IGN);
    ProgramRun run;
    run.onOutput = sendAt("\"progress\"", {SIGHUP});
    run({"wipe", "disk", "0", "--image", image(4 << 20), "--yes", "--buffer-mb", "1", "--json"});
    ::signal(SIGHUP, SIG_DFL);
    QCOMPARE(run.code, 0);
}

void tst_CliProgram::aReaderThatGoesAwayDoesNotBreakTheJob()
{
    const QByteArray path = image(8 << 20);
    ProgramRun run;
    run.closeOutput = true;
    run({"wipe", "disk", "0", "--image", path, "--yes"});
    QCOMPARE(run.signalNumber, 0);
    QCOMPARE(run.code, 5);
    QCOMPARE(content(path), QByteArray(8 << 20, '\0'));
}

void tst_CliProgram::aFullDiskUnderTheOutputIsAFailure()
{
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QString::fromUtf8(QUORVEX_CLI), {u"methods"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 5);
    QVERIFY(process.readAllStandardError().contains("output"));
}

void tst_CliProgram::aReportGoesThroughAPipe()
{
    const QByteArray pipe = inFolder("pipe");
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    auto reader = std::async(std::launch::async, [this, &pipe] { return content(pipe); });
    ProgramRun run;
    run({"wipe", "disk", "0", "--image", image(1 << 20), "--yes", "--report", pipe});
    if (run.code != 0)
        ::close(::open(pipe.constData(), O_WRONLY | O_NONBLOCK)); // otherwise its reader waits forever
    const QJsonObject report = QJsonDocument::fromJson(reader.get()).object();
    QVERIFY2(run.code == 0, run.err.constData());
    QCOMPARE(report.value(u"status"), QJsonValue(3));

    // The job succeeds, but its report cannot be written.
    ProgramRun full;
    full({"wipe", "disk", "0", "--image", image(1 << 20), "--yes", "--report", "/dev/full"});
    QCOMPARE(full.code, 5);
    QVERIFY(full.err.contains("/dev/full could not be written"));
}

void tst_CliProgram::diagnosticsAreSilentUnlessWanted()
{
    const QByteArray path = image();
    ProgramRun silent;
    silent({"wipe", "disk", "0", "--image", path, "--yes"});
    QCOMPARE(silent.code, 0);
    QCOMPARE(silent.err, QByteArray());
    ProgramRun wanted;
    wanted.environment = {"QUORVEX_DEBUG=1"};
    wanted({"wipe", "disk", "0", "--image", path, "--yes"});
    QCOMPARE(wanted.code, 0);
    QVERIFY(wanted.err.contains("=== WipeEngine::start() ==="));
}

void tst_CliProgram::aFileWithAnUndecodableNameIsErased()
{
    // "été" and "ß" in Latin-1 are not valid UTF-8.
    const QByteArray direct = inFolder("\xE9t\xE9.txt");
    const QByteArray folder = inFolder("folder\xDF");
    QCOMPARE(::mkdir(folder.constData(), 0700), 0);
    writeBytes(direct, "secret");
    writeBytes(folder + "/in\xE9side", "secret");
    ProgramRun run;
    run({"wipe", "files", direct, folder, "--yes"});
    QCOMPARE(run.code, 0);
    QVERIFY(!exists(direct));
    QVERIFY(!exists(folder));
    QVERIFY(QString::fromUtf8(run.out).toUtf8() == run.out); // still valid UTF-8

    ProgramRun missing;
    missing({"wipe", "files", direct, "--yes"});
    QCOMPARE(missing.code, 3);
    QVERIFY(missing.err.contains("File not found"));
}

void tst_CliProgram::anUndecodableImageIsErased()
{
    const QByteArray path = inFolder("im\xE9ge.img");
    writeBytes(path, QByteArray(65536, 'x'));
    ProgramRun run;
    run({"wipe", "disk", "0", "--image", path, "--yes"});
    QCOMPARE(run.code, 0);
    QCOMPARE(content(path), QByteArray(65536, '\0'));
    QCOMPARE(::unlink(path.constData()), 0); // QTemporaryDir cannot name it when it removes the folder
}

void tst_CliProgram::theLogGoesIntoTheUsersFolder()
{
    const QByteArray home = inFolder("home");
    ProgramRun run;
    run.environment = {"XDG_DATA_HOME=" + home};
    run({"wipe", "disk", "0", "--image", image(), "--yes"});
    QCOMPARE(run.code, 0);
    QVERIFY(content(home + "/Veltrano/Quorvex/quorvex.log").contains("Job succeeded"));

    ProgramRun elsewhere;
    elsewhere({"wipe", "disk", "0", "--image", image(), "--yes", "--data-dir", inFolder("new/data")});
    QCOMPARE(elsewhere.code, 0);
    QVERIFY(content(inFolder("new/data/quorvex.log")).contains("Job succeeded"));
}

QUORVEX_SUITE(tst_CliProgram, QCoreApplication)
#include "tst_cliprogram.moc"
