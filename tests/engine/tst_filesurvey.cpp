#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "engine/foreseeable.h"
#include "filejob.h"
#include "platform/forwarding.h"
#include "support/links.h"
#include "support/reason.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

// Files with allocated sizes set by the test.
class SparseFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override
    {
        auto found = ForwardingFiles::info(entry);
        if (!found)
            return found;
        platform::FileInfo info = found.value();
        info.allocatedBytes = allocated.value(entry.path(), -1);
        info.id.device = devices.value(entry.path(), 1);
        return info;
    }

    QHash<QString, qint64> allocated;
    QHash<QString, quint64> devices;
};

// Folders with the given free space, or an error.
class FullFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    platform::Result<platform::SpaceInfo> space(const QString & /*path*/) override
    {
        if (available < 0)
            return platform::Status{platform::NotReady, 0, "space"};
        // The space reserved for the administrator does not count.
        return platform::SpaceInfo{.totalBytes = total, .freeBytes = 1 << 30, .availableBytes = available};
    }

    qint64 total = 1 << 30;
    qint64 available = 0;
};

struct Machine
{
    SparseFiles files{platform::Platform::current().files()};
    FullFolders folders{platform::Platform::current().folders()};
    FileJob job{files, folders};

    QString make(const QString &name, qsizetype size, qint64 allocated)
    {
        const QString path = job.makeFile(name, size);
        files.allocated.insert(path, allocated);
        return path;
    }
    QString problem()
    {
        job.task.setFiles({job.path({})});
        return reasonOf(surveyFiles(job.task).roomProblem());
    }
};

void addName(const QString &file, const QString &name)
{
    std::filesystem::create_hard_link(file.toStdU16String(), name.toStdU16String());
}

} // namespace

// The survey of a job's files before it begins.
class tst_FileSurvey : public QObject
{
    Q_OBJECT

private slots:
    void everyFileCountsOnce();
    void theJobFindsWhatWasCounted();
    void whatIsMissingMakesItIncomplete();
    void aStopMakesItIncomplete();
    void filesWithFurtherNamesAreCounted();
    void holesNeedRoom_data();
    void holesNeedRoom();
    void eachFileSystemHasItsOwnRoom();
    void aFileThatTellsNothingNeedsNoRoom();
    void roomThatIsNotToldIsNoObstacle();
};

void tst_FileSurvey::everyFileCountsOnce()
{
    FileJob job;
    const QString outer = job.makeFile(u"folder/two"_s, 2000);
    job.makeFile(u"folder/sub/three"_s, 3000);
    const bool hasLink = makeLink(job.path({}), job.path(u"folder/link"_s));
    job.task.setFiles({job.path(u"folder/sub"_s), job.path(u"folder"_s), outer});
    const FileSurvey survey = surveyFiles(job.task);
    QCOMPARE(survey.files, quint64(hasLink ? 3 : 2));
    QCOMPARE(survey.bytes, quint64(5000));
    QVERIFY(survey.isComplete);
    QCOMPARE(survey.otherNamesText(), QString());
}

void tst_FileSurvey::theJobFindsWhatWasCounted()
{
    FileJob job;
    job.makeFile(u"folder/two"_s, 2000);
    job.makeFile(u"folder/a/b/c/three"_s, 3000);
    job.makeFile(u"folder/empty"_s, 0);
    job.task.setFiles({job.path(u"folder"_s)});
    const FileSurvey survey = surveyFiles(job.task);
    QVERIFY(job.run(job.task.files()));
    QCOMPARE(survey.files, quint64(job.task.report().fileCount));
    QCOMPARE(survey.bytes, job.task.report().totalBytes);
}

void tst_FileSurvey::whatIsMissingMakesItIncomplete()
{
    FileJob job;
    const QString file = job.makeFile(u"file"_s, 10);
    const QString other = job.makeFile(u"other"_s, 20);
    job.task.setFiles({file, other});
    rememberTargets(job.task);
    QVERIFY(surveyFiles(job.task).isComplete);
    QVERIFY(QFile::remove(file));
    const FileSurvey survey = surveyFiles(job.task);
    QVERIFY(!survey.isComplete);
    QCOMPARE(survey.bytes, quint64(20));
}

void tst_FileSurvey::aStopMakesItIncomplete()
{
    FileJob job;
    job.task.setFiles({job.makeFile(u"file"_s, 10)});
    const FileSurvey survey = surveyFiles(job.task, [] { return true; });
    QVERIFY(!survey.isComplete);
    QCOMPARE(survey.files, quint64(0));
}

void tst_FileSurvey::filesWithFurtherNamesAreCounted()
{
    FileJob job;
    addName(job.makeFile(u"folder/one"_s, 10), job.path(u"name of one"_s));
    job.makeFile(u"folder/alone"_s, 10);
    job.task.setFiles({job.path(u"folder"_s)});
    const FileSurvey one = surveyFiles(job.task);
    QCOMPARE(one.filesWithOtherNames, quint64(1));
    QCOMPARE(one.otherNamesText(), u"1 file has further names; its content is erased under these too"_s);
    addName(job.makeFile(u"folder/deep/two"_s, 10), job.path(u"name of two"_s));
    QCOMPARE(surveyFiles(job.task).otherNamesText(),
             u"2 files have further names; their content is erased under these too"_s);
}

void tst_FileSurvey::holesNeedRoom_data()
{
    QTest::addColumn<qint64>("available");
    QTest::addColumn<bool>("isEnough");
    QTest::newRow("too little") << qint64(7999) << false;
    QTest::newRow("just enough") << qint64(8000) << true;
}

void tst_FileSurvey::holesNeedRoom()
{
    QFETCH(qint64, available);
    QFETCH(bool, isEnough);
    Machine machine;
    const QString file = machine.make(u"a"_s, 6000, 1000);
    machine.make(u"b/c"_s, 4000, 1000);
    machine.make(u"full"_s, 100, 4096);
    machine.folders.available = available;
    const QString problem = machine.problem();
    QCOMPARE(problem.isEmpty(), isEnough);
    if (isEnough)
        return;
    QVERIFY2(problem.contains(u" take another 7.81 KB when they are overwritten, and only 7.81 KB are free."),
             qPrintable(problem));
    QVERIFY(problem.endsWith(u"Nothing was written."));
}

void tst_FileSurvey::eachFileSystemHasItsOwnRoom()
{
    Machine machine;
    machine.make(u"a"_s, 6000, 0);
    machine.files.devices.insert(machine.make(u"b"_s, 6000, 0), 2);
    machine.folders.available = 6000;
    QCOMPARE(machine.problem(), QString());
    machine.folders.available = 5999;
    QVERIFY(!machine.problem().isEmpty());
}

void tst_FileSurvey::aFileThatTellsNothingNeedsNoRoom()
{
    Machine machine;
    machine.make(u"a"_s, 6000, -1);
    QCOMPARE(machine.problem(), QString());
}

void tst_FileSurvey::roomThatIsNotToldIsNoObstacle()
{
    Machine machine;
    machine.make(u"a"_s, 6000, 0);
    QVERIFY(!machine.problem().isEmpty());
    machine.folders.total = 0;
    QCOMPARE(machine.problem(), QString());
    machine.folders.available = -1;
    QCOMPARE(machine.problem(), QString());
}

QUORVEX_SUITE(tst_FileSurvey, QCoreApplication)
#include "tst_filesurvey.moc"
