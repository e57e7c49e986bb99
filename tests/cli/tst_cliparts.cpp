#include "cli/testio.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "cli/io/amounttext.h"
#include "cli/io/outputfile.h"
#include "cli/io/paths.h"
#include "cli/io/permission.h"
#include "cli/io/table.h"
#include "cli/job/confirmation.h"
#include "cli/job/progressline.h"
#include "cli/job/textjobview.h"
#include "model/wipereport.h"
#include "model/wipetask.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_CliParts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void aPathIsSeenFromTheCurrentFolder();
    void aPathOfWindowsIsCompleted();
    void aPathThroughALinkAndBackIsNoticed();
    void belowAFolderIsNotBesideIt();
    void lettersCountAsTheyDoForTheSystem();
    void missingRightsAreHintedAt();

    void cellsStandBelowEachOther();
    void wideCharactersTakeTwoColumns();
    void textIsClippedToColumns();
    void durationsAreShortTexts();

    void theWordEraseConfirms();
    void anythingElseDoesNotConfirm_data();
    void anythingElseDoesNotConfirm();
    void withoutATerminalNobodyIsAsked();
    void yesSkipsTheQuestion();
    void theQuestionGoesWhereItIsSeen();
    void aStopAtTheQuestionCancels();

    void progressIsDrawnOnOneLine();
    void progressNeverWraps();
    void progressLeavesNoTraceBehind();
    void progressIsSilentWithoutATerminal();
    void logLinesReplaceTheProgressLine();

    void anOutputFileInsideWhatIsErasedIsNoticed();
    void anOutputFileIsReplacedAsAWhole();
    void anOutputFileThatCannotBeWrittenSaysSo();

private:
    QTemporaryDir m_home;
};

namespace {

cli::JobProgress halfWay()
{
    return {.percent = 50, .pass = 1, .passes = 2, .bytes = 1024, .bytesPerSecond = 2.0 * 1024 * 1024};
}

} // namespace

void tst_CliParts::aPathIsSeenFromTheCurrentFolder()
{
    const QString here = QDir::currentPath();
    const QString root = here.first(here.indexOf(u'/') + 1);
    QCOMPARE(cli::absolutePath(u"a/./b/"_s), here + u"/a/b"_s);
    QCOMPARE(cli::absolutePath(u"/x//y/../z"_s), root + u"x/z"_s);
    QCOMPARE(cli::absolutePath(u"."_s), here);
    QCOMPARE(cli::absolutePath(QString()), QString());
    // A path that Qt takes for a resource is a file to all other programs.
    QCOMPARE(cli::absolutePath(u":/icons"_s), here + u"/:/icons"_s);
    QCOMPARE(cli::absolutePath(u"qrc:x"_s), here + u"/qrc:x"_s);
}

void tst_CliParts::aPathOfWindowsIsCompleted()
{
#ifdef Q_OS_WIN
    const QString drive = QDir::currentPath().left(2);
    QCOMPARE(cli::absolutePath(u"\\x\\y"_s), drive + u"/x/y"_s);
    QCOMPARE(cli::absolutePath(u"\\"_s), drive + u'/');
    QCOMPARE(cli::absolutePath(drive + u"x"_s), QDir::currentPath() + u"/x"_s);
    QCOMPARE(cli::absolutePath(drive), drive + u'/');
    QCOMPARE(cli::absolutePath(drive + u"\\x\\..\\y"_s), drive + u"/y"_s);
    QCOMPARE(cli::absolutePath(uR"(\\.\PhysicalDrive1)"_s), u"//./PhysicalDrive1"_s);
    QCOMPARE(cli::absolutePath(uR"(\\server\share\x)"_s), u"//server/share/x"_s);
#else
    QCOMPARE(cli::absolutePath(u"C:x"_s), QDir::currentPath() + u"/C:x"_s);
    QCOMPARE(cli::absolutePath(u"C:"_s), QDir::currentPath() + u"/C:"_s);
    QCOMPARE(cli::absolutePath(u"\\x"_s), QDir::currentPath() + u"/\\x"_s);
#endif
}

