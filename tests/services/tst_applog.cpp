#include "platform/files.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "services/applog.h"
#include "support/suite.h"

#include "support/links.h"
#include "support/messagecapture.h"
#include "support/testfiles.h"
#include "support/userdata.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

#ifdef Q_OS_WIN
QT_BEGIN_NAMESPACE
extern Q_CORE_EXPORT int qt_ntfs_permission_lookup;
QT_END_NAMESPACE
#endif

using namespace Qt::StringLiterals;

namespace {
const QString timeFormat = u"yyyy-MM-dd HH:mm:ss.zzz"_s;

// The lines without time, in file order.
QStringList linesOf(const QString &path)
{
    QStringList lines = QString::fromUtf8(textOf(path)).split(u'\n');
    // The rest after the last line feed is no line.
    lines.removeLast();
    for (QString &line : lines)
        line = line.mid(timeFormat.size() + 3);
    return lines;
}

QFile::Permissions permissionsOf(const QString &path)
{
#ifdef Q_OS_WIN
    ++qt_ntfs_permission_lookup; // checks the access list, which is slow and off by default
#endif
    const QFile::Permissions permissions = QFile::permissions(path);
#ifdef Q_OS_WIN
    --qt_ntfs_permission_lookup;
#endif
    return permissions;
}

void useHome(QProcessEnvironment &environment, const QString &home)
{
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_DATA_HOME"_s, home);
}

// One run of a logging program in its own process.
struct Run
{
    Run(const QString &home, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        useHome(environment, home);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      QStringList{u"tst_applog"_s, u"--run"_s} + arguments);
    }
    int exitCode()
    {
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return -1;
        return process.exitCode();
    }
    QProcess process;
};

// The data folder of such a run. Windows has one folder for all runs, taken from the registry.
QString dataFolder(const QString &home)
{
#ifdef Q_OS_WIN
    Q_UNUSED(home)
    return userdata::folder();
#else
    return home + u"/Veltrano/Quorvex"_s;
#endif
}

QString defaultLog(const QString &home)
{
    return dataFolder(home) + u"/quorvex.log"_s;
}

// The ways a Run ends. The exit codes differ from those of a crash or of a sanitizer.
enum ChildExit { Done = 0, WrongUse = 41, WrongFolder = 42, Abrupt = 43 };

int logAndEnd(const QStringList &messages)
{
    for (const QString &message : messages)
        AppLog::instance().info(message);
    return Done;
}

int logAndVanish(const QStringList &messages)
{
    logAndEnd(messages);
    std::_Exit(Abrupt); // no destructor runs, no buffer is flushed
}

int logManyLines(const QStringList &arguments)
{
    AppLog::instance().setEchoToConsole(false);
    for (int i = 0; i < 2000; ++i)
        AppLog::instance().info(u"%1 %2 "_s.arg(arguments.value(0)).arg(i) + QString(i % 300, u'x'));
    return Done;
}

#ifdef Q_OS_UNIX
// A file-size limit simulates a full volume: a write takes the bytes that fit, then none.
int logThroughAFullVolume(const QStringList &)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return WrongUse;
    const rlim_t before = limit.rlim_cur;
    AppLog::instance().info(u"room"_s);
    limit.rlim_cur = 60; // within the second line
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        return WrongUse;
    AppLog::instance().info(u"no room"_s);
    AppLog::instance().info(u"no room either"_s);
    limit.rlim_cur = before;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        return WrongUse;
    AppLog::instance().info(u"room again"_s);
    return Done;
}
#endif

int runChild(const QStringList &arguments)
{
    userdata::useProgramIdentity();
    if (!userdata::isOfTests())
        return WrongFolder;
    const QString what = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (what == u"end")
        return logAndEnd(rest);
    if (what == u"vanish")
        return logAndVanish(rest);
    if (what == u"many")
        return logManyLines(rest);
#ifdef Q_OS_UNIX
    if (what == u"full")
        return logThroughAFullVolume(rest);
#endif
    return WrongUse;
}
} // namespace

