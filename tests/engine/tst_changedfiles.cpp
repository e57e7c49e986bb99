#include "filejob.h"
#include "model/joboutcome.h"
#include "platform/forwarding.h"
#include "support/faultplan.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::OpenMode;
using platform::Status;

namespace {

const QByteArray Stranger = QByteArrayLiteral("somebody else's");

// A handle of a file system without lasting file numbers.
class NumberlessHandle : public platform::ForwardingFileHandle
{
public:
    using ForwardingFileHandle::ForwardingFileHandle;
    platform::Result<platform::FileId> id() override { return Status{platform::NotSupported, 0, "planned"}; }
};

// Two passes over two files; another program changes the first file in between.
struct Scenario
{
    FileJob job;
    QString changed = job.makeFile(u"t/changed"_s, 10);
    QString kept = job.makeFile(u"kept"_s, 10);

    Scenario() { job.setPasses({{PatternType::Zeros}, {PatternType::Ones}}); }

    // Replaces the file like an editor that saves to a new file under the same name.
    void replace()
    {
        writeFile(job.path(u"new"_s), Stranger);
        if (!QFile::remove(changed) || !QFile::rename(job.path(u"new"_s), changed))
            QTest::qFail("the file is not replaced", __FILE__, __LINE__);
    }
    void at(const QString &line, const std::function<void()> &change)
    {
        job.said.onLine = [line, change](const QString &said) {
            if (said == line)
                change();
        };
    }
    // Simulates a file system without lasting file numbers.
    void forgetNumbers()
    {
        job.files.wrap = [](std::unique_ptr<platform::FileHandle> handle, const FileCall &) {
            return std::unique_ptr<platform::FileHandle>(
                std::make_unique<NumberlessHandle>(std::move(handle)));
        };
    }
    bool run() { return job.run({changed, kept}); }
    QList<Shortfall> shortfalls() const { return job.task.outcome().shortfalls(); }
    // The replacing file was left alone, the other file was erased.
    bool isLeftAlone() const { return contentIfAny(changed) == Stranger && !QFile::exists(kept); }
    bool isSaid() const { return job.lines().contains(u"1 文件已被替换，保持原样: "_s + changed); }
};

QString appendTo(const QString &path, const QByteArray &bytes)
{
    return writeFile(path, contentOf(path) + bytes);
}

void addNumberRows()
{
    QTest::addColumn<bool>("hasNumbers");
    QTest::newRow("by its number") << true;
    QTest::newRow("by its kind") << false;
}

} // namespace

// Changes that other programs make to the files of a running job.
class tst_ChangedFiles : public QObject
{
    Q_OBJECT

private slots:
    void unchangedFiles();
    void vanishedAfterTheLastPass();
    void anEmptyFileThatVanished();
    void twoSpellingsOfOnePath();
    void replacedWhen_data();
    void replacedWhen();
    void replacedBetweenTheLookAndTheOpening_data();
    void replacedBetweenTheLookAndTheOpening();
    void madeAnewUnderItsNumber();
    void replacedByALink_data();
    void replacedByALink();
    void replacedByAFolder_data();
    void replacedByAFolder();
    void aLinkThatBecameAFile_data();
    void aLinkThatBecameAFile();
    void withoutLastingNumbers();
    void grewAfterTheLastPass();
    void goesOnGrowing();
    void whatGrewCannotBeWritten();
    void awayDuringAPass();
    void replacedBeforeItIsReadBack();
    void replacedWhileItIsDeleted_data();
    void replacedWhileItIsDeleted();
    void grewBetweenThePasses();
    void grewBeforeTheFirstPass();
    void grewAndShrankBeforeItWasOverwritten();
    void anEmptyFileThatGrew();
    void shrankBeforeItWasOverwritten();
    void shrankBetweenThePasses();
    void shrankAfterTheLastPass();
};

