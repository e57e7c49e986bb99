#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <atomic>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Ctrl+C reaches every process of the console, including this one.
std::atomic<bool> s_interrupted{false};

BOOL WINAPI noteControl(DWORD)
{
    s_interrupted = true;
    return TRUE;
}

constexpr int ToldOfInterrupt = 42;

BOOL WINAPI endTold(DWORD)
{
    ::ExitProcess(ToldOfInterrupt);
}

// Run as a child process: waits for Ctrl+C.
int waitForInterrupt()
{
    ::SetConsoleCtrlHandler(endTold, TRUE);
    std::puts("ready");
    std::fflush(stdout);
    ::Sleep(5000);
    return 0;
}

// Whether another program that only shares this console receives Ctrl+C.
bool isControlToldOfInterrupt()
{
    QProcess control;
    control.start(QCoreApplication::applicationFilePath(),
                  {u"tst_windowsprogram"_s, u"--wait-for-interrupt"_s});
    if (!control.waitForReadyRead())
        return false;
    ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    return control.waitForFinished() && control.exitCode() == ToldOfInterrupt;
}

// Empty without such a resource.
QByteArray resource(const QString &programName, LPCWSTR name, LPCWSTR type)
{
    const QString program = QCoreApplication::applicationDirPath() + u'/' + programName;
    HMODULE const module =
        ::LoadLibraryExW(program.toStdWString().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (!module)
        return {};
    HRSRC const found = ::FindResourceW(module, name, type);
    const void *bytes = found ? ::LockResource(::LoadResource(module, found)) : nullptr;
    const QByteArray copy =
        bytes ? QByteArray(static_cast<const char *>(bytes), qsizetype(::SizeofResource(module, found)))
              : QByteArray();
    ::FreeLibrary(module);
    return copy;
}

// The error mode of another process. A thread started in that process calls GetErrorMode, which has the same
// address in all processes. Empty when the process has ended.
std::optional<DWORD> errorModeOf(qint64 processId)
{
    HANDLE const process = ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, DWORD(processId));
    if (!process)
        return std::nullopt;
    FARPROC const question = ::GetProcAddress(::GetModuleHandleW(L"kernel32"), "GetErrorMode");
    std::optional<DWORD> mode;
    if (HANDLE const thread = ::CreateRemoteThread(
            process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void *>(question)),
            nullptr, 0, nullptr)) {
        DWORD answer = 0;
        if (::WaitForSingleObject(thread, INFINITE) == WAIT_OBJECT_0 && ::GetExitCodeThread(thread, &answer))
            mode = answer;
        ::CloseHandle(thread);
    }
    ::CloseHandle(process);
    return mode;
}

bool failsWithoutBoxes(qint64 processId)
{
    constexpr DWORD Quiet = SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX;
    return (errorModeOf(processId).value_or(0) & Quiet) == Quiet;
}