class tst_AppLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void firstUseMakesTheFolderAndTheFile();
    void onlyTheOwnerReadsTheFile();
    void twoRunsAppendToOneFile();
    void linesAreInTheFileWhenARunVanishes();
    void withoutAFolderLinesAreStillEchoed();
    void linesOfAnotherProgramAreNotOverwritten();
    void twoProgramsAtOnceKeepTheirLinesWhole();
    void aFullVolumeDelaysLinesButLosesNone();

    void thereIsOneInstance();
    void aLineHasTimeLevelAndMessage();
    void levelsHaveNamesAndOutputs_data();
    void levelsHaveNamesAndOutputs();
    void debugLinesAreDroppedByDefault();
    void placeholdersInAMessageStay_data();
    void placeholdersInAMessageStay();
    void textIsWrittenAsUtf8AndEchoedUnquoted();
    void withoutEchoLinesAreOnlyWritten();
    void settingTheSameFileAgainLosesNothing();
    void anotherFileTakesTheLinesFromThenOn();
    void aClosedFileGetsNoMoreLines();
    void anExistingFileIsNeverCut();
    void aFileThatDoesNotOpenLeavesOnlyTheEcho_data();
    void aFileThatDoesNotOpenLeavesOnlyTheEcho();
    void theFileIsOpenedByThePlatformInForce();
    void onlyARegularFileIsWritten_data();
    void onlyARegularFileIsWritten();
    void threadsNeverShareALine();

private:
    QString m_path;
    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_AppLog::initTestCase()
{
    // The user's own log is not touched.
    QVERIFY2(userdata::isOfTests(), qPrintable(userdata::folder()));
}

void tst_AppLog::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_path = m_dir->filePath(u"quorvex.log"_s);
    AppLog::instance().setLogFile(m_path);
    userdata::clear();
}

void tst_AppLog::cleanup()
{
    AppLog::instance().closeLogFile();
    AppLog::instance().setMinLevel(LogLevel::Info);
    AppLog::instance().setEchoToConsole(true);
    m_dir.reset();
}

void tst_AppLog::firstUseMakesTheFolderAndTheFile()
{
    const QString home = m_dir->filePath(u"not/yet/there"_s);
    QVERIFY(!QFileInfo::exists(dataFolder(home)));
    Run run(home, {u"end"_s, u"Application started"_s});
    QCOMPARE(run.exitCode(), Done);
    QCOMPARE(linesOf(defaultLog(home)), QStringList{u"[INFO] Application started"_s});
}

void tst_AppLog::onlyTheOwnerReadsTheFile()
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
#ifdef Q_OS_WIN
    QFile probe(m_dir->filePath(u"probe"_s));
    QVERIFY(probe.open(QIODevice::WriteOnly, QFile::ReadOwner | QFile::WriteOwner));
    if (permissionsOf(probe.fileName()) & others)
        QSKIP("SKIPPED: this system does not tell who else may read a file");
#endif
    const QFile::Permissions permissions = permissionsOf(m_path);
    QVERIFY(permissions & QFile::ReadOwner);
    QVERIFY(permissions & QFile::WriteOwner);
    QVERIFY(!(permissions & others));
}

void tst_AppLog::twoRunsAppendToOneFile()
{
    Run first(m_dir->path(), {u"end"_s, u"first"_s, u"Application exiting"_s});
    QCOMPARE(first.exitCode(), Done);
    Run second(m_dir->path(), {u"end"_s, u"second"_s});
    QCOMPARE(second.exitCode(), Done);
    QCOMPARE(linesOf(defaultLog(m_dir->path())),
             (QStringList{u"[INFO] first"_s, u"[INFO] Application exiting"_s, u"[INFO] second"_s}));
}

void tst_AppLog::linesAreInTheFileWhenARunVanishes()
{
    Run run(m_dir->path(), {u"vanish"_s, u"one"_s, u"two"_s});
    QCOMPARE(run.exitCode(), Abrupt);
    QCOMPARE(linesOf(defaultLog(m_dir->path())), (QStringList{u"[INFO] one"_s, u"[INFO] two"_s}));
}

void tst_AppLog::withoutAFolderLinesAreStillEchoed()
{
    // A file in the place of the folder stops even root.
    const QString folder = dataFolder(m_dir->path());
    writeFile(folder, {});
    Run run(m_dir->path(), {u"end"_s, u"still here"_s});
    QCOMPARE(run.exitCode(), Done);
    const QByteArray output = run.process.readAllStandardError();
    QVERIFY2(output.contains("[INFO] still here"), output.constData());
    QVERIFY(QFileInfo(folder).isFile());
    QVERIFY(textOf(folder).isEmpty());
}

void tst_AppLog::linesOfAnotherProgramAreNotOverwritten()
{
    const QString path = defaultLog(m_dir->path());
    QVERIFY(QDir().mkpath(dataFolder(m_dir->path())));
    AppLog::instance().setLogFile(path);
    AppLog::instance().info(u"mine"_s);
    Run run(m_dir->path(), {u"end"_s, u"a line of the other program"_s});
    QCOMPARE(run.exitCode(), Done);
    AppLog::instance().info(u"mine again"_s);
    QCOMPARE(linesOf(path), (QStringList{u"[INFO] mine"_s, u"[INFO] a line of the other program"_s,
                                         u"[INFO] mine again"_s}));
}

