#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 60000;

QStringList withoutTimes(const QByteArray &text)
{
    static const QRegularExpression time(u"^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] "_s);
    QStringList lines = QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines)
        line.remove(time);
    return lines;
}

} // namespace

// The program itself from start to exit, with its own home folder and without real drives. windowdriver.cpp
// operates it.
class tst_StartupProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsStepByStep_data();
    void startsStepByStep();
    void theLanguageIsStoredWhereTheLinksHaveIt_data();
    void theLanguageIsStoredWhereTheLinksHaveIt();
    void bearsItsNamesAndItsFont();
    void argumentsMeanNothing();
    void startsWithoutADataFolder();
    void livesOnWithoutAReaderOfItsTrace();
    void aNewLanguageStartsTheProgramAnew();
    void aJobThatIsLeftIsRecorded_data();
    void aJobThatIsLeftIsRecorded();

private:
    QString home(const QString &name) const { return m_home->filePath(name); }
    QString settingsFile() const { return home(u"config/Veltrano/Quorvex.conf"_s); }
    QStringList log() const
    {
        return withoutTimes(contentIfAny(home(u"data/Veltrano/Quorvex/quorvex.log"_s)));
    }
    QStringList output() const { return withoutTimes(contentIfAny(home(u"output"_s))); }
    QString stored() const;
    void store(const QString &language) const;
    QJsonObject runNumber(int number) const;
    void prepare(const QStringList &steps);
    void start(const QStringList &steps, const QStringList &arguments = {});
    bool ends();
    QStringList expectedBeginning(const QString &stored, const QString &code, bool hasCatalogue) const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<QProcess> m_program;
    QString m_locale;
    QString m_drive;   // an image file
    QString m_display; // of an X server; empty: none
};

void tst_StartupProgram::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
    for (const QString &folder : {u"driver"_s, u"run"_s})
        QVERIFY(QDir(m_home->path()).mkdir(folder));
    QFile::setPermissions(home(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_program = std::make_unique<QProcess>();
    m_locale.clear();
    m_drive.clear();
    m_display.clear();
}

// No process may outlive its test, including one started by the program.
void tst_StartupProgram::cleanup()
{
    m_program.reset();
    for (int run = 1; !runNumber(run).isEmpty(); ++run) {
        const auto process = static_cast<pid_t>(runNumber(run).value(u"process").toInteger());
        const QString executable = QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process));
        if (process > 0 && executable == QStringLiteral(QUORVEX_PROGRAM))
            ::kill(process, SIGKILL);
    }
    m_home.reset();
}

QString tst_StartupProgram::stored() const
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(u"language"_s).toString();
}

void tst_StartupProgram::store(const QString &language) const
{
    QSettings(settingsFile(), QSettings::IniFormat).setValue(u"language"_s, language);
}

// The properties of the program's window in that run; empty before it was shown.
QJsonObject tst_StartupProgram::runNumber(int number) const
{
    return QJsonDocument::fromJson(contentIfAny(home(u"driver/run%1.json"_s.arg(number)))).object();
}

void tst_StartupProgram::prepare(const QStringList &steps)
{
    writeFile(home(u"driver/steps"_s), steps.join(u'\n').toUtf8());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_home->path());
    environment.remove(u"COMPUTERNAME"_s);
    environment.insert(u"XDG_DATA_HOME"_s, home(u"data"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, home(u"config"_s));
    environment.insert(u"XDG_CONFIG_DIRS"_s, home(u"config"_s));
    environment.insert(u"XDG_CACHE_HOME"_s, home(u"cache"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, home(u"run"_s));
    environment.insert(u"QUORVEX_ONLY_IMAGE_DISKS"_s, u"1"_s);
    if (m_drive.isEmpty())
        environment.remove(u"QUORVEX_IMAGE_DISKS"_s);
    else
        environment.insert(u"QUORVEX_IMAGE_DISKS"_s, m_drive);
    environment.insert(u"QT_QPA_PLATFORM"_s, m_display.isEmpty() ? u"offscreen"_s : u"xcb"_s);
    if (!m_display.isEmpty()) {
        environment.insert(u"DISPLAY"_s, m_display);
        // For the leak checker: memory kept by the D-Bus library does not count.
        const QString leaks = writeFile(home(u"leaks"_s), "leak:libdbus-1\n");
        environment.insert(u"LSAN_OPTIONS"_s, u"print_suppressions=0:suppressions="_s + leaks);
    }
    environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s);
    environment.remove(u"QT_MESSAGE_PATTERN"_s);
    environment.remove(u"QT_LOGGING_RULES"_s);
    environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(QUORVEX_TEST_PLUGINS));
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"windowdriver"_s);
    environment.insert(u"QUORVEX_DRIVER"_s, home(u"driver"_s));
    if (!m_locale.isEmpty()) {
        environment.remove(u"LC_ALL"_s);
        environment.remove(u"LC_NUMERIC"_s);
        environment.insert(u"LANG"_s, m_locale);
    }
    m_program->setProcessEnvironment(environment);
}