bool hasWindow(qint64 processId)
{
    struct Search
    {
        DWORD process;
        bool isFound;
    } search{DWORD(processId), false};
    ::EnumWindows(
        [](HWND window, LPARAM target) -> BOOL {
            auto &wanted = *reinterpret_cast<Search *>(target);
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            wanted.isFound = process == wanted.process && ::IsWindowVisible(window);
            return !wanted.isFound;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.isFound;
}

struct Finished
{
    int code = -1;
    bool crashed = true;
    QByteArray out;
    QByteArray err;
};

} // namespace

// The program itself with arguments, streams and console of Windows. It sees no real drive and no folder of
// the user.
class tst_WindowsProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void itCarriesItsResources();
    void onlyTheDesktopProgramAsksForRights();
    void itTellsItsVersion();
    void itListsTheMethods();
    void itListsTheImage();
    void anImageIsErasedToTheLastByte();
    void filesAreErasedWhateverTheirNames_data();
    void filesAreErasedWhateverTheirNames();
    void aFolderIsErased();
    void aLongPathIsErased();
    void namesComeOutAsUtf8();
    void withoutAConsoleItRefuses();
    void exitCodes_data();
    void exitCodes();
    void interruptCancelsTheJob();
    void noBoxStopsTheCommandLine();
    void noBoxStopsTheDesktopProgram();

private:
    QString image(qint64 size = 1 << 20)
    {
        return writeFile(m_folder->filePath(u"disk.img"_s), QByteArray(size, 'x'));
    }
    Finished run(const QStringList &arguments, const std::function<void()> &onProgress = {},
                 const std::function<void(qint64 processId)> &whileItRuns = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QUORVEX_ONLY_IMAGE_DISKS"_s, u"1"_s);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUORVEX_CLI),
                      arguments + QStringList{u"--data-dir"_s, m_folder->filePath(u"data"_s)});
        Finished finished;
        QElapsedTimer sinceLast;
        while (process.state() != QProcess::NotRunning) {
            process.waitForReadyRead(100);
            finished.out += process.readAllStandardOutput();
            if (whileItRuns && process.state() == QProcess::Running && finished.out.contains("\"progress\""))
                whileItRuns(process.processId());
            // Repeats the event when it had no effect, as a user would. Waits in between, because Wine
            // handles an event badly while a program exits.
            if (onProgress && finished.out.contains("\"progress\"") &&
                (!sinceLast.isValid() || sinceLast.elapsed() > 2000)) {
                sinceLast.start();
                onProgress();
            }
        }
        finished.out += process.readAllStandardOutput();
        finished.err = process.readAllStandardError();
        finished.crashed = process.exitStatus() != QProcess::NormalExit;
        finished.code = process.exitCode();
        return finished;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_WindowsProgram::initTestCase()
{
    // The program inherits the console and its handling of Ctrl+C. The suite makes its own console, because
    // the inherited one may lack a window or input.
    ::FreeConsole();
    QVERIFY(::AllocConsole());
    QVERIFY(::SetConsoleCtrlHandler(noteControl, TRUE));
}

void tst_WindowsProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_WindowsProgram::itCarriesItsResources()
{
    const QByteArray manifest = resource(QStringLiteral(QUORVEX_CLI), MAKEINTRESOURCEW(1), RT_MANIFEST);
    for (const char *part : {">true</longPathAware>", ">UTF-8</activeCodePage>", "PerMonitorV2"})
        QVERIFY2(manifest.contains(part), part);
    const QByteArray version =
        resource(QStringLiteral(QUORVEX_CLI), MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const QString text(reinterpret_cast<const QChar *>(version.constData()), version.size() / 2);
    QVERIFY(text.contains(u"ProductName"_s) && text.contains(u"Quorvex"_s) && text.contains(u"5.0"_s));
    // An icon group lists its images with a header of 6 bytes and 14 bytes for each.
    QCOMPARE(resource(QStringLiteral(QUORVEX_CLI), MAKEINTRESOURCEW(1), RT_GROUP_ICON).size(), 6 + 9 * 14);
}

// A shell cannot start a program that requires more rights than the shell has (error 740).
void tst_WindowsProgram::onlyTheDesktopProgramAsksForRights()
{
    const auto manifest = [](const QString &program) {
        return resource(program, MAKEINTRESOURCEW(1), RT_MANIFEST);
    };
    QVERIFY(manifest(QStringLiteral(QUORVEX_CLI)).contains("level=\"asInvoker\""));
    QVERIFY(manifest(QStringLiteral(QUORVEX_DESKTOP)).contains("level=\"highestAvailable\""));
}

void tst_WindowsProgram::itTellsItsVersion()
{
    const Finished finished = run({u"--version"_s});
    QCOMPARE(finished.code, 0);
    QCOMPARE(finished.out, QByteArray("Quorvex 5.0\n"));
    QCOMPARE(finished.err, QByteArray());
}

void tst_WindowsProgram::itListsTheMethods()
{
    const Finished finished = run({u"methods"_s, u"--json"_s});
    QCOMPARE(finished.code, 0);
    const QJsonArray methods = QJsonDocument::fromJson(finished.out).array();
    QVERIFY(methods.size() > 4);
    QCOMPARE(methods.at(4).toObject().value(u"passes"_s).toArray().size(), 35);
}

void tst_WindowsProgram::itListsTheImage()
{
    const Finished finished = run({u"disks"_s, u"--json"_s, u"--image"_s, image(1'000'448)});
    QCOMPARE(finished.code, 0);
    const QJsonArray disks = QJsonDocument::fromJson(finished.out).array();
    QCOMPARE(disks.size(), 1);
    QCOMPARE(disks.at(0).toObject().value(u"sizeBytes"_s), QJsonValue(u"1000448"_s));
    QCOMPARE(disks.at(0).toObject().value(u"isSystemDisk"_s), QJsonValue(false));
}

void tst_WindowsProgram::anImageIsErasedToTheLastByte()
{
    const QString path = image(5'000'700); // not a multiple of the sector size
    const QString report = m_folder->filePath(u"证书 ü.json"_s);
    const Finished finished =
        run({u"wipe"_s, u"disk"_s, u"0"_s, u"--image"_s, path, u"--report"_s, report, u"--yes"_s});
    QCOMPARE(finished.code, 0);
    QCOMPARE(contentOf(path), QByteArray(5'000'700, '\0'));
    QVERIFY(finished.out.trimmed().split('\n').constLast().startsWith("DONE: "));
    const QJsonObject json = QJsonDocument::fromJson(contentOf(report)).object();
    QVERIFY(json.value(u"verificationPassed"_s).toBool());
    QCOMPARE(json.value(u"computerName"_s), QJsonValue(qEnvironmentVariable("COMPUTERNAME")));
}

void tst_WindowsProgram::filesAreErasedWhateverTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"plain.txt"_s;
    QTest::newRow("blank") << u"with blank and 'quote'.txt"_s;
    QTest::newRow("German") << u"größe.txt"_s;
    QTest::newRow("Chinese") << u"机密文件.txt"_s;
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x94\x92.txt");
    QTest::newRow("lone surrogate") << QString(u"lone"_s) + QChar(0xD800) + u".txt"_s;
}

void tst_WindowsProgram::filesAreErasedWhateverTheirNames()
{
    QFETCH(const QString, name);
    const QString path = m_folder->filePath(name);
    QFile file(path);
    const bool isMade = file.open(QIODevice::WriteOnly);
    QVERIFY(!isMade || file.write(QByteArray(70'000, 's')) == 70'000);
    file.close();
    if (!isMade || !QDir(m_folder->path()).entryList(QDir::Files).contains(name))
        QSKIP("SKIPPED: the file system below does not keep this name");
    const Finished finished = run({u"wipe"_s, u"files"_s, path, u"--yes"_s});
    QCOMPARE(finished.code, 0);
    QVERIFY(!QFile::exists(path));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList());
}

void tst_WindowsProgram::aFolderIsErased()
{
    const QString folder = m_folder->filePath(u"项目/b/c"_s);
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + u"/one"_s, "1");
    writeFile(folder + u"/two"_s, QByteArray(1 << 20, '2'));
    const QString readOnly = folder + u"/read only"_s;
    writeFile(readOnly, "3");
    QVERIFY(QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::ReadUser));
    const Finished finished = run({u"wipe"_s, u"files"_s, m_folder->filePath(u"项目"_s), u"--yes"_s});
    QCOMPARE(finished.code, 0);
    QVERIFY(!QFile::exists(m_folder->filePath(u"项目"_s)));
}