void tst_AppLog::twoProgramsAtOnceKeepTheirLinesWhole()
{
#ifdef Q_OS_WIN
    if (QLibrary(u"ntdll"_s).resolve("wine_get_version"))
        QSKIP("SKIPPED: Wine finds the end of a file and writes there in two steps");
#endif
    Run first(m_dir->path(), {u"many"_s, u"first"_s});
    Run second(m_dir->path(), {u"many"_s, u"second"_s});
    QCOMPARE(first.exitCode(), Done);
    QCOMPARE(second.exitCode(), Done);
    QMap<QString, int> next;
    const QStringList lines = linesOf(defaultLog(m_dir->path()));
    for (const QString &line : lines) {
        const QStringList words = line.split(u' ');
        QCOMPARE(words.size(), 4);
        const int number = next[words[1]]++;
        QCOMPARE(words[2].toInt(), number);
        QCOMPARE(words[3], QString(number % 300, u'x'));
    }
    QCOMPARE(next, (QMap<QString, int>{{u"first"_s, 2000}, {u"second"_s, 2000}}));
}

void tst_AppLog::aFullVolumeDelaysLinesButLosesNone()
{
#ifdef Q_OS_UNIX
    Run run(m_dir->path(), {u"full"_s});
    QCOMPARE(run.exitCode(), Done);
    QCOMPARE(linesOf(defaultLog(m_dir->path())),
             (QStringList{u"[INFO] room"_s, u"[INFO] no room"_s, u"[INFO] no room either"_s,
                          u"[INFO] room again"_s}));
#else
    QSKIP("SKIPPED: only Unix can limit the size of files for one process");
#endif
}

void tst_AppLog::thereIsOneInstance()
{
    AppLog *first = &AppLog::instance();
    AppLog *second = nullptr;
    std::thread([&second] { second = &AppLog::instance(); }).join();
    QCOMPARE(second, first);
    QCOMPARE(first->minLevel(), LogLevel::Info);
    QVERIFY(first->echoToConsole());
}

void tst_AppLog::aLineHasTimeLevelAndMessage()
{
    const QDateTime before = QDateTime::currentDateTime();
    AppLog::instance().info(u"Application started"_s);
    const QDateTime after = QDateTime::currentDateTime();
    const QString text = QString::fromUtf8(textOf(m_path));
    const QRegularExpression shape(
        u"^\\[(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3})\\] \\[INFO\\] Application started\\n$"_s);
    const QRegularExpressionMatch match = shape.match(text);
    QVERIFY2(match.hasMatch(), qPrintable(text));
    const QDateTime time = QDateTime::fromString(match.captured(1), timeFormat);
    QVERIFY(before <= time && time <= after);
}

void tst_AppLog::levelsHaveNamesAndOutputs_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("echoed");
    QTest::addColumn<QtMsgType>("output");
    QTest::newRow("0") << 0 << u"DEBUG"_s << true << QtDebugMsg;
    QTest::newRow("1") << 1 << u"INFO"_s << true << QtInfoMsg;
    QTest::newRow("2") << 2 << u"WARN"_s << true << QtWarningMsg;
    QTest::newRow("3") << 3 << u"ERROR"_s << true << QtCriticalMsg;
    QTest::newRow("4") << 4 << u"UNKNOWN"_s << false << QtDebugMsg;
    QTest::newRow("7") << 7 << u"UNKNOWN"_s << false << QtDebugMsg;
    QTest::newRow("-1") << -1 << u"UNKNOWN"_s << false << QtDebugMsg;
}

void tst_AppLog::levelsHaveNamesAndOutputs()
{
    QFETCH(int, level);
    QFETCH(QString, name);
    QFETCH(bool, echoed);
    QFETCH(QtMsgType, output);
    const MessageCapture capture;
    AppLog::instance().setMinLevel(LogLevel(-1));
    AppLog::instance().log(LogLevel(level), u"text"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[%1] text"_s.arg(name)});
    if (!echoed) {
        QVERIFY(capture.messages().isEmpty());
        return;
    }
    const QString line = QString::fromUtf8(textOf(m_path)).chopped(1);
    QCOMPARE(capture.messages(), (QList<MessageCapture::Message>{{output, line}}));
}

void tst_AppLog::debugLinesAreDroppedByDefault()
{
    const MessageCapture capture;
    AppLog::instance().debug(u"quiet"_s);
    AppLog::instance().log(LogLevel(-1), u"quieter"_s);
    QVERIFY(textOf(m_path).isEmpty());
    QVERIFY(capture.messages().isEmpty());
    AppLog::instance().warning(u"w"_s);
    AppLog::instance().error(u"e"_s);
    QCOMPARE(linesOf(m_path), (QStringList{u"[WARN] w"_s, u"[ERROR] e"_s}));
    AppLog::instance().setMinLevel(LogLevel::Error);
    AppLog::instance().warning(u"now too quiet"_s);
    QCOMPARE(linesOf(m_path).size(), 2);
    QCOMPARE(capture.messages().size(), 2);
}

void tst_AppLog::placeholdersInAMessageStay_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("%1") << u"%1"_s;
    QTest::newRow("all") << u"50%1 %2 %3 %4 %L1 %%"_s;
    QTest::newRow("empty") << QString();
}

