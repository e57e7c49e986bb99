#include "cli/runcli.h"
#include "cli/testio.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace Qt::StringLiterals;

class tst_CliWipeFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }
    void init();
    void cleanup();

    void filesAndFoldersAreErased();
    void progressNeverPassesItsTotal();
    void aRelativePathIsSeenFromTheCurrentFolder();
    void aLinkIsRemovedAndItsTargetKept();
    void aMissingPathIsRefusedBeforeAnythingIsErased();
    void theRootOfAVolumeIsRefused_data();
    void theRootOfAVolumeIsRefused();
    void aDeviceIsRefused();
    void aPathBackThroughALinkIsRefused();
    void anEmptyPathDoesNotMeanTheCurrentFolder();
    void aPathThatLooksLikeAnOptionIsErased();
    void theQuestionTellsFilesAndBytes();
    void whatIsSwappedBeforeTheAnswerIsLeft_data();
    void whatIsSwappedBeforeTheAnswerIsLeft();
    void aLongListIsCutShort();
    void namesCannotSteerTheTerminal();
    void furtherNamesAreToldInTheQuestion();
    void countingEndsWithAStop();
    void aReportInsideWhatIsErasedIsRefused();

private:
    QString path(const QString &name) const { return m_folder->path() + u'/' + name; }
    bool exists(const QString &name) const { return QFileInfo(path(name)).exists(); }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_previous;
};

namespace {

QStringList wipeFiles(const QStringList &paths, const QStringList &options = {u"--yes"_s})
{
    return QStringList{u"wipe"_s, u"files"_s, u"--only-images"_s} + options + paths;
}

} // namespace

void tst_CliWipeFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(QDir().mkpath(u"keep"_s));
    QVERIFY(QDir().mkpath(u"folder/sub"_s));
    writeFile(u"keep/kept.txt"_s, "kept");
    writeFile(u"one.txt"_s, QByteArray(1000, '1'));
    writeFile(u"folder/two.txt"_s, QByteArray(2000, '2'));
    writeFile(u"folder/sub/three.txt"_s, QByteArray(3000, '3'));
}

void tst_CliWipeFiles::cleanup()
{
    QVERIFY(QDir::setCurrent(m_previous));
    m_folder.reset();
}

void tst_CliWipeFiles::filesAndFoldersAreErased()
{
    CliRun run;
    run(wipeFiles({path(u"one.txt"_s), path(u"folder"_s)}));
    QCOMPARE(run.code, 0);
    QVERIFY(!exists(u"one.txt"_s));
    QVERIFY(!exists(u"folder"_s));
    QCOMPARE(contentOf(path(u"keep/kept.txt"_s)), QByteArray("kept"));
    const QByteArray last = run.io.out.trimmed().split('\n').constLast();
    QVERIFY2(last.contains(" and 1 more, NIST 800-88, 3 files of 5.86 KB in "), last.constData());
}

void tst_CliWipeFiles::progressNeverPassesItsTotal()
{
    // The engine's percentage runs ahead in later passes, so only a line from there shows whether it is
    // printed. A faster machine needs a larger file to reach a second line.
    constexpr int LatePass = 20;
    constexpr qint64 Largest = 256 << 20;
    bool isLate = false;
    for (qint64 size = 16 << 20; !isLate && size <= Largest; size *= 2) {
        const qint64 total = 35 * size;
        writeFile(u"large"_s, QByteArray(size, '4'));
        CliRun run;
        run(wipeFiles(
            {path(u"large"_s), u"--json"_s, u"--method"_s, u"gutmann"_s, u"--buffer-mb"_s, u"1"_s}));
        QCOMPARE(run.code, 0);
        for (const QJsonObject &progress : run.io.events(u"progress"_s)) {
            QVERIFY2(progress.value(u"bytes").toString().toLongLong() <= total,
                     qPrintable(progress.value(u"bytes").toString()));
            isLate = isLate || progress.value(u"pass").toInt() > LatePass;
        }
        QCOMPARE(run.io.events().constLast().value(u"written"), QJsonValue(QString::number(total)));
    }
    QVERIFY(isLate);
}

void tst_CliWipeFiles::aRelativePathIsSeenFromTheCurrentFolder()
{
    CliRun run;
    run(wipeFiles({u"./folder/../one.txt"_s}));
    QCOMPARE(run.code, 0);
    QVERIFY(!exists(u"one.txt"_s));
    QVERIFY(exists(u"folder/two.txt"_s));
}

