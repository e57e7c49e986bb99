#include "engine/filetargets.h"
#include "filejob.h"
#include "model/joboutcome.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Stranger = QByteArrayLiteral("somebody else's");

// A folder and two files are chosen before the user is asked.
struct Scenario
{
    FileJob job;
    QString folder = job.path(u"p/t"_s);
    QString file = job.makeFile(u"p/file"_s, 10);
    QString other = job.makeFile(u"other"_s, 10);

    Scenario()
    {
        job.makeFile(u"p/t/sub/a"_s, 10);
        job.makeFile(u"victims/t/sub/a"_s, Stranger);
        job.makeFile(u"victims/file"_s, Stranger);
        job.task.setFiles({folder, file, other});
        rememberTargets(job.task);
    }
    bool run()
    {
        job.worker().process();
        return job.said.succeeded();
    }
    bool areVictimsLeft() const
    {
        return contentIfAny(job.path(u"victims/t/sub/a"_s)) == Stranger &&
               contentIfAny(job.path(u"victims/file"_s)) == Stranger;
    }
    QList<Shortfall> shortfalls() const { return job.task.outcome().shortfalls(); }
};

} // namespace

// Changes of targets between the confirmation and the start of the job.
class tst_FileTargets : public QObject
{
    Q_OBJECT

private slots:
    void pathsOfTargets_data();
    void pathsOfTargets();
    void unchangedTargetsAreErased();
    void aChangedFolderIsStillTheSame();
    void aLinkInTheFoldersPlace();
    void anotherFolderInTheFoldersPlace();
    void anotherFileInTheFilesPlace();
    void aLinkInThePlaceOfTheFolderAbove();
    void aTargetThatIsGone();
    void nothingIsLeftOfTheTargets();
    void anotherChoiceForgetsWhatTargetsWere();
};

void tst_FileTargets::pathsOfTargets_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << u"/a/b"_s << u"/a/b"_s;
    QTest::newRow("slash") << u"/a/b//"_s << u"/a/b"_s;
    QTest::newRow("dot") << u"/a/b/./"_s << u"/a/b"_s;
    QTest::newRow("dots") << u"/a/b/.."_s << u"/a/b/.."_s;
    QTest::newRow("root") << u"/"_s << u"/"_s;
    QTest::newRow("drive") << u"C:/"_s << u"C:/"_s;
}

void tst_FileTargets::pathsOfTargets()
{
    QFETCH(QString, given);
    QTEST(targetPath(given), "path");
}

void tst_FileTargets::unchangedTargetsAreErased()
{
    Scenario s;
    QCOMPARE(s.job.task.targetIdentities().size(), 3);
    QVERIFY(s.run());
    QVERIFY(QDir(s.job.path(u"p"_s)).isEmpty());
    QVERIFY(!QFile::exists(s.other));
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_FileTargets::aChangedFolderIsStillTheSame()
{
    Scenario s;
    s.job.makeFile(u"p/t/new"_s, 10);
    writeFile(s.file, "longer than it was before");
    QVERIFY(s.run());
    QVERIFY(QDir(s.job.path(u"p"_s)).isEmpty());
    QVERIFY(s.shortfalls().isEmpty());
}

void tst_FileTargets::aLinkInTheFoldersPlace()
{
    Scenario s;
    QVERIFY(QFile::rename(s.folder, s.folder + u".away"_s));
    if (!makeLink(s.job.path(u"victims/t"_s), s.folder))
        QSKIP("SKIPPED: no symbolic links here");
    s.job.task.setTargetsAreNamed(false);
    QVERIFY(s.run());
    QVERIFY(s.areVictimsLeft());
    QVERIFY(QFileInfo(s.folder).isSymLink());
    QVERIFY(!QFile::exists(s.other));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.folder}}));
    QVERIFY(s.job.lines().contains(u"1 文件已被替换，保持原样: "_s + s.folder));
}

void tst_FileTargets::anotherFolderInTheFoldersPlace()
{
    Scenario s;
    QVERIFY(QFile::rename(s.folder, s.folder + u".away"_s));
    QVERIFY(QFile::rename(s.job.path(u"victims/t"_s), s.folder));
    QVERIFY(s.run());
    QCOMPARE(contentIfAny(s.folder + u"/sub/a"_s), Stranger);
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.folder}}));
}

void tst_FileTargets::anotherFileInTheFilesPlace()
{
    Scenario s;
    QVERIFY(QFile::rename(s.file, s.file + u".away"_s));
    QVERIFY(QFile::rename(s.job.path(u"victims/file"_s), s.file));
    QVERIFY(s.run());
    QCOMPARE(contentIfAny(s.file), Stranger);
    QVERIFY(!QFile::exists(s.folder));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.file}}));
}

void tst_FileTargets::aLinkInThePlaceOfTheFolderAbove()
{
    Scenario s;
    QVERIFY(QFile::rename(s.job.path(u"p"_s), s.job.path(u"p.away"_s)));
    if (!makeLink(s.job.path(u"victims"_s), s.job.path(u"p"_s)))
        QSKIP("SKIPPED: no symbolic links here");
    QVERIFY(s.run());
    QVERIFY(s.areVictimsLeft());
    QVERIFY(!QFile::exists(s.other));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, s.folder},
                                               {ShortfallKind::EntryReplaced, s.file}}));
}

void tst_FileTargets::aTargetThatIsGone()
{
    Scenario s;
    QVERIFY(QFile::rename(s.job.path(u"p"_s), s.job.path(u"p.away"_s)));
    QVERIFY(s.run());
    QVERIFY(!QFile::exists(s.other));
    QCOMPARE(s.shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryVanished, s.folder},
                                               {ShortfallKind::EntryVanished, s.file}}));
}

void tst_FileTargets::nothingIsLeftOfTheTargets()
{
    FileJob job;
    const QString file = job.makeFile(u"file"_s, 10);
    const QString stranger = job.makeFile(u"stranger"_s, Stranger);
    job.task.setFiles({file});
    rememberTargets(job.task);
    QVERIFY(QFile::rename(file, job.path(u"away"_s)));
    QVERIFY(QFile::rename(stranger, file));
    job.worker().process();
    QVERIFY(!job.said.succeeded());
    QVERIFY(job.lines().contains(said::nothingFound));
    QCOMPARE(contentIfAny(file), Stranger);
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, file}}));
}

void tst_FileTargets::anotherChoiceForgetsWhatTargetsWere()
{
    Scenario s;
    s.job.task.setFiles({s.other});
    QVERIFY(s.job.task.targetIdentities().isEmpty());
}

QUORVEX_SUITE(tst_FileTargets, QCoreApplication)
#include "tst_filetargets.moc"