void tst_AppLog::placeholdersInAMessageStay()
{
    QFETCH(QString, message);
    const MessageCapture capture;
    AppLog::instance().info(message);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] "_s + message});
    QVERIFY(capture.texts().value(0).endsWith(u"[INFO] "_s + message));
}

void tst_AppLog::textIsWrittenAsUtf8AndEchoedUnquoted()
{
    const QString message = u"\u64e6\u9664 \"C:\\Users\\J\u00f6rg\" \U0001F4BE "_s;
    const MessageCapture capture;
    AppLog::instance().info(message);
    const QByteArray bytes = textOf(m_path);
    QVERIFY(bytes.endsWith("\xe6\x93\xa6\xe9\x99\xa4 \"C:\\Users\\J\xc3\xb6rg\" \xf0\x9f\x92\xbe \n"));
    QCOMPARE(capture.texts(), QStringList{QString::fromUtf8(bytes).chopped(1)});
}

void tst_AppLog::withoutEchoLinesAreOnlyWritten()
{
    const MessageCapture capture;
    AppLog::instance().setEchoToConsole(false);
    AppLog::instance().info(u"text"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] text"_s});
    QVERIFY(capture.messages().isEmpty());
}

void tst_AppLog::settingTheSameFileAgainLosesNothing()
{
    AppLog::instance().info(u"before"_s);
    AppLog::instance().setLogFile(m_path);
    AppLog::instance().info(u"after"_s);
    QCOMPARE(linesOf(m_path), (QStringList{u"[INFO] before"_s, u"[INFO] after"_s}));
}

void tst_AppLog::anotherFileTakesTheLinesFromThenOn()
{
    const QString other = m_dir->filePath(u"other.log"_s);
    AppLog::instance().info(u"one"_s);
    AppLog::instance().setLogFile(other);
    AppLog::instance().info(u"two"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] one"_s});
    QCOMPARE(linesOf(other), QStringList{u"[INFO] two"_s});
}

void tst_AppLog::aClosedFileGetsNoMoreLines()
{
    const MessageCapture capture;
    AppLog::instance().info(u"one"_s);
    AppLog::instance().closeLogFile();
    AppLog::instance().info(u"two"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] one"_s});
    QCOMPARE(capture.messages().size(), 2);
    QVERIFY(QFile::remove(m_path)); // Windows refuses this while the file is open
    AppLog::instance().setLogFile(m_path);
    AppLog::instance().info(u"three"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] three"_s});
}

void tst_AppLog::anExistingFileIsNeverCut()
{
    const QString other = writeFile(m_dir->filePath(u"other.log"_s), "what was there\n");
    const QFile::Permissions permissions = QFile::permissions(other);
    AppLog::instance().setLogFile(other);
    AppLog::instance().info(u"new"_s);
    QVERIFY(textOf(other).startsWith("what was there\n["));
    QVERIFY(textOf(other).endsWith("[INFO] new\n"));
    QCOMPARE(QFile::permissions(other), permissions);
}

void tst_AppLog::aFileThatDoesNotOpenLeavesOnlyTheEcho_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << u"missing/quorvex.log"_s;
    QTest::newRow("a file as folder") << u"quorvex.log/quorvex.log"_s;
    QTest::newRow("a folder") << u"."_s;
}

void tst_AppLog::aFileThatDoesNotOpenLeavesOnlyTheEcho()
{
    QFETCH(QString, path);
    const MessageCapture capture;
    AppLog::instance().info(u"one"_s);
    AppLog::instance().setLogFile(m_dir->filePath(path));
    AppLog::instance().info(u"two"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] one"_s});
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList{u"quorvex.log"_s});
    QCOMPARE(capture.messages().size(), 2);
    QVERIFY(capture.texts().last().endsWith(u"[INFO] two"_s));
    AppLog::instance().setLogFile(m_path);
    AppLog::instance().info(u"three"_s);
    QCOMPARE(linesOf(m_path), (QStringList{u"[INFO] one"_s, u"[INFO] three"_s}));
}