void tst_CliWipeFiles::aLinkIsRemovedAndItsTargetKept()
{
    if (!makeLink(path(u"keep"_s), path(u"link"_s)) || !makeLink(path(u"nowhere"_s), path(u"dangling"_s)))
        QSKIP(NoLinks);
    CliRun run;
    run(wipeFiles({u"link/"_s, u"dangling"_s}));
    QCOMPARE(run.code, 1);
    QVERIFY2(run.io.out.contains("    links are removed, what they lead to is not erased: "),
             run.io.out.constData());
    QVERIFY(run.io.out.contains("PARTLY DONE: "));
    QVERIFY(!QFileInfo(path(u"link"_s)).isSymLink());
    QVERIFY(!QFileInfo(path(u"dangling"_s)).isSymLink());
    QCOMPARE(contentOf(path(u"keep/kept.txt"_s)), QByteArray("kept"));
}

void tst_CliWipeFiles::aMissingPathIsRefusedBeforeAnythingIsErased()
{
    CliRun run;
    run(wipeFiles({u"one.txt"_s, u"missing.txt"_s}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("File not found: missing.txt"), run.io.err.constData());
    QCOMPARE(contentOf(path(u"one.txt"_s)), QByteArray(1000, '1'));
}

void tst_CliWipeFiles::theRootOfAVolumeIsRefused_data()
{
    QTest::addColumn<QString>("root");
    QTest::newRow("of the system") << u"/"_s;
#ifdef Q_OS_WIN
    QTest::newRow("the other slash") << uR"(\)"_s;
    QTest::newRow("with drive") << uR"(C:\)"_s;
    QTest::newRow("small letter") << u"c:/"_s;
    QTest::newRow("only a drive") << u"C:"_s;
    QTest::newRow("from inside") << uR"(C:\windows\..)"_s;
    QTest::newRow("long form") << uR"(\\?\C:\)"_s;
#else
    QTest::newRow("with more slashes") << u"///"_s;
    QTest::newRow("another one") << u"/proc"_s;
    QTest::newRow("from inside") << u"/proc/self/.."_s;
#endif
}

void tst_CliWipeFiles::theRootOfAVolumeIsRefused()
{
    QFETCH(const QString, root);
    // Without --yes and without a terminal the command would stay safe even if it were not refused.
    CliRun run;
    run(wipeFiles({u"one.txt"_s, root}, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("is the root of a volume") || run.complains("goes back through a link"),
             run.io.err.constData());
}

void tst_CliWipeFiles::aDeviceIsRefused()
{
    CliRun run;
    run(wipeFiles({u"one.txt"_s, QProcess::nullDevice()}, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("wipe disk"), run.io.err.constData());
}

void tst_CliWipeFiles::aPathBackThroughALinkIsRefused()
{
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows takes \"..\" out of a path itself, without a look at links");
#endif
    QVERIFY(makeLink(path(u"folder/sub"_s), path(u"keep/link"_s)));
    CliRun run;
    run(wipeFiles({u"keep/link/../kept.txt"_s})); // resolved by the system to folder/kept.txt
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("back through a link"), run.io.err.constData());
    QVERIFY(exists(u"keep/kept.txt"_s));
}

void tst_CliWipeFiles::anEmptyPathDoesNotMeanTheCurrentFolder()
{
    CliRun run;
    run(wipeFiles({QString()}));
    QCOMPARE(run.code, 2);
    QVERIFY(exists(u"one.txt"_s));
}

void tst_CliWipeFiles::aPathThatLooksLikeAnOptionIsErased()
{
    writeFile(u"--quiet"_s, "x");
    writeFile(path(u":resource"_s), "x");
    TestIo io;
    const int code = cli::runCli(
        {u"wipe"_s, u"files"_s, u"--only-images"_s, u"--yes"_s, u"--"_s, u"--quiet"_s, u":resource"_s}, io,
        SourceTexts);
    QCOMPARE(code, 0);
    QVERIFY(!exists(u"--quiet"_s));
    QVERIFY(!exists(u":resource"_s));
    QVERIFY(io.out.contains("[info]"));
}

void tst_CliWipeFiles::theQuestionTellsFilesAndBytes()
{
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"no"_s};
    run(wipeFiles({u"folder"_s, u"one.txt"_s}, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.io.out.contains("\n  3 files, 5.86 KB\n"), run.io.out.constData());
    QVERIFY(run.io.out.contains(path(u"folder"_s).toUtf8()));
    QVERIFY(exists(u"one.txt"_s));
}

void tst_CliWipeFiles::whatIsSwappedBeforeTheAnswerIsLeft_data()
{
    QTest::addColumn<QString>("swapped");
    QTest::newRow("the folder above") << u"work"_s;
    QTest::newRow("the folder itself") << u"work/target"_s;
    QTest::newRow("the folder itself, by another") << QString();
}

void tst_CliWipeFiles::whatIsSwappedBeforeTheAnswerIsLeft()
{
    QFETCH(QString, swapped);
    writeFile(u"work/target/a"_s, "chosen");
    writeFile(u"keep/target/a"_s, "not chosen");
    writeFile(u"keep/a"_s, "not chosen");
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    bool isMade = false;
    run.io.onQuestion = [&] {
        if (swapped.isEmpty())
            isMade = QFile::rename(u"work/target"_s, u"away"_s) &&
                     QFile::rename(u"keep/target"_s, u"work/target"_s);
        else
            isMade = QFile::rename(swapped, u"away"_s) && makeLink(path(u"keep"_s), path(swapped));
    };
    run(wipeFiles({u"work/target"_s, u"one.txt"_s}, {}));
    if (!isMade)
        QSKIP(NoLinks);
    QVERIFY(!exists(u"one.txt"_s));
    QCOMPARE(contentOf(swapped.isEmpty() ? u"work/target/a"_s : u"keep/target/a"_s), "not chosen");
    QCOMPARE(contentOf(u"keep/a"_s), "not chosen");
    QVERIFY2(run.code != 0, run.io.out.constData());
    QVERIFY2(run.io.out.contains("work/target"), run.io.out.constData());
}

void tst_CliWipeFiles::aLongListIsCutShort()
{
    QStringList names;
    for (int i = 0; i < 25; ++i) {
        names.append(u"file-%1"_s.arg(i));
        writeFile(names.constLast(), "x");
    }
    CliRun run;
    run(wipeFiles(names, {}));
    QCOMPARE(run.code, 3);
    QVERIFY(run.io.out.contains("file-19\n"));
    QVERIFY(!run.io.out.contains("file-20\n"));
    QVERIFY(run.io.out.contains("  and 5 more\n  25 files, 25 B\n"));
}

void tst_CliWipeFiles::namesCannotSteerTheTerminal()
{
#ifdef Q_OS_WIN
    const QString name = u"name\u202Etxt"_s; // Windows has no names with control characters
#else
    const QString name = u"na\x1b[2Jme\n\u202Etxt"_s;
#endif
    writeFile(name, "x");
    CliRun run;
    run(wipeFiles({name, u"missing\x1b[2J\n"_s}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("missing[U+001B][2J[U+000A]"), run.io.err.constData());

    CliRun wiping;
    wiping(wipeFiles({name}));
    QCOMPARE(wiping.code, 0);
    for (const QChar character : QString::fromUtf8(wiping.io.out + wiping.log()))
        QVERIFY(character == u'\n' || character.isPrint());
}

void tst_CliWipeFiles::furtherNamesAreToldInTheQuestion()
{
    std::filesystem::create_hard_link(path(u"folder/two.txt"_s).toStdU16String(),
                                      path(u"keep/name.txt"_s).toStdU16String());
    CliRun run;
    run.io.inputIsTerminal = true;
    run.io.input = {u"no"_s};
    run(wipeFiles({u"folder"_s, u"one.txt"_s}, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.io.err.contains("  1 file has further names; its content is erased under these too\n"),
             run.io.err.constData());
    QCOMPARE(contentOf(path(u"keep/name.txt"_s)), QByteArray(2000, '2'));
    CliRun alone;
    alone.io.inputIsTerminal = true;
    alone.io.input = {u"no"_s};
    alone(wipeFiles({u"one.txt"_s}, {}));
    QVERIFY2(!alone.io.err.contains("further names"), alone.io.err.constData());
}

void tst_CliWipeFiles::countingEndsWithAStop()
{
    CliRun run;
    run.io.stopRequest().request();
    run(wipeFiles({u"folder"_s}));
    QCOMPARE(run.code, 4);
    QVERIFY(exists(u"folder/two.txt"_s));
}

void tst_CliWipeFiles::aReportInsideWhatIsErasedIsRefused()
{
    CliRun run;
    run(wipeFiles({u"folder"_s, u"--report"_s, u"folder/sub/r.json"_s}));
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("lies in what is to be erased"), run.io.err.constData());
    QVERIFY(exists(u"folder/two.txt"_s));
}

QUORVEX_SUITE(tst_CliWipeFiles, QCoreApplication)
#include "tst_cliwipefiles.moc"