void tst_CliParts::aPathThroughALinkAndBackIsNoticed()
{
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows takes \"..\" out of a path itself, without a look at links");
#endif
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"a/b"_s));
    QVERIFY(QDir(folder.path()).mkpath(u"elsewhere/deep"_s));
    QVERIFY(makeLink(folder.filePath(u"elsewhere/deep"_s), folder.filePath(u"a/link"_s)));
    QVERIFY(!cli::leadsBackThroughLink(folder.filePath(u"a/b/../b"_s)));
    QVERIFY(!cli::leadsBackThroughLink(folder.filePath(u"a/link"_s)));
    QVERIFY(!cli::leadsBackThroughLink(folder.filePath(u"a/..link"_s)));
    QVERIFY(cli::leadsBackThroughLink(folder.filePath(u"a/link/../b"_s)));
    QVERIFY(cli::leadsBackThroughLink(folder.filePath(u"a/link/.."_s)));
}

void tst_CliParts::belowAFolderIsNotBesideIt()
{
    QVERIFY(cli::isSameOrBelow(u"/a/b"_s, u"/a"_s));
    QVERIFY(cli::isSameOrBelow(u"/a"_s, u"/a"_s));
    QVERIFY(cli::isSameOrBelow(u"/a"_s, u"/"_s));
    QVERIFY(!cli::isSameOrBelow(u"/ab"_s, u"/a"_s));
    QVERIFY(!cli::isSameOrBelow(u"/"_s, u"/a"_s));
}

void tst_CliParts::lettersCountAsTheyDoForTheSystem()
{
#ifdef Q_OS_WIN
    const bool isOneFile = true;
#else
    const bool isOneFile = false;
#endif
    const QTemporaryDir folder;
    const auto small = cli::OutputFile::at(folder.filePath(u"report.json"_s), {});
    const auto large = cli::OutputFile::at(folder.filePath(u"REPORT.json"_s), {});
    QVERIFY(small && large);
    QVERIFY(small->isSameAs(*small));
    QCOMPARE(small->isSameAs(*large), isOneFile);
    writeFile(large->path(), "{}");
    QCOMPARE(small->isSameAs(*large), isOneFile);
    QCOMPARE(small->liesWithin({large->path()}), isOneFile);
    QVERIFY(large->liesWithin({large->path()}));
}

void tst_CliParts::missingRightsAreHintedAt()
{
#ifdef Q_OS_WIN
    QCOMPARE(cli::notPermitted(u"no"_s), u"no; try it as administrator"_s);
#else
    QCOMPARE(cli::notPermitted(u"no"_s), u"no; try it with sudo"_s);
#endif
}

void tst_CliParts::cellsStandBelowEachOther()
{
    cli::Table table;
    table.addRow({u"1"_s, u"long cell"_s, u"x"_s});
    table.addLine(u"    a line that is longer than every cell"_s);
    table.addRow({u"23"_s, u"cell"_s, QString()});
    QCOMPARE(table.text(1), u" 1   long cell  x\n     a line that is longer than every cell\n 23  cell\n"_s);
}

void tst_CliParts::wideCharactersTakeTwoColumns()
{
    QCOMPARE(cli::displayWidth(u"abc"_s), 3);
    QCOMPARE(cli::displayWidth(u"磁盘"_s), 4);
    QCOMPARE(cli::displayWidth(u"e\u0301"_s), 1);
    cli::Table table;
    table.addRow({u"磁盘"_s, u"x"_s});
    table.addRow({u"abcd"_s, u"y"_s});
    QCOMPARE(table.text(), u"磁盘  x\nabcd  y\n"_s);
}

void tst_CliParts::textIsClippedToColumns()
{
    QCOMPARE(cli::clipped(u"abcdef"_s, 3), u"abc"_s);
    QCOMPARE(cli::clipped(u"磁盘x"_s, 3), u"磁"_s);
    QCOMPARE(cli::clipped(u"abc"_s, 3), u"abc"_s);
    QCOMPARE(cli::clipped(u"abc"_s, 0), QString());
}

void tst_CliParts::durationsAreShortTexts()
{
    QCOMPARE(cli::durationText(0), u"0s"_s);
    QCOMPARE(cli::durationText(59), u"59s"_s);
    QCOMPARE(cli::durationText(60), u"1m 0s"_s);
    QCOMPARE(cli::durationText(3599), u"59m 59s"_s);
    QCOMPARE(cli::durationText(3605), u"1h 0m 5s"_s);
}

void tst_CliParts::theWordEraseConfirms()
{
    TestIo io;
    io.inputIsTerminal = io.outputIsTerminal = true;
    io.input = QStringList{u"ERASE"_s};
    QVERIFY(!cli::confirm({u"  the drive"_s}, {}, io));
    QVERIFY(io.out.contains("  the drive\n"));
    QVERIFY(io.out.contains("ERASE"));
    QCOMPARE(io.linesRead, 1);
}

