#include "cli/runcli.h"
#include "cli/testio.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "cli/commandtable.h"
#include "model/wipetask.h"
#include "services/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class tst_CliCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void theVersionIsPrinted();
    void helpExplainsTheProgram();
    void helpExplainsAGroupOfCommands();
    void everyCommandHasAHelpWithAnExample();
    void everyExampleIsAValidCommandLine();
    void helpIsFoundBeforeAndBehindTheCommand();
    void optionsMayStandAnywhere();
    void anEmptyDataFolderIsRefused();
    void aWrongLineIsToldInOneLine_data();
    void aWrongLineIsToldInOneLine();
    void aWrongLineCannotSteerTheTerminal();
    void nothingIsDoneOnAWrongLine();
    void everyLanguageOfTheProgramIsTaken_data();
    void everyLanguageOfTheProgramIsTaken();
    void theHelpListsTheLanguages();
    void theHelpTellsTheLimitsOfATask();
    void theSystemDecidesTheLanguageOfWhatPeopleRead_data();
    void theSystemDecidesTheLanguageOfWhatPeopleRead();
    void theLanguageOfTheSourcesIsWhole();
    void machineOutputIsTheSameOnEverySystem();
    void anImageMustBeARegularFile();
    void anImageMayBeGivenThroughALink();
    void anImageGivenTwiceIsOneDrive();
    void outputThatIsLostIsAFailure();

private:
    QTemporaryDir m_home;
};

using namespace Qt::StringLiterals;

void tst_CliCommandLine::theVersionIsPrinted()
{
    CliRun run;
    run({u"--version"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, QByteArray("Quorvex 5.0\n"));
    QCOMPARE(run.io.err, QByteArray());
}

void tst_CliCommandLine::helpExplainsTheProgram()
{
    CliRun run;
    run({u"--help"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.err, QByteArray());
    for (const cli::Command &command : cli::allCommands())
        QVERIFY2(run.io.out.contains(command.name().toUtf8()), qPrintable(command.name()));
    for (const char *word : {"Usage: quorvex-cli", "Example:", "--json", "--data-dir DIR", "--image FILE",
                             "--only-images", "--lang CODE", "--quiet", "--version", "Exit codes:"})
        QVERIFY2(run.io.out.contains(word), word);
}

void tst_CliCommandLine::helpExplainsAGroupOfCommands()
{
    CliRun run;
    run({u"wipe"_s, u"--help"_s});
    QCOMPARE(run.code, 0);
    QVERIFY(run.io.out.contains("wipe disk DRIVE"));
    QVERIFY(run.io.out.contains("wipe free VOLUME..."));
    QVERIFY(run.io.out.contains("wipe files PATH..."));
    QVERIFY(!run.io.out.contains("  methods"));
}

void tst_CliCommandLine::everyCommandHasAHelpWithAnExample()
{
    for (const cli::Command &command : cli::allCommands()) {
        CliRun run;
        run(command.words + QStringList{u"--help"_s});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.io.err, QByteArray());
        QVERIFY(run.io.out.startsWith("Usage: quorvex-cli [OPTION...] " + command.name().toUtf8()));
        QVERIFY(run.io.out.contains("Example:\n  quorvex-cli " + command.example.toUtf8() + '\n'));
        for (const QCommandLineOption &option : command.options)
            QVERIFY(run.io.out.contains("--" + option.names().constFirst().toUtf8()));
    }
}

void tst_CliCommandLine::everyExampleIsAValidCommandLine()
{
    const QTemporaryDir folder;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path())); // the files named in examples do not exist here
    for (const cli::Command &command : cli::allCommands()) {
        CliRun run;
        run(QProcess::splitCommand(command.example));
        QVERIFY2(run.code == 0 || run.code == 3, qPrintable(command.example));
    }
    QVERIFY(QDir::setCurrent(previous));
}

void tst_CliCommandLine::helpIsFoundBeforeAndBehindTheCommand()
{
    CliRun before;
    before({u"--help"_s, u"wipe"_s, u"disk"_s});
    CliRun behind;
    behind({u"wipe"_s, u"disk"_s, u"7"_s, u"--help"_s});
    QCOMPARE(before.code, 0);
    QCOMPARE(behind.code, 0);
    QCOMPARE(before.io.out, behind.io.out);
}