void tst_ChangedFiles::unchangedFiles()
{
    Scenario s;
    s.job.makeFile(u"t/empty"_s, QByteArray());
    QVERIFY(s.job.run({s.job.path(u"t"_s), s.kept}));
    QVERIFY(s.shortfalls().isEmpty());
    QCOMPARE(s.job.task.outcome().outcome(), JobOutcome::Failed); // the engine has not set the outcome yet
}

void tst_ChangedFiles::vanishedAfterTheLastPass()
{
    Scenario s;
    s.at(said::deleting, [&] { QFile::rename(s.changed, s.job.path(u"moved"_s)); });
    QVERIFY(s.run());
    QVERIFY(QFile::exists(s.job.path(u"moved"_s)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.changed}}));
}

void tst_ChangedFiles::anEmptyFileThatVanished()
{
    FileJob job;
    const QString file = job.makeFile(u"a"_s, QByteArray());
    job.said.onLine = [&](const QString &line) {
        if (line == said::deleting)
            QFile::remove(file);
    };
    QVERIFY(job.run({file}));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, file}}));
}

// Both spellings name one file, and it is deleted.
void tst_ChangedFiles::twoSpellingsOfOnePath()
{
#ifdef Q_OS_WIN
    const QString spelling = u"T/Changed"_s;
#else
    const QString spelling = u"t/../t/changed"_s;
#endif
    Scenario s;
    QVERIFY(s.job.run({s.changed, s.job.path(spelling)}));
    QVERIFY(!QFile::exists(s.changed));
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), 2);
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_ChangedFiles::replacedWhen_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("writes"); // number of writes, over both files
    QTest::newRow("before the first pass") << said::preparing(2, u"20 B"_s) << 2;
    QTest::newRow("between the passes") << said::pass(2, 2) << 3;
    QTest::newRow("before it is removed") << said::deleting << 4;
}

void tst_ChangedFiles::replacedWhen()
{
    QFETCH(QString, line);
    QFETCH(int, writes);
    Scenario s;
    s.at(line, [&] { s.replace(); });
    QVERIFY(s.run());
    QVERIFY(s.isLeftAlone());
    QVERIFY(s.isSaid());
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), writes);
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::replacedBetweenTheLookAndTheOpening_data()
{
    QTest::addColumn<int>("opening");
    QTest::newRow("in the first pass") << 1;
    QTest::newRow("in the second pass") << 2;
}

void tst_ChangedFiles::replacedBetweenTheLookAndTheOpening()
{
    QFETCH(int, opening);
    Scenario s;
    int opened = 0;
    s.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Open && call.path == s.changed && ++opened == opening)
            s.replace();
        return Status();
    };
    QVERIFY(s.run());
    QVERIFY(s.isLeftAlone());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