void tst_AppLog::theFileIsOpenedByThePlatformInForce()
{
    class Refusing : public platform::ForwardingFiles
    {
    public:
        using ForwardingFiles::ForwardingFiles;
        platform::Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) override
        {
            asked.append(path);
            return platform::Status{platform::AccessDenied, 0, "open for appending"};
        }
        QStringList asked;
    };
    const MessageCapture capture;
    const QString other = m_dir->filePath(u"other.log"_s);
    platform::Platform &real = platform::Platform::current();
    Refusing refusing(real.files());
    platform::ForwardingPlatform machine(refusing, real.folders(), real.devices(), real.session());
    {
        const platform::ScopedPlatform scope(machine);
        AppLog::instance().setLogFile(other);
        AppLog::instance().info(u"one"_s);
    }
    QCOMPARE(refusing.asked, QStringList{other});
    QVERIFY(!QFile::exists(other));
    QCOMPARE(capture.messages().size(), 1);
    AppLog::instance().setLogFile(m_path);
    AppLog::instance().info(u"two"_s);
    QCOMPARE(linesOf(m_path), QStringList{u"[INFO] two"_s});
}

void tst_AppLog::onlyARegularFileIsWritten_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("a link") << true;
    QTest::newRow("a pipe") << false;
}

void tst_AppLog::onlyARegularFileIsWritten()
{
    QFETCH(const bool, isLink);
    const MessageCapture capture;
    const QString target = writeFile(m_dir->filePath(u"somebody's"_s), "content");
    const QString other = m_dir->filePath(u"other.log"_s);
    if (isLink) {
        if (!makeLink(target, other))
            QSKIP("SKIPPED: the system makes no symbolic links here");
    } else {
#ifdef Q_OS_UNIX
        QCOMPARE(::mkfifo(QFile::encodeName(other).constData(), 0600), 0);
#else
        QSKIP("SKIPPED: pipes lie in no folder here");
#endif
    }
    AppLog::instance().setLogFile(other);
    AppLog::instance().info(u"one"_s);
    QCOMPARE(contentOf(target), QByteArray("content"));
    QCOMPARE(capture.messages().size(), 1);
}

void tst_AppLog::threadsNeverShareALine()
{
    constexpr int Threads = 8;
    constexpr int Lines = 500;
    const MessageCapture capture;
    std::atomic<bool> done = false;
    std::thread reopening([&] {
        while (!done)
            AppLog::instance().setLogFile(m_path);
    });
    std::vector<std::thread> writers;
    for (int thread = 0; thread < Threads; ++thread) {
        writers.emplace_back([thread] {
            for (int i = 0; i < Lines; ++i)
                AppLog::instance().info(u"%1 %2 "_s.arg(thread).arg(i) +
                                        QString(i % 200, QChar(u'a' + thread)));
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    done = true;
    reopening.join();

    QStringList written = QString::fromUtf8(textOf(m_path)).split(u'\n');
    QVERIFY(written.takeLast().isEmpty());
    QCOMPARE(written.size(), Threads * Lines);
    QList<int> next(Threads, 0);
    const QRegularExpression shape(u"^\\[[0-9:. -]{23}\\] \\[INFO\\] ([0-7]) (\\d+) ([a-h]*)$"_s);
    for (const QString &line : std::as_const(written)) {
        const QRegularExpressionMatch match = shape.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        const int thread = match.captured(1).toInt();
        const int number = next[thread]++;
        QCOMPARE(match.captured(2).toInt(), number);
        QCOMPARE(match.captured(3), QString(number % 200, QChar(u'a' + thread)));
    }
    // The order of the echo may differ between threads, but each line has exactly one.
    QStringList echoed = capture.texts();
    echoed.sort();
    written.sort();
    QCOMPARE(echoed, written);
}

static int runSuite(int argc, char *argv[])
{
    userdata::hide();
    const bool isChild = argc > 1 && qstrcmp(argv[1], "--run") == 0;
    if (isChild) {
        const QCoreApplication application(argc, argv);
        return runChild(QCoreApplication::arguments().mid(2));
    }
    // The instance opens its default file at first use, which must not be in the real user's folder.
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    userdata::moveTo(home.path());
    const QCoreApplication application(argc, argv);
    userdata::useProgramIdentity();
    tst_AppLog test;
    return QTest::qExec(&test, argc, argv);
}
QUORVEX_SUITE_RUN(tst_AppLog, runSuite)
#include "tst_applog.moc"