void tst_CliCommandLine::optionsMayStandAnywhere()
{
    for (const QStringList &arguments :
         QList<QStringList>{{u"--json"_s, u"methods"_s}, {u"methods"_s, u"--json"_s}}) {
        CliRun run;
        run(arguments);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.io.documents().size(), 1);
    }
    // An option of the command stands before the command's words.
    CliRun run;
    run({u"--method"_s, u"nonsense"_s, u"wipe"_s, u"disk"_s, u"0"_s});
    QCOMPARE(run.code, 2);
    QVERIFY(run.complains("nonsense"));
}

void tst_CliCommandLine::anEmptyDataFolderIsRefused()
{
    TestIo io;
    QCOMPARE(cli::runCli({u"reports"_s, u"list"_s, u"--data-dir"_s, u""_s}, io, SourceTexts), 2);
    QVERIFY2(io.err.contains("--data-dir is empty"), io.err.constData());
}

void tst_CliCommandLine::aWrongLineIsToldInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<QByteArray>("help");
    const auto row = [](const char *name, const QStringList &arguments, const char *what, const char *help) {
        QTest::newRow(name) << arguments << QByteArray(what) << QByteArray(help);
    };
    row("nothing", {}, "no command given", "(read quorvex-cli --help)");
    row("unknown command", {u"frobnicate"_s}, "'frobnicate'", "(read quorvex-cli --help)");
    row("unknown command with help", {u"frobnicate"_s, u"--help"_s}, "'frobnicate'",
        "(read quorvex-cli --help)");
    row("half a command", {u"wipe"_s}, "'wipe'", "(read quorvex-cli wipe --help)");
    row("unknown in a group", {u"wipe"_s, u"moon"_s}, "'wipe moon'", "(read quorvex-cli wipe --help)");
    row("unknown option", {u"disks"_s, u"--frob"_s}, "'frob'", "(read quorvex-cli disks --help)");
    row("unknown option, no command", {u"--frob"_s}, "'frob'", "(read quorvex-cli --help)");
    row("option of another command", {u"disks"_s, u"--yes"_s}, "'yes'", "(read quorvex-cli disks --help)");
    row("value missing", {u"wipe"_s, u"disk"_s, u"0"_s, u"--data-dir"_s, u"x"_s, u"--method"_s}, "", "");
    row("value too many", {u"--quiet=2"_s, u"disks"_s}, "'--quiet'", "(read quorvex-cli disks --help)");
    row("argument missing", {u"wipe"_s, u"disk"_s}, "needs DRIVE", "(read quorvex-cli wipe disk --help)");
    row("no paths", {u"wipe"_s, u"files"_s}, "needs PATH...", "(read quorvex-cli wipe files --help)");
    row("argument too many", {u"wipe"_s, u"disk"_s, u"0"_s, u"1"_s}, "'1'",
        "(read quorvex-cli wipe disk --help)");
    row("argument of disks", {u"disks"_s, u"0"_s}, "'0'", "(read quorvex-cli disks --help)");
    row("unknown language", {u"--lang"_s, u"xx"_s, u"disks"_s}, "'xx'", "(read quorvex-cli --help)");
    row("language in capitals", {u"--lang"_s, u"DE"_s, u"disks"_s}, "'DE'", "(read quorvex-cli --help)");
    const auto option = [&row](const char *name, const QString &given, const char *what) {
        row(name, {u"wipe"_s, u"disk"_s, u"0"_s, given}, what, "(read quorvex-cli wipe disk --help)");
    };
    option("method by name", u"--method=Plan 9"_s, "'Plan 9'");
    option("method beyond the last", u"--method=1000"_s, "'1000'");
    option("method -1", u"--method=-1"_s, "'-1'");
    option("method empty", u"--method="_s, "''");
    option("no threads", u"--threads=0"_s, "from 1 to 32, not '0'");
    option("33 threads", u"--threads=33"_s, "from 1 to 32, not '33'");
    option("threads in words", u"--threads=two"_s, "from 1 to 32, not 'two'");
    option("no buffer", u"--buffer-mb=0"_s, "from 1 to 1024, not '0'");
    option("buffer too large", u"--buffer-mb=1025"_s, "from 1 to 1024, not '1025'");
    option("negative samples", u"--samples=-1"_s, "1 or more, not '-1'");
    option("samples beyond 32 bits", u"--samples=4294967296"_s, "1 or more, not '4294967296'");
    option("report without a name", u"--report="_s, "''");
    option("report without a folder", u"--report=no/such/folder/r.json"_s, "no/such/folder/r.json");
    option("report is a folder", u"--report=."_s, "folder");