// Some file systems give the number of a deleted file to the next new one.
void tst_ChangedFiles::madeAnewUnderItsNumber()
{
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows gives no number twice, and Wine knows no births");
#endif
    Scenario s;
    s.at(said::pass(2, 2), [&] {
        QTest::qSleep(50); // birth times have a resolution of some milliseconds
        QFile::remove(s.changed);
        writeFile(s.changed, Stranger);
    });
    QVERIFY(s.run());
    QVERIFY(s.isLeftAlone());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::replacedByALink_data()
{
    addNumberRows();
}

void tst_ChangedFiles::replacedByALink()
{
    QFETCH(bool, hasNumbers);
    Scenario s;
    if (!hasNumbers)
        s.forgetNumbers();
    const QString victim = s.job.makeFile(u"victim"_s, Stranger);
    bool isMade = false;
    s.at(said::deleting, [&] { isMade = QFile::remove(s.changed) && makeLink(victim, s.changed); });
    QVERIFY(s.run());
    if (!isMade)
        QSKIP("SKIPPED: no symbolic links here");
    QVERIFY(s.isLeftAlone()); // the content is read through the link
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::replacedByAFolder_data()
{
    addNumberRows();
}

void tst_ChangedFiles::replacedByAFolder()
{
    QFETCH(bool, hasNumbers);
    Scenario s;
    if (!hasNumbers)
        s.forgetNumbers();
    s.at(said::pass(2, 2), [&] {
        QFile::remove(s.changed);
        writeFile(s.changed + u"/inside"_s, Stranger);
    });
    QVERIFY(s.run());
    QCOMPARE(contentOf(s.changed + u"/inside"_s), Stranger);
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::aLinkThatBecameAFile_data()
{
    addNumberRows();
}

void tst_ChangedFiles::aLinkThatBecameAFile()
{
    QFETCH(bool, hasNumbers);
    Scenario s;
    if (!hasNumbers)
        s.forgetNumbers();
    const QString link = s.job.path(u"link"_s);
    if (!makeLink(s.kept, link))
        QSKIP("SKIPPED: no symbolic links here");
    s.at(said::pass(2, 2), [&] {
        QFile::remove(link);
        writeFile(link, Stranger);
    });
    s.job.task.setTargetsAreNamed(false);
    QVERIFY(s.job.run({link, s.kept}));
    QCOMPARE(contentOf(link), Stranger);
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, link}}));
}

// A changed number does not mean another file here.
void tst_ChangedFiles::withoutLastingNumbers()
{
    Scenario s;
    s.forgetNumbers();
    s.at(said::pass(2, 2), [&] {
        writeFile(s.job.path(u"new"_s), QByteArray(10, 'N'));
        QFile::remove(s.changed);
        QFile::rename(s.job.path(u"new"_s), s.changed);
    });
    QVERIFY(s.run());
    QVERIFY(!QFile::exists(s.changed));
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_ChangedFiles::grewAfterTheLastPass()
{
    Scenario s;
    s.at(said::deleting, [&] { appendTo(s.changed, "12345"); });
    QByteArray lastContent;
    s.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::SetEnd && call.path == s.changed)
            lastContent = contentOf(s.changed);
        return Status();
    };
    QVERIFY(s.run());
    QVERIFY(!QFile::exists(s.changed));
    QCOMPARE(lastContent, QByteArray(15, char(0xFF)));
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), 4 + 2);
    QVERIFY(s.shortfalls().isEmpty());
}

// The file grows in every round. The job ends the rounds after the tenth and reports the rest.
void tst_ChangedFiles::goesOnGrowing()
{
    Scenario s;
    bool isDeleting = false;
    s.at(said::deleting, [&] { isDeleting = true; });
    s.job.files.hook = [&](const FileCall &call) {
        if (isDeleting && call.kind == FaultPlan::Info && call.path == s.changed)
            appendTo(s.changed, "12");
        return Status();
    };
    QVERIFY(s.run());
    QVERIFY(!QFile::exists(s.changed));
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), 4 + 10 * 2);
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryGrew, s.changed, 4}}));
}

void tst_ChangedFiles::whatGrewCannotBeWritten()
{
    Scenario s;
    bool isDeleting = false;
    s.at(said::deleting, [&] {
        isDeleting = true;
        appendTo(s.changed, "12345");
    });
    s.job.files.hook = [&](const FileCall &call) {
        return isDeleting && call.kind == FaultPlan::Write ? Status{platform::IoDevice, 0, "planned"}
                                                           : Status();
    };
    QVERIFY(!s.run());
    QVERIFY(contentIfAny(s.changed).endsWith("12345"));
    QVERIFY(s.job.lines().contains(said::deletionFailed(s.changed)));
    QVERIFY(s.job.lines().contains(said::someFailed(1)));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, s.changed}}));
}