void tst_CliParts::anythingElseDoesNotConfirm_data()
{
    QTest::addColumn<QStringList>("input");
    QTest::newRow("lower case") << QStringList{u"erase"_s};
    QTest::newRow("blank before") << QStringList{u" ERASE"_s};
    QTest::newRow("blank behind") << QStringList{u"ERASE "_s};
    QTest::newRow("yes") << QStringList{u"yes"_s};
    QTest::newRow("empty line") << QStringList{QString()};
    QTest::newRow("end of the input") << QStringList{};
    QTest::newRow("a second try") << QStringList{u"no"_s, u"ERASE"_s};
}

void tst_CliParts::anythingElseDoesNotConfirm()
{
    QFETCH(const QStringList, input);
    TestIo io;
    io.inputIsTerminal = io.outputIsTerminal = true;
    io.input = input;
    const auto refusal = cli::confirm({u"  the drive"_s}, {}, io);
    QVERIFY(refusal);
    QCOMPARE(refusal->code, cli::Refused);
}

void tst_CliParts::withoutATerminalNobodyIsAsked()
{
    TestIo io;
    io.input = QStringList{u"ERASE"_s}; // as from a pipe
    const auto refusal = cli::confirm({u"  the drive"_s}, {}, io);
    QVERIFY(refusal);
    QCOMPARE(refusal->code, cli::Refused);
    QVERIFY(refusal->message.contains(u"--yes"_s));
    QCOMPARE(io.linesRead, 0);
}

void tst_CliParts::yesSkipsTheQuestion()
{
    TestIo io;
    QVERIFY(!cli::confirm({u"  the drive"_s}, {.skipQuestion = true}, io));
    QCOMPARE(io.linesRead, 0);
    QVERIFY(io.out.contains("  the drive\n"));
    TestIo quiet;
    QVERIFY(!cli::confirm({u"  the drive"_s}, {.skipQuestion = true, .quiet = true}, quiet));
    QCOMPARE(quiet.out + quiet.err, QByteArray());
}

void tst_CliParts::theQuestionGoesWhereItIsSeen()
{
    TestIo json;
    json.inputIsTerminal = json.outputIsTerminal = true;
    json.input = QStringList{u"ERASE"_s};
    QVERIFY(!cli::confirm({u"  the drive"_s}, {.json = true}, json));
    QCOMPARE(json.out, QByteArray());
    QVERIFY(json.err.contains("  the drive\n"));

    TestIo intoAFile;
    intoAFile.inputIsTerminal = true;
    intoAFile.input = QStringList{u"ERASE"_s};
    QVERIFY(!cli::confirm({u"  the drive"_s}, {.quiet = true}, intoAFile));
    QCOMPARE(intoAFile.out, QByteArray());
    QVERIFY(intoAFile.err.contains("  the drive\n"));
}

void tst_CliParts::aStopAtTheQuestionCancels()
{
    TestIo io;
    io.inputIsTerminal = io.outputIsTerminal = true;
    io.input = QStringList{u"ERASE"_s};
    io.onQuestion = [&io] { io.stopRequest().request(); };
    const auto refusal = cli::confirm({u"  the drive"_s}, {}, io);
    QVERIFY(refusal);
    QCOMPARE(refusal->code, cli::Cancelled);
}

void tst_CliParts::progressIsDrawnOnOneLine()
{
    TestIo io;
    io.errorIsTerminal = true;
    cli::ProgressLine line(io);
    line.show(halfWay());
    QVERIFY(io.err.startsWith("\r 50%  pass 1/2  2.00 MB/s  "));
    QVERIFY(io.err.endsWith("left"));
    QVERIFY(!io.err.contains('\n'));
    QCOMPARE(io.out, QByteArray());

    // Rate and remaining time are left out while they are unknown.
    io.err.clear();
    line.show({.percent = 0, .pass = 1, .passes = 2});
    QVERIFY(io.err.startsWith("\r  0%  pass 1/2 "));
    QVERIFY(!io.err.contains("left"));
    QVERIFY(!io.err.contains("/s"));
}

void tst_CliParts::progressNeverWraps()
{
    TestIo io;
    io.errorIsTerminal = true;
    io.width = 12;
    cli::ProgressLine line(io);
    line.show(halfWay());
    QCOMPARE(io.err, QByteArray("\r 50%  pass "));
    io.err.clear();
    io.width = 4; // the window was made smaller
    line.show(halfWay());
    QCOMPARE(io.err, QByteArray("\r 50"));
}