#ifdef Q_OS_WIN
    option("report is a device", u"--report="_s + QProcess::nullDevice(), "no ordinary file");
#endif
    row("two volumes, one report", {u"wipe"_s, u"free"_s, u"a"_s, u"b"_s, u"--report=r.json"_s}, "--report",
        "(read quorvex-cli wipe free --help)");
    row("an empty path", {u"wipe"_s, u"files"_s, u"a"_s, QString()}, "empty",
        "(read quorvex-cli wipe files --help)");
}

void tst_CliCommandLine::aWrongLineIsToldInOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, what);
    QFETCH(const QByteArray, help);
    TestIo io;
    const QTemporaryDir folder;
    const int code = cli::runCli(arguments, io, SourceTexts);
    QCOMPARE(code, 2);
    QCOMPARE(io.out, QByteArray());
    QCOMPARE(io.err.count('\n'), 1);
    QVERIFY2(io.err.startsWith("quorvex-cli: "), io.err.constData());
    QVERIFY2(io.err.contains(what), io.err.constData());
    QVERIFY2(io.err.endsWith(help + '\n'), io.err.constData());
}

void tst_CliCommandLine::aWrongLineCannotSteerTheTerminal()
{
    for (const QStringList &arguments : QList<QStringList>{{u"fr\x1b[2Job\nnicate"_s},
                                                           {u"disks"_s, u"--fr\x1b[2Job\n"_s},
                                                           {u"--lang"_s, u"\x1b\u202E"_s}}) {
        CliRun run;
        run(arguments);
        QCOMPARE(run.code, 2);
        QCOMPARE(run.io.err.count('\n'), 1);
        QVERIFY(!run.io.err.contains('\x1b'));
        QVERIFY(!run.io.err.contains("\u202E"));
    }
}

void tst_CliCommandLine::nothingIsDoneOnAWrongLine()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"precious"_s);
    writeFile(file, "precious");
    CliRun run;
    run({u"wipe"_s, u"files"_s, file, u"--yes"_s, u"--threads=99"_s});
    QCOMPARE(run.code, 2);
    QCOMPARE(contentOf(file), QByteArray("precious"));
}

void tst_CliCommandLine::everyLanguageOfTheProgramIsTaken_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : languages::codes())
        QTest::newRow(qPrintable(code)) << code;
}

void tst_CliCommandLine::everyLanguageOfTheProgramIsTaken()
{
    QFETCH(const QString, language);
    CliRun run;
    run({u"methods"_s, u"--lang"_s, language});
    QCOMPARE(run.code, 0);
    QVERIFY(run.io.out.contains("NIST 800-88"));
}

void tst_CliCommandLine::theHelpListsTheLanguages()
{
    CliRun run;
    run({u"--help"_s});
    QCOMPARE(run.code, 0);
    const QString codes = languages::codes().join(u' ');
    QVERIFY(run.io.out.contains("Language: " + codes.toUtf8() + " (default: the system's)\n"));
}

void tst_CliCommandLine::theHelpTellsTheLimitsOfATask()
{
    CliRun run;
    run({u"wipe"_s, u"files"_s, u"--help"_s});
    const WipeTask usual;
    QVERIFY(
        run.io.out.contains("at the same time, 1 to " + QByteArray::number(WipeTask::MostThreads) + '\n'));
    QVERIFY(run.io.out.contains("buffer in MiB, 1 to " + QByteArray::number(WipeTask::LargestBufferMB) +
                                " (" + QByteArray::number(usual.bufferSizeMB()) + ")\n"));
    QVERIFY(run.io.out.contains("from a drive (" + QByteArray::number(usual.verifySampleSize()) + ")\n"));
}

