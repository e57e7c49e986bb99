#include "engine/filesurvey.h"
#include "support/suite.h"

#include "engine/foreseeable.h"
#include "filejob.h"
#include "freespacefixture.h"
#include "model/joboutcome.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "support/faultplan.h"
#include "support/links.h"
#include "support/placedfiles.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::ContentPlace;
using platform::Elsewhere;
using platform::ElsewhereReasons;
using platform::FileKind;
using platform::Result;
using platform::Status;

namespace {

constexpr ContentPlace InPlace{.elsewhere = {}, .bytes = 0};

QString warning(int files)
{
    return u"1 %1 个文件的内容可能还保存在别处，未被覆写"_s.arg(files);
}

// The name of the file decides the reported place of its content.
platform::Result<ContentPlace> placeByName(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    if (name.startsWith(u"shared"_s))
        return ContentPlace{Elsewhere::Shared, 6};
    if (name.startsWith(u"streams"_s))
        return ContentPlace{Elsewhere::NamedStreams, 20};
    if (name.startsWith(u"refused"_s))
        return Status{platform::IoDevice, 0, "planned"};
    return InPlace;
}

class SnapshotFolders : public platform::ForwardingFolders
{
public:
    SnapshotFolders(platform::Folders &target, const Result<int> &answer)
        : ForwardingFolders(target)
        , m_answer(answer)
    {}

    QStringList asked;

    Result<int> snapshots(const QString &path) override
    {
        asked.append(path);
        return m_answer;
    }

private:
    Result<int> m_answer;
};

QList<Shortfall> snapshotsIn(const OutcomeRecord &record)
{
    QList<Shortfall> notes = record.notes();
    notes.removeIf([](const Shortfall &note) { return note.kind != ShortfallKind::ShadowCopies; });
    return notes;
}

// The platform's files with the places of placeByName(), in a temporary folder.
struct Machine
{
    PlacedFiles files{platform::Platform::current().files(), placeByName};
    platform::ForwardingPlatform platform{files, platform::Platform::current().folders(),
                                          platform::Platform::current().devices(),
                                          platform::Platform::current().session()};
    platform::ScopedPlatform scope{platform};
    QTemporaryDir folder;

    QString make(const QString &name) const { return writeFile(folder.filePath(name), "abc"); }
};

QStringList targetsKeptElsewhere(const QStringList &targets, int mostQuestions = MostContentQuestions)
{
    WipeTask task;
    task.setFiles(targets);
    return surveyFiles(
               task, [] { return false; }, mostQuestions)
        .keptElsewhere;
}

} // namespace

Q_DECLARE_METATYPE(ElsewhereReasons)

// Jobs on files whose content lies elsewhere.
class tst_ContentElsewhere : public QObject
{
    Q_OBJECT

private slots:
    void theQuestionComesBeforeTheFirstWrite();
    void whatLiesElsewhereIsTold();
    void aJobThatFailsTellsItAsWell();
    void nothingIsToldOfContentInPlace();
    void filesThatAreFilledMeanwhile();

    void surveyOfFiles();
    void surveyOfFolders();
    void surveyEndsAtTheFirstFind();
    void surveyHasAnEnd();
    void surveyLooksAtNoLinks();
    void theJobIsForeseenToFallShort();

    void freeSpace_data();
    void freeSpace();
    void snapshots_data();
    void snapshots();
    void snapshotsBelowFiles();
};

void tst_ContentElsewhere::theQuestionComesBeforeTheFirstWrite()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    QVERIFY(job.run({job.makeFile(u"a"_s, 10), job.makeFile(u"b"_s, 10)}));
    for (const QString &name : {u"a"_s, u"b"_s}) {
        QList<FaultPlan::Kind> order;
        for (const FileCall &call : job.files.calls(FaultPlan::Locate | FaultPlan::Write)) {
            if (call.path == job.path(name))
                order.append(call.kind);
        }
        QCOMPARE(order, (QList<FaultPlan::Kind>{FaultPlan::Locate, FaultPlan::Write, FaultPlan::Write}));
    }
}

void tst_ContentElsewhere::whatLiesElsewhereIsTold()
{
    PlacedFiles files(platform::Platform::current().files(), placeByName);
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString shared = job.makeFile(u"shared"_s, 10);
    const QString refused = job.makeFile(u"refused"_s, 10);
    QVERIFY(job.run({job.makeFile(u"plain"_s, 10), shared, refused}));
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::preparing(3, u"30 B"_s), said::pass(1, 2), said::pass(2, 2),
                          warning(2), said::deleting, said::allDone(3), said::succeeded}));
    // A file whose place is unknown counts as elsewhere.
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::ContentElsewhere, shared, 6},
                                                                {ShortfallKind::ContentElsewhere, refused}}));
}