void tst_WindowsProgram::aLongPathIsErased()
{
    QString folder = m_folder->path();
    while (folder.size() < 300)
        folder += u"/0123456789012345678901234567890123456789"_s;
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + u"/file"_s, "secret");
    const Finished finished = run({u"wipe"_s, u"files"_s, folder + u"/file"_s, u"--yes"_s});
    QCOMPARE(finished.code, 0);
    QVERIFY(!QFile::exists(folder + u"/file"_s));
}

void tst_WindowsProgram::namesComeOutAsUtf8()
{
    const QString path = m_folder->filePath(u"没有.txt"_s);
    const Finished finished = run({u"wipe"_s, u"files"_s, path, u"--yes"_s});
    QCOMPARE(finished.code, 3);
    QVERIFY2(finished.err.contains("没有.txt"), finished.err.constData());
}

void tst_WindowsProgram::withoutAConsoleItRefuses()
{
    // Standard input is a pipe, so the word cannot be typed.
    const QString path = image();
    const Finished finished = run({u"wipe"_s, u"disk"_s, u"0"_s, u"--image"_s, path});
    QCOMPARE(finished.code, 3);
    QCOMPARE(contentOf(path), QByteArray(1 << 20, 'x'));
}

void tst_WindowsProgram::exitCodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("help") << QStringList{u"--help"_s} << 0;
    QTest::newRow("unknown command") << QStringList{u"burn"_s} << 2;
    QTest::newRow("unknown option") << QStringList{u"disks"_s, u"--burn"_s} << 2;
    QTest::newRow("no such drive") << QStringList{u"wipe"_s, u"disk"_s, u"7"_s, u"--yes"_s} << 3;
    QTest::newRow("no such file") << QStringList{u"wipe"_s, u"files"_s, u"C:\\no such file"_s, u"--yes"_s}
                                  << 3;
    QTest::newRow("no such image") << QStringList{u"disks"_s, u"--image"_s, u"C:\\no such image"_s} << 3;
}