namespace {

QByteArray methodsOn(const QString &systemLocale, const QStringList &options)
{
    TestIo io;
    const QTemporaryDir folder;
    return cli::runCli(options + QStringList{u"methods"_s, u"--data-dir"_s, folder.path()}, io,
                       systemLocale) == 0
               ? io.out
               : "failed";
}

} // namespace

void tst_CliCommandLine::theSystemDecidesTheLanguageOfWhatPeopleRead_data()
{
    QTest::addColumn<QString>("systemLocale");
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << u"de_DE"_s << u"de"_s;
    QTest::newRow("Austrian") << u"de_AT"_s << u"de"_s;
    QTest::newRow("no locale") << u"C"_s << u"en"_s;
    QTest::newRow("Russian has no catalogue") << u"ru_RU"_s << u"en"_s;
    QTest::newRow("Chinese") << u"zh_CN"_s << u"zh_CN"_s;
}

void tst_CliCommandLine::theSystemDecidesTheLanguageOfWhatPeopleRead()
{
    QFETCH(const QString, systemLocale);
    QFETCH(const QString, language);
    const QByteArray wanted = methodsOn(u"ja_JP"_s, {u"--lang"_s, language});
    QCOMPARE(methodsOn(systemLocale, {}), wanted);
    QVERIFY(wanted != methodsOn(u"ja_JP"_s, {}));
}

// Half of the source texts are English.
void tst_CliCommandLine::theLanguageOfTheSourcesIsWhole()
{
    CliRun run;
    run({u"wipe"_s, u"disk"_s, u"--help"_s, u"--lang"_s, u"zh_CN"_s});
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.contains("擦除整个驱动器"), run.io.out.constData());
    QVERIFY2(!run.io.out.contains("Erases a whole drive"), run.io.out.constData());
}

void tst_CliCommandLine::machineOutputIsTheSameOnEverySystem()
{
    const QByteArray source = methodsOn(u"zh_CN"_s, {u"--json"_s});
    QCOMPARE(methodsOn(u"de_DE"_s, {u"--json"_s}), source);
    QVERIFY(methodsOn(u"de_DE"_s, {u"--json"_s, u"--lang"_s, u"de"_s}) != source);
}

void tst_CliCommandLine::anImageMustBeARegularFile()
{
    const QTemporaryDir folder;
    for (const QString &image :
         {folder.filePath(u"missing.img"_s), folder.path(), QProcess::nullDevice(), QString()}) {
        CliRun run;
        run({u"disks"_s, u"--only-images"_s, u"--image"_s, image});
        QCOMPARE(run.code, 3);
        QVERIFY2(run.complains("no image file"), run.io.err.constData());
        QCOMPARE(run.io.out, QByteArray());
    }
}

void tst_CliCommandLine::anImageMayBeGivenThroughALink()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.img"_s), QByteArray(4096, 'x'));
    if (!makeLink(folder.filePath(u"a.img"_s), folder.filePath(u"link"_s)))
        QSKIP(NoLinks);
    CliRun run;
    run({u"--json"_s, u"disks"_s, u"--only-images"_s, u"--image"_s, folder.filePath(u"link"_s), u"--image"_s,
         folder.filePath(u"a.img"_s)});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.documents().size(), 1);
    QCOMPARE(run.io.documents().constFirst().array().size(), 1); // one file on one drive
}

void tst_CliCommandLine::anImageGivenTwiceIsOneDrive()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.img"_s), QByteArray(4096, 'x'));
    QStringList names{folder.filePath(u"a.img"_s), folder.filePath(u"./a.img"_s)};
    if (QFileInfo::exists(folder.filePath(u"A.IMG"_s))) // on a case-insensitive file system
        names.append(folder.filePath(u"A.IMG"_s));
    QStringList arguments{u"--json"_s, u"disks"_s, u"--only-images"_s};
    for (const QString &name : std::as_const(names))
        arguments += QStringList{u"--image"_s, name};
    CliRun run;
    run(arguments);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.documents().constFirst().array().size(), 1);
}

void tst_CliCommandLine::outputThatIsLostIsAFailure()
{
    CliRun run;
    run.io.losesOutput = true;
    run({u"methods"_s});
    QCOMPARE(run.code, 5);
    QVERIFY(run.complains("output"));
}

QUORVEX_SUITE(tst_CliCommandLine, QCoreApplication)
#include "tst_clicommandline.moc"