void tst_ContentElsewhere::aJobThatFailsTellsItAsWell()
{
    PlacedFiles files(platform::Platform::current().files(), placeByName);
    FileJob job(files);
    const QString shared = job.makeFile(u"shared"_s, 10);
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Write ? Status{platform::IoDevice, 0, "planned"} : Status();
    };
    QVERIFY(!job.run({shared}));
    QVERIFY(job.lines().contains(warning(1)));
    QVERIFY(job.task.outcome().has(ShortfallKind::ContentElsewhere));
}

void tst_ContentElsewhere::nothingIsToldOfContentInPlace()
{
    PlacedFiles files(platform::Platform::current().files(), placeByName);
    FileJob job(files);
    QVERIFY(job.run({job.makeFile(u"plain"_s, 10), job.makeFile(u"empty"_s, 0)}));
    QVERIFY(job.lines().filter(u"别处"_s).isEmpty());
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

// The file is empty at the scan and in the first pass.
void tst_ContentElsewhere::filesThatAreFilledMeanwhile()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString file = job.makeFile(u"a"_s, QByteArray());
    job.said.onLine = [&](const QString &line) {
        if (line == said::pass(2, 2))
            writeFile(file, "abc");
    };
    QVERIFY(job.run({file, job.makeFile(u"b"_s, 10)}));
    QList<FaultPlan::Kind> order;
    for (const FileCall &call : job.files.calls(FaultPlan::Locate | FaultPlan::Write)) {
        if (call.path == file)
            order.append(call.kind);
    }
    // Located in the second pass; both passes are repeated for the bytes that the first missed.
    QCOMPARE(order, (QList<FaultPlan::Kind>{FaultPlan::Locate, FaultPlan::Write, FaultPlan::Write,
                                            FaultPlan::Write}));
}

void tst_ContentElsewhere::surveyOfFiles()
{
    const Machine machine;
    const QStringList targets{machine.make(u"shared1"_s), machine.make(u"plain"_s),
                              machine.make(u"refused"_s), machine.make(u"streams"_s),
                              machine.folder.filePath(u"nothing"_s)};
    QCOMPARE(targetsKeptElsewhere(targets), (QStringList{targets.at(0), targets.at(3)}));
}

void tst_ContentElsewhere::surveyOfFolders()
{
    const Machine machine;
    machine.make(u"a/b/c/shared"_s);
    machine.make(u"a/plain"_s);
    machine.make(u"d/plain"_s);
    const QStringList targets{machine.folder.filePath(u"a"_s), machine.folder.filePath(u"d"_s)};
    QCOMPARE(targetsKeptElsewhere(targets), QStringList{targets.at(0)});
    // All files were asked, so the folder itself need not be.
    QVERIFY(!machine.files.asked.contains(targets.at(1)));
}

void tst_ContentElsewhere::surveyEndsAtTheFirstFind()
{
    const Machine machine;
    for (int i = 0; i < 20; ++i)
        machine.make(u"a/shared%1"_s.arg(i));
    QCOMPARE(targetsKeptElsewhere({machine.folder.filePath(u"a"_s)}).size(), 1);
    QCOMPARE(machine.files.asked.size(), 1);
}

void tst_ContentElsewhere::surveyHasAnEnd()
{
    Machine machine;
    for (int i = 0; i < 20; ++i)
        machine.make(u"shared folder/plain%1"_s.arg(i));
    const QString folder = machine.folder.filePath(u"shared folder"_s);
    const QString single = machine.make(u"shared"_s);
    // After the last question the folder is asked instead of its remaining files.
    QCOMPARE(targetsKeptElsewhere({folder, single}, 7), QStringList{folder});
    QCOMPARE(machine.files.asked.size(), 8);
    QCOMPARE(machine.files.asked.last(), folder);
    // The folder is asked once, whatever it answers.
    for (int i = 0; i < 20; ++i)
        machine.make(u"plain folder/plain%1"_s.arg(i));
    machine.files.asked.clear();
    QCOMPARE(targetsKeptElsewhere({machine.folder.filePath(u"plain folder"_s)}, 7), QStringList());
    QCOMPARE(machine.files.asked.size(), 8);
    const QStringList singles{single, machine.make(u"shared2"_s), machine.make(u"shared3"_s)};
    QCOMPARE(targetsKeptElsewhere(singles, 2), singles.first(2));
    machine.files.asked.clear();
    QCOMPARE(targetsKeptElsewhere({single, folder}, 0), QStringList());
    QCOMPARE(machine.files.asked, QStringList());
    QCOMPARE(targetsKeptElsewhere({folder, single}, 21), QStringList{single});
}

void tst_ContentElsewhere::surveyLooksAtNoLinks()
{
    const Machine machine;
    const QString link = machine.folder.filePath(u"shared link"_s);
    if (!makeLink(machine.make(u"shared"_s), link))
        QSKIP("SKIPPED: no symbolic links here");
    QVERIFY(QDir().mkpath(machine.folder.filePath(u"a"_s)));
    QVERIFY(makeLink(machine.folder.path(), machine.folder.filePath(u"a/shared"_s)));
    QVERIFY(targetsKeptElsewhere({link, machine.folder.filePath(u"a"_s)}).isEmpty());
    QVERIFY(machine.files.asked.isEmpty());
}