void tst_CliParts::progressLeavesNoTraceBehind()
{
    TestIo io;
    io.errorIsTerminal = true;
    cli::ProgressLine line(io);
    line.end();
    QCOMPARE(io.err, QByteArray()); // an undrawn line needs no clearing
    line.show(halfWay());
    const qsizetype drawn = io.err.size() - 1;
    io.err.clear();
    line.end();
    QCOMPARE(io.err, '\r' + QByteArray(drawn, ' ') + '\r');
    io.err.clear();
    line.restore();
    QCOMPARE(io.err, QByteArray());
}

void tst_CliParts::progressIsSilentWithoutATerminal()
{
    TestIo io;
    cli::ProgressLine line(io);
    line.show(halfWay());
    line.end();
    QCOMPARE(io.err + io.out, QByteArray());
}

void tst_CliParts::logLinesReplaceTheProgressLine()
{
    TestIo io;
    io.errorIsTerminal = true;
    cli::TextJobView view(io, false);
    const WipeTask task;
    view.started(task, u"target"_s);
    view.progress(halfWay());
    const QByteArray drawn = io.err;
    io.err.clear();
    QByteArray errorsBeforeTheLine;
    io.onOutput = [&](const QByteArray &) { errorsBeforeTheLine = io.err; };
    view.log(u"me\x1b[31mssage"_s, 1);
    QCOMPARE(io.out, QByteArray("[warning] me[U+001B][31mssage\n"));
    QVERIFY(errorsBeforeTheLine.trimmed().isEmpty()); // cleared first
    QVERIFY(errorsBeforeTheLine.endsWith('\r'));
    QVERIFY(io.err.endsWith(drawn)); // and drawn again
    io.out.clear();
    view.log(QString(), 0);
    QCOMPARE(io.out, QByteArray("\n"));
}

void tst_CliParts::anOutputFileInsideWhatIsErasedIsNoticed()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"erased/sub"_s));
    const auto lies = [&folder](const QString &name, const QString &doomed) {
        const auto file = cli::OutputFile::at(folder.filePath(name), {});
        return file && file->liesWithin({folder.filePath(doomed)});
    };
    QVERIFY(lies(u"erased/r.json"_s, u"erased"_s));
    QVERIFY(lies(u"r.json"_s, u"r.json"_s));
    QVERIFY(!lies(u"r.json"_s, u"erased"_s));
    QVERIFY(!lies(u"erased/r.json"_s, u"erased/sub"_s));
    const bool caseMatters = !QFileInfo::exists(folder.filePath(u"ERASED"_s));
    QCOMPARE(lies(u"erased/sub/r.json"_s, u"ERASED"_s), !caseMatters);
    QCOMPARE(lies(u"ERASED/r.json"_s, u"erased"_s), !caseMatters);

    if (!makeLink(folder.filePath(u"erased/sub"_s), folder.filePath(u"link"_s)))
        QSKIP(NoLinks);
    QVERIFY(lies(u"link/r.json"_s, u"erased"_s));
    writeFile(folder.filePath(u"target"_s), "x");
    QVERIFY(makeLink(folder.filePath(u"target"_s), folder.filePath(u"r2.json"_s)));
    QVERIFY(lies(u"r2.json"_s, u"target"_s)); // the report would follow the link into the target
}

void tst_CliParts::anOutputFileIsReplacedAsAWhole()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"r.json"_s);
    writeFile(path, QByteArray(100'000, 'o'));
    const auto file = cli::OutputFile::at(path, {});
    QVERIFY(file);
    QVERIFY(file->isWritable());
    QCOMPARE(contentOf(path), QByteArray(100'000, 'o')); // the trial changed nothing
    QVERIFY(file->write("{}"));
    QCOMPARE(contentOf(path), QByteArray("{}"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"r.json"_s});
}

void tst_CliParts::anOutputFileThatCannotBeWrittenSaysSo()
{
    const QTemporaryDir folder;
    const auto file = cli::OutputFile::at(folder.filePath(u"r.json"_s), {});
    QVERIFY(file);
    QVERIFY(QDir(folder.path()).removeRecursively());
    QVERIFY(!file->isWritable());
    QVERIFY(!file->write("{}"));
    const auto undecodable = cli::OutputFile::at(u"/"_s + QChar(0xDCE9), {});
    QVERIFY(!undecodable);
    QCOMPARE(undecodable.refusal().code, cli::WrongCommandLine);
}

QUORVEX_SUITE(tst_CliParts, QCoreApplication)
#include "tst_cliparts.moc"