void tst_StartupProgram::start(const QStringList &steps, const QStringList &arguments)
{
    prepare(steps);
    // A file instead of a pipe, because a pipe breaks for a second program when the first one ends.
    m_program->setStandardOutputFile(home(u"output"_s));
    m_program->setProcessChannelMode(QProcess::MergedChannels);
    m_program->start(QStringLiteral(QUORVEX_PROGRAM), arguments);
    QVERIFY2(m_program->waitForStarted(), qPrintable(m_program->errorString()));
}

// Whether the program exits by itself and with success.
bool tst_StartupProgram::ends()
{
    return m_program->waitForFinished(Patience) && m_program->exitStatus() == QProcess::NormalExit &&
           m_program->exitCode() == 0;
}

void tst_StartupProgram::startsStepByStep_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("hasCatalogue");
    QTest::addColumn<QString>("closeHint");
    QTest::newRow("the system's French") << QString() << u"fr"_s << true << u"Fermer"_s;
    QTest::newRow("stored Traditional Chinese") << u"zh_TW"_s << u"zh_TW"_s << true << u"關閉"_s;
    QTest::newRow("stored, unsupported") << u"xx"_s << u"xx"_s << false << u"Close"_s;
}

void tst_StartupProgram::startsStepByStep()
{
    QFETCH(const QString, stored);
    QFETCH(const QString, code);
    QFETCH(const bool, hasCatalogue);
    if (!stored.isEmpty())
        store(stored);
    m_locale = u"fr_CA.UTF-8"_s;
    start({u"close"_s});
    const bool ended = ends();
    const QStringList lines = output();
    QVERIFY2(ended, qPrintable(lines.join(u'\n')));

    const QStringList beginning = expectedBeginning(stored, code, hasCatalogue);
    const qsizetype first = lines.indexOf(beginning.first());
    QCOMPARE(lines.mid(first, beginning.size()), beginning);
    const QString links = hasCatalogue ? u"[LinkManager] 语言已切换为: \"%1\""_s.arg(code)
                                       : u"[LinkManager] 不支持的语言: \"%1\""_s.arg(code);
    QStringList order = lines.mid(first + beginning.size());
    order.removeIf([&](const QString &line) { return line != links && !line.startsWith(u"[INFO]"); });
    QCOMPARE(order, QStringList({links, u"[INFO] Main window displayed"_s, u"[INFO] Application exiting"_s}));

    QCOMPARE(log(), lines.filter(QRegularExpression(u"^\\[INFO\\]"_s)));
    QVERIFY(QFile::exists(home(u"data/Veltrano/Quorvex/quorvex.db"_s)));
    QTEST(runNumber(1).value(u"closeHint").toString(), "closeHint");
}

// The log up to the end of the trace, on a system with French as its language.
QStringList tst_StartupProgram::expectedBeginning(const QString &stored, const QString &code,
                                                  bool hasCatalogue) const
{
    QStringList lines{u"[INFO] Application started"_s, u"[INFO] Version: 5.0"_s,
                      u"========== Translation Init =========="_s,
                      u"[Main] Settings path: \"%1\""_s.arg(settingsFile()),
                      u"[Main] User language from settings: \"%1\""_s.arg(stored)};
    if (stored.isEmpty())
        lines += {u"[Main] System language: \"fr\""_s, u"[Main] Auto-detected: \"fr\""_s};
    else
        lines += u"[Main] Using user language: \"%1\""_s.arg(stored);
    const QString path = u":/translations/quorvex_%1.qm"_s.arg(code);
    lines += {u"[Main] Translation file: \"%1\""_s.arg(path),
              u"[Main] File exists: %1"_s.arg(hasCatalogue ? u"true"_s : u"false"_s)};
    if (hasCatalogue)
        lines += {u"[Main] ✓ Translation loaded successfully: \"%1\""_s.arg(code),
                  u"[INFO] Loaded translation: %1"_s.arg(code)};
    else
        lines += {u"[Main] ✗ Failed to load translation file: \"%1\""_s.arg(path),
                  u"[Main] Falling back to English"_s};
    return lines << u"======================================="_s;
}