void tst_WindowsProgram::exitCodes()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, code);
    const Finished finished = run(arguments);
    QVERIFY(!finished.crashed);
    QVERIFY2(finished.code == code, (QByteArray::number(finished.code) + ": " + finished.err).constData());
}

void tst_WindowsProgram::interruptCancelsTheJob()
{
    s_interrupted = false;
    // Large enough for the event to arrive before the end, whatever the load of the machine.
    const QString path = image();
    QVERIFY(QFile::resize(path, 512 << 20));
    const QString report = m_folder->filePath(u"report.json"_s);
    const QStringList arguments{u"wipe"_s,   u"disk"_s,     u"0"_s,       u"--image"_s,     path,
                                u"--yes"_s,  u"--method"_s, u"gutmann"_s, u"--buffer-mb"_s, u"1"_s,
                                u"--json"_s, u"--report"_s, report};
    Finished finished;
    for (int attempt = 0; attempt < 3; ++attempt) {
        finished = run(arguments, [] { QVERIFY(::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0)); });
        if (finished.code == 4)
            break;
        // Wine occasionally delivers the event to some processes of the console only.
        if (!isControlToldOfInterrupt())
            QSKIP("SKIPPED: this system did not tell a plain program of Ctrl+C either");
    }
    QVERIFY(s_interrupted);
    QVERIFY(!finished.crashed);
    QCOMPARE(finished.code, 4);
    const QJsonObject last = QJsonDocument::fromJson(finished.out.trimmed().split('\n').constLast()).object();
    QCOMPARE(last.value(u"event"_s), QJsonValue(u"finished"_s));
    QCOMPARE(last.value(u"cancelled"_s), QJsonValue(true));
    QCOMPARE(last.value(u"success"_s), QJsonValue(false));
    QCOMPARE(QJsonDocument::fromJson(contentOf(report)).object(), last.value(u"report"_s).toObject());
}

// Child processes inherit the error mode, so the suite's own mode must differ from the expected one.
void tst_WindowsProgram::noBoxStopsTheCommandLine()
{
    QCOMPARE(::GetErrorMode() & (SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX), 0U);
    const QString path = image(16 << 20);
    bool isQuiet = false;
    const Finished finished =
        run({u"wipe"_s, u"disk"_s, u"0"_s, u"--image"_s, path, u"--yes"_s, u"--method"_s, u"gutmann"_s,
             u"--buffer-mb"_s, u"1"_s, u"--json"_s},
            {}, [&isQuiet](qint64 processId) { isQuiet = isQuiet || failsWithoutBoxes(processId); });
    QCOMPARE(finished.code, 0);
    QVERIFY(isQuiet);
}

// Without a platform plugin the program reports the failure in a box, before it touches data of the user.
void tst_WindowsProgram::noBoxStopsTheDesktopProgram()
{
#ifdef QUORVEX_DESKTOP
    QProcess process;
    // With a console the program would write the message there and exit.
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments *arguments) { arguments->flags |= DETACHED_PROCESS; });
    process.start(QStringLiteral(QUORVEX_DESKTOP), {u"-platform"_s, u"none"_s});
    QVERIFY(process.waitForStarted());
    while (!hasWindow(process.processId()))
        QVERIFY(!process.waitForFinished(100));
    const bool isQuiet = failsWithoutBoxes(process.processId());
    process.kill();
    process.waitForFinished();
    QVERIFY(isQuiet);
#else
    QSKIP("SKIPPED: built without the desktop program");
#endif
}

static int runSuite(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], "--wait-for-interrupt") == 0)
        return waitForInterrupt();
    const QCoreApplication application(argc, argv);
    tst_WindowsProgram test;
    return QTest::qExec(&test, argc, argv);
}
QUORVEX_SUITE_RUN(tst_WindowsProgram, runSuite)
#include "tst_windowsprogram.moc"
