#include "engine/filesurvey.h"
#include "filejob.h"
#include "model/joboutcome.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;
using platform::EntryPath;
using platform::FileId;
using platform::Result;

namespace {

platform::Files &machineFiles()
{
    return platform::Platform::current().files();
}

// Another spelling of "p/a".
#ifdef Q_OS_WIN
const QString OtherWay = u"P/a"_s;
#else
const QString OtherWay = u"p/sub/../a"_s;
#endif

// Treats capitals like small letters in names.
class CaselessFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    Result<platform::FileInfo> info(const EntryPath &entry) override
    {
        return ForwardingFiles::info(meant(entry));
    }
    Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const EntryPath &entry,
           platform::OpenMode mode) override
    {
        return ForwardingFiles::openIn(group, meant(entry), mode);
    }
    platform::Status rename(const EntryPath &from, const EntryPath &to) override
    {
        return ForwardingFiles::rename(meant(from), to);
    }

private:
    static EntryPath meant(const EntryPath &entry)
    {
        const QString name = QFileInfo(entry.path()).fileName();
        return name == u"SECRET"_s ? entry.sibling(u"secret"_s) : entry;
    }
};

// Gives every file the same number.
class NumberlessFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    Result<platform::FileInfo> info(const EntryPath &entry) override
    {
        auto found = ForwardingFiles::info(entry);
        if (found && found.value().kind == platform::FileKind::Regular)
            found.value().id = Same;
        return found;
    }
    Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const EntryPath &entry,
           platform::OpenMode mode) override
    {
        auto opened = ForwardingFiles::openIn(group, entry, mode);
        if (!opened)
            return opened;
        return std::unique_ptr<platform::FileHandle>(std::make_unique<Handle>(opened.take()));
    }

private:
    static constexpr FileId Same{7, 7, 7};

    class Handle : public platform::ForwardingFileHandle
    {
    public:
        using ForwardingFileHandle::ForwardingFileHandle;
        Result<FileId> id() override { return Same; }
    };
};

} // namespace

// Files that are chosen twice under several spellings.
class tst_RepeatedFiles : public QObject
{
    Q_OBJECT

private slots:
    void twoWaysToOneFolder();
    void twoWaysToAHardLink();
    void twoSpellingsOfOneName();
    void aSurveyCountsThemOnce();
    void hardLinksAreSeveralFiles();
    void filesThatShareANumber();
    void aFileThatIsRenamedMeanwhile();
};

void tst_RepeatedFiles::twoWaysToOneFolder()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}});
    const QString file = job.makeFile(u"p/a"_s, 10);
    job.makeFile(u"p/sub/b"_s, 10);
    QVERIFY(job.run({file, job.path(OtherWay), job.path(u"p"_s)}));
    QVERIFY(job.lines().contains(said::preparing(2, u"20 B"_s)));
    QVERIFY(job.lines().contains(said::allDone(2)));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 2);
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

// The number of a file with hard links proves no repetition, but its folder does.
void tst_RepeatedFiles::twoWaysToAHardLink()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}});
    const QString file = job.makeFile(u"p/a"_s, 10);
    job.makeFolder(u"p/sub"_s);
    std::filesystem::create_hard_link(file.toStdU16String(), job.path(u"other"_s).toStdU16String());
    QVERIFY(job.run({file, job.path(OtherWay)}));
    QVERIFY(job.lines().contains(said::preparing(1, u"10 B"_s)));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 1);
}

void tst_RepeatedFiles::twoSpellingsOfOneName()
{
    CaselessFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}});
    const QString file = job.makeFile(u"p/secret"_s, 10);
    job.makeFile(u"p/b"_s, 10);
    QVERIFY(job.run({job.path(u"p/SECRET"_s), file, job.path(u"p"_s)}));
    QVERIFY(job.lines().contains(said::preparing(2, u"20 B"_s)));
    QVERIFY(job.lines().contains(said::allDone(2)));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 2);
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QVERIFY(!QFileInfo::exists(job.path(u"p"_s)));
}

void tst_RepeatedFiles::aSurveyCountsThemOnce()
{
    CaselessFiles files(machineFiles());
    FileJob job(files);
    const QString file = job.makeFile(u"secret"_s, 10);
    job.task.setFiles({file, job.path(u"SECRET"_s), job.makeFile(u"b"_s, 10)});
    const FileSurvey survey = surveyFiles(job.task);
    QCOMPARE(survey.files, 2);
    QCOMPARE(survey.bytes, 20);
}

// Each name has to be deleted.
void tst_RepeatedFiles::hardLinksAreSeveralFiles()
{
    FileJob job;
    const QString one = job.makeFile(u"one"_s, 10);
    const QString two = job.path(u"two"_s);
    std::filesystem::create_hard_link(one.toStdU16String(), two.toStdU16String());
    QVERIFY(job.run({one, two}));
    QVERIFY(job.lines().contains(said::allDone(2)));
    QVERIFY(!QFile::exists(one));
    QVERIFY(!QFile::exists(two));
}

// A file must not pass for another one and be reported as erased.
void tst_RepeatedFiles::filesThatShareANumber()
{
    NumberlessFiles files(machineFiles());
    FileJob job(files);
    const QString one = job.makeFile(u"one"_s, 10);
    const QString two = job.makeFile(u"two"_s, 10);
    QVERIFY(!job.run({one, two}));
    QVERIFY(!QFile::exists(one));
    QCOMPARE(contentOf(two), QByteArray(10, 'M'));
    QVERIFY(job.lines().contains(said::deletionFailed(two)));
    QVERIFY(job.lines().contains(said::someFailed(1)));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryNotRemoved, two}}));
}

// Under its later name the file has not been processed yet.
void tst_RepeatedFiles::aFileThatIsRenamedMeanwhile()
{
    FileJob job;
    job.setPasses({{PatternType::Zeros}});
    const QString file = job.makeFile(u"p/a"_s, 10);
    job.makeFile(u"b"_s, 10);
    job.said.onLine = [&](const QString &line) {
        if (line == said::pass(1, 1))
            QVERIFY(QFile::rename(file, job.path(u"p/c"_s)));
    };
    QVERIFY(job.run({job.path(u"p"_s), job.path(u"b"_s)}));
    QVERIFY(!QFileInfo::exists(job.path(u"p"_s)));
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 2);
}

QUORVEX_SUITE(tst_RepeatedFiles, QCoreApplication)
#include "tst_repeatedfiles.moc"