// The file is missing during the first pass and back in the second.
void tst_ChangedFiles::awayDuringAPass()
{
    Scenario s;
    s.job.said.onLine = [&](const QString &line) {
        if (line == said::pass(1, 2))
            QFile::rename(s.changed, s.changed + u".away"_s);
        if (line == said::pass(2, 2))
            QFile::rename(s.changed + u".away"_s, s.changed);
    };
    QVERIFY(s.run());
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), 3 + 2);
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_ChangedFiles::replacedBeforeItIsReadBack()
{
    Scenario s;
    s.job.setPasses({{PatternType::Zeros, 0, true}});
    s.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Open && call.mode == OpenMode::Verify && call.path == s.changed)
            s.replace();
        return Status();
    };
    QVERIFY(s.run());
    QVERIFY(s.isLeftAlone());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::replacedWhileItIsDeleted_data()
{
    QTest::addColumn<bool>("isCut");
    QTest::newRow("before it is cut") << false;
    QTest::newRow("before it is renamed") << true;
}

void tst_ChangedFiles::replacedWhileItIsDeleted()
{
    QFETCH(bool, isCut);
    Scenario s;
    s.job.files.hook = [&](const FileCall &call) {
        const bool isCutting = call.kind == FaultPlan::Open && call.mode == OpenMode::Truncate;
        if ((isCut ? call.kind == FaultPlan::Rename : isCutting) && call.path == s.changed)
            s.replace();
        return Status();
    };
    QVERIFY(s.run());
    QVERIFY(s.isLeftAlone());
    QVERIFY(s.isSaid());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.changed}}));
}

void tst_ChangedFiles::grewBetweenThePasses()
{
    Scenario s;
    s.at(said::pass(2, 2), [&] { appendTo(s.changed, "1234567"); });
    QVERIFY(s.run());
    QVERIFY(!QFile::exists(s.changed));
    QCOMPARE(s.job.files.calls(FaultPlan::Write).size(), 4 + 2);
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_ChangedFiles::grewBeforeTheFirstPass()
{
    Scenario s;
    s.at(said::preparing(2, u"20 B"_s), [&] { appendTo(s.changed, "12345"); });
    QVERIFY(s.run());
    QVERIFY(s.shortfalls().isEmpty());
}

// The file grew and shrank before the second pass.
void tst_ChangedFiles::grewAndShrankBeforeItWasOverwritten()
{
    Scenario s;
    s.job.said.onLine = [&](const QString &line) {
        if (line == said::preparing(2, u"20 B"_s))
            appendTo(s.changed, QByteArray(10, 'N'));
        if (line == said::pass(2, 2))
            QFile::resize(s.changed, 12);
    };
    QVERIFY(s.run());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.changed, 8}}));
}

void tst_ChangedFiles::anEmptyFileThatGrew()
{
    FileJob job;
    const QString file = job.makeFile(u"a"_s, QByteArray());
    job.said.onLine = [&](const QString &line) {
        if (line == said::deleting)
            writeFile(file, "abc");
    };
    QVERIFY(job.run({file}));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 1);
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

// The program that cut the file released its blocks without erasing them.
void tst_ChangedFiles::shrankBeforeItWasOverwritten()
{
    for (const qint64 left : {4, 0}) {
        Scenario s;
        s.at(said::preparing(2, u"20 B"_s), [&] { QFile::resize(s.changed, left); });
        QVERIFY(s.run());
        QVERIFY(!QFile::exists(s.changed));
        QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.changed, 10 - left}}));
    }
}

void tst_ChangedFiles::shrankBetweenThePasses()
{
    Scenario s;
    s.at(said::pass(2, 2), [&] { QFile::resize(s.changed, 7); });
    QVERIFY(s.run());
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.changed, 3}}));
}

void tst_ChangedFiles::shrankAfterTheLastPass()
{
    Scenario s;
    s.at(said::deleting, [&] { QFile::resize(s.changed, 4); });
    QVERIFY(s.run());
    QVERIFY(s.shortfalls().isEmpty());
}

QUORVEX_SUITE(tst_ChangedFiles, QCoreApplication)
#include "tst_changedfiles.moc"