void tst_StartupProgram::theLanguageIsStoredWhereTheLinksHaveIt_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("afterwards");
    QTest::newRow("the system's French") << QString() << u"fr_CA.UTF-8"_s << u"fr"_s;
    QTest::newRow("the system's Russian") << QString() << u"ru_RU.UTF-8"_s << u"en"_s;
    QTest::newRow("the system's Chinese") << QString() << u"zh_CN.UTF-8"_s << QString();
    QTest::newRow("stored German") << u"de"_s << u"fr_CA.UTF-8"_s << u"de"_s;
    QTest::newRow("stored Traditional Chinese") << u"zh_TW"_s << u"fr_CA.UTF-8"_s << u"zh_TW"_s;
    QTest::newRow("stored, unsupported") << u"xx"_s << u"fr_CA.UTF-8"_s << u"xx"_s;
}

// The menu entries store the chosen language; other languages leave the stored value unchanged.
void tst_StartupProgram::theLanguageIsStoredWhereTheLinksHaveIt()
{
    QFETCH(const QString, stored);
    QFETCH(const QString, locale);
    if (!stored.isEmpty())
        store(stored);
    m_locale = locale;
    start({u"close"_s});
    QVERIFY2(ends(), qPrintable(output().join(u'\n')));
    QTEST(this->stored(), "afterwards");
}

void tst_StartupProgram::bearsItsNamesAndItsFont()
{
    start({u"close"_s});
    QVERIFY(ends());
    const QJsonObject run = runNumber(1);
    QCOMPARE(run.value(u"name").toString(), u"Quorvex"_s);
    QCOMPARE(run.value(u"version").toString(), u"5.0"_s);
    QCOMPARE(run.value(u"organisation").toString(), u"Veltrano"_s);
    const QString domain = run.value(u"domain").toString();
    QVERIFY2(QRegularExpression(u"^[a-z0-9-]+(\\.[a-z0-9-]+)+$"_s).match(domain).hasMatch(),
             qPrintable(domain));
    QCOMPARE(run.value(u"computer").toString(), QSysInfo::machineHostName());
    QCOMPARE(run.value(u"scaling").toInt(), int(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough));
    QCOMPARE(run.value(u"font").toString(), u"Segoe UI"_s);
    QCOMPARE(run.value(u"fontSize").toInt(), 10);
    QCOMPARE(run.value(u"fontWeight").toInt(), int(QFont::Normal));
    QCOMPARE(run.value(u"fontItalic"), QJsonValue(false));
    QCOMPARE(run.value(u"fontStrategy").toInt(), int(QFont::PreferAntialias));
    // Only the main window is shown, without a message box and without a parent.
    QCOMPARE(run.value(u"windows").toArray(), QJsonArray{u"MainWindow"_s});
    QCOMPARE(run.value(u"isChild"), QJsonValue(false));
}

void tst_StartupProgram::argumentsMeanNothing()
{
    const QStringList arguments{u"--help"_s, u"--version"_s, u"de"_s};
    start({u"close"_s}, arguments);
    QVERIFY(ends());
    QCOMPARE(runNumber(1).value(u"arguments").toArray(), QJsonArray::fromStringList(arguments));
    QCOMPARE(log(), QStringList({u"[INFO] Application started"_s, u"[INFO] Version: 5.0"_s,
                                 u"[INFO] Loaded translation: en"_s, u"[INFO] Main window displayed"_s,
                                 u"[INFO] Application exiting"_s}));
}

void tst_StartupProgram::startsWithoutADataFolder()
{
    writeFile(home(u"data"_s), {}); // a file in place of the folder
    start({u"close"_s});
    QVERIFY(ends());
    QCOMPARE(runNumber(1).value(u"windows").toArray(), QJsonArray{u"MainWindow"_s});
    // The log is still written to the output.
    const QStringList lines = output();
    QVERIFY(lines.contains(u"[INFO] Main window displayed"_s));
    QVERIFY(lines.contains(u"[INFO] Application exiting"_s));
}

void tst_StartupProgram::livesOnWithoutAReaderOfItsTrace()
{
    const QString pipe = home(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader != -1);
    prepare({u"close"_s});
    m_program->setStandardOutputFile(pipe);
    m_program->setProcessChannelMode(QProcess::MergedChannels);
    m_program->start(QStringLiteral(QUORVEX_PROGRAM));
    ::close(reader);
    QVERIFY(ends());
    QCOMPARE(log().constLast(), u"[INFO] Application exiting"_s);
}