void tst_ContentElsewhere::theJobIsForeseenToFallShort()
{
    const Machine machine;
    WipeTask task;
    task.setFiles({machine.make(u"plain"_s), machine.make(u"shared"_s)});
    const QList<Shortfall> told{{ShortfallKind::ContentElsewhere, task.files().at(1)}};
    QCOMPARE(foreseeableShortfalls(task).shortfalls(), told);
}

void tst_ContentElsewhere::freeSpace_data()
{
    QTest::addColumn<ElsewhereReasons>("elsewhere");
    QTest::addColumn<bool>("isNoted");
    QTest::newRow("in place") << ElsewhereReasons() << false;
    QTest::newRow("relocating") << ElsewhereReasons(Elsewhere::Relocating) << true;
    QTest::newRow("shared") << ElsewhereReasons(Elsewhere::Shared) << true;
    QTest::newRow("layers") << ElsewhereReasons(Elsewhere::LowerLayer) << true;
    QTest::newRow("journal") << ElsewhereReasons(Elsewhere::Journalled) << false;
    QTest::newRow("compressed") << ElsewhereReasons(Elsewhere::Encoded) << false;
}

// The fill goes to any place; the bytes that stay are in snapshots, for instance.
void tst_ContentElsewhere::freeSpace()
{
    QFETCH(ElsewhereReasons, elsewhere);
    freespace::Machine machine;
    freespace::Job job;
    machine.volume.freeBytes[u"/media/data/"_s] = 1000 * MiB;
    machine.volume.elsewhere = elsewhere;
    job.setVolume(u"/media/data"_s);
    job.setPasses({{PatternType::Zeros}});
    job.run();
    QVERIFY(job.succeeded());
    QTEST(job.task.outcome().has(ShortfallKind::CopyOnWrite), "isNoted");
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

void tst_ContentElsewhere::snapshots_data()
{
    QTest::addColumn<Result<int>>("answer");
    QTest::addColumn<QList<Shortfall>>("notes");
    const auto note = [](qint64 count) {
        return QList{
            Shortfall{.kind = ShortfallKind::ShadowCopies, .place = u"/media/data/"_s, .count = count}};
    };
    QTest::newRow("none of that kind")
        << Result<int>(Status{platform::NotSupported, 0, ""}) << QList<Shortfall>();
    QTest::newRow("none") << Result<int>(0) << QList<Shortfall>();
    QTest::newRow("three") << Result<int>(3) << note(3);
    QTest::newRow("nobody can tell") << Result<int>(Status{platform::AccessDenied, 0, ""}) << note(-1);
}

// Noted before the confirmation and in the record, and not a failure.
void tst_ContentElsewhere::snapshots()
{
    QFETCH(Result<int>, answer);
    freespace::Machine machine;
    freespace::Job job;
    machine.volume.freeBytes[u"/media/data/"_s] = 1000 * MiB;
    machine.volume.snapshotAnswer = answer;
    job.setVolume(u"/media/data"_s);
    PartitionInfo partition = job.task.partition();
    partition.freeBytes = 1000 * MiB;
    job.task.setPartition(partition);
    job.setPasses({{PatternType::Zeros}});
    QTEST(snapshotsIn(foreseeableShortfalls(job.task)), "notes");
    job.run();
    QVERIFY(job.succeeded());
    QTEST(snapshotsIn(job.task.outcome()), "notes");
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

// Noted once for all files of a volume, before the confirmation and in the record.
void tst_ContentElsewhere::snapshotsBelowFiles()
{
    SnapshotFolders folders(platform::Platform::current().folders(), 2);
    platform::ForwardingPlatform platform{platform::Platform::current().files(), folders,
                                          platform::Platform::current().devices(),
                                          platform::Platform::current().session()};
    const platform::ScopedPlatform scope{platform};
    FileJob job(platform.files());
    const QStringList targets{job.makeFile(u"a"_s, 10), job.makeFile(u"b"_s, 10)};
    const QList<Shortfall> notes{{.kind = ShortfallKind::ShadowCopies, .place = targets.first(), .count = 2}};
    job.task.setOperationType(FileWipe);
    job.task.setFiles(targets);
    QCOMPARE(snapshotsIn(foreseeableShortfalls(job.task)), notes);
    QCOMPARE(folders.asked, targets.first(1));
    QVERIFY(job.run(targets));
    QCOMPARE(snapshotsIn(job.task.outcome()), notes);
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QCOMPARE(folders.asked.size(), 2);
}

QUORVEX_SUITE(tst_ContentElsewhere, QCoreApplication)
#include "tst_contentelsewhere.moc"