void tst_StartupProgram::aNewLanguageStartsTheProgramAnew()
{
    store(u"en"_s);
    start({u"language de"_s, u"close"_s}, {u"kept"_s});
    QVERIFY(ends());
    QTRY_COMPARE_WITH_TIMEOUT(log().count(u"[INFO] Application exiting"_s), 2, Patience);

    const QJsonObject before = runNumber(1);
    const QJsonObject after = runNumber(2);
    QVERIFY(before.value(u"process") != after.value(u"process"));
    QCOMPARE(before.value(u"closeHint").toString(), u"Close"_s);
    QCOMPARE(after.value(u"closeHint").toString(), u"Schließen"_s);
    QCOMPARE(after.value(u"arguments").toArray(), QJsonArray{u"kept"_s});
    QCOMPARE(after.value(u"windows").toArray(), QJsonArray{u"MainWindow"_s});
    QCOMPARE(stored(), u"de"_s);
    // The first process may end before or after the second one writes.
    QStringList logged = log();
    logged.removeAll(u"[INFO] Application exiting"_s);
    QCOMPARE(logged, QStringList({u"[INFO] Application started"_s, u"[INFO] Version: 5.0"_s,
                                  u"[INFO] Loaded translation: en"_s, u"[INFO] Main window displayed"_s,
                                  u"[INFO] Application started"_s, u"[INFO] Version: 5.0"_s,
                                  u"[INFO] Loaded translation: de"_s, u"[INFO] Main window displayed"_s}));
}

void tst_StartupProgram::aJobThatIsLeftIsRecorded_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("onX");
    QTest::newRow("closed") << QStringList{u"wipe close"_s} << 0 << false;
    QTest::newRow("closed on X") << QStringList{u"wipe close"_s} << 0 << true;
    QTest::newRow("another language") << QStringList{u"wipe language de"_s, u"close"_s} << 0 << false;
    QTest::newRow("the end of the session") << QStringList{u"wipe"_s} << SIGTERM << false;
}

void tst_StartupProgram::aJobThatIsLeftIsRecorded()
{
    QFETCH(const QStringList, steps);
    QFETCH(const int, signal);
    QFETCH(const bool, onX);
    store(u"en"_s);
    QProcess server;
    const auto end = qScopeGuard([&server] {
        server.terminate();
        server.waitForFinished(Patience);
    });
    if (onX) {
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
        while (server.waitForReadyRead(Patience) && !server.canReadLine()) {
        }
        m_display = u':' + QString::fromLatin1(server.readLine().trimmed());
        QVERIFY2(m_display.size() > 1, qPrintable(server.errorString()));
    }
    m_drive = home(u"drive.img"_s);
    {
        // Sparse, and too large for the job to end before the program is closed.
        QFile drive(m_drive);
        QVERIFY(drive.open(QIODevice::WriteOnly) && drive.resize(qint64(64) << 30));
    }
    start(steps);
    if (signal != 0) {
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(home(u"driver/writing"_s)), Patience);
        QCOMPARE(::kill(static_cast<pid_t>(m_program->processId()), signal), 0);
    }
    QVERIFY(ends());
    const qsizetype runs = steps.size();
    QTRY_COMPARE_WITH_TIMEOUT(log().count(u"[INFO] Application exiting"_s), runs, Patience);

    const QStringList lines = log();
    const QStringList told = lines.filter(
        QRegularExpression(u"^\\[INFO\\] Job ended: cancelled, report QVX-[-0-9]+ is stored$"_s));
    QCOMPARE(told.size(), 1);
    // The next run of the program finds everything in order.
    const qsizetype second = lines.indexOf(u"[INFO] Application started"_s, 1);
    QVERIFY(runs == 1 ? second == -1 : second > lines.indexOf(told.constFirst()));
    const QString id = told.constFirst().section(u' ', 5, 5);
    ReportDatabase &database = ReportDatabase::instance();
    QVERIFY(database.initialize(home(u"data/Veltrano/Quorvex"_s)));
    const QList<WipeReport> reports = database.getReports(10, 0);
    const auto outcome = database.outcome(id);
    database.close();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.constFirst().certificateId, id);
    QVERIFY(outcome);
    QCOMPARE(outcome->outcome(), JobOutcome::Cancelled);
}

QUORVEX_SUITE(tst_StartupProgram, QCoreApplication)
#include "tst_startupprogram.moc"
