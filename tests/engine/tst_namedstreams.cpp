#include "filejob.h"
#include "model/joboutcome.h"
#include "platform/contentplace.h"
#include "support/placedfiles.h"
#include "support/streamedfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::ContentPlace;
using platform::Elsewhere;
using platform::Status;

namespace {

platform::Files &machineFiles()
{
    return platform::Platform::current().files();
}

// Accepts writes and drops them.
class ForgetfulHandle : public platform::ForwardingFileHandle
{
public:
    using ForwardingFileHandle::ForwardingFileHandle;
    platform::Result<qint64> write(const void *, qint64 size) override { return size; }
};

QList<FileCall> callsOn(const FileJob &job, const QString &path, quint32 kinds)
{
    QList<FileCall> calls = job.files.calls(kinds);
    calls.removeIf([&path](const FileCall &call) { return call.path != path; });
    return calls;
}

} // namespace

// Named streams are erased together with the file.
class tst_NamedStreams : public QObject
{
    Q_OBJECT

private slots:
    void streamsReceiveEveryPass();
    void progressIsThatOfTheContent();
    void streamsAreReadBack();
    void streamsOfAnEmptyFile();
    void emptyStreamsAreLeft();
    void aStreamThatCannotBeWritten();
    void aStreamThatCannotBeOpened();
    void streamsThatCannotBeListed();
    void whereAStreamLies();
    void anotherFilesStreamsAreLeft();
    void streamsOfFoldersAreTold();
};

void tst_NamedStreams::streamsReceiveEveryPass()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString file = job.makeFile(u"a"_s, 10);
    const QString one = job.makeFile(u"a@one"_s, 700'000);
    const QString two = job.makeFile(u"a@two"_s, 3);
    job.task.setBufferSizeMB(1);
    QVERIFY(job.run({file}));
    QCOMPARE(contentOf(one), QByteArray(700'000, '\xFF'));
    QCOMPARE(contentOf(two), QByteArray(3, '\xFF'));
    QCOMPARE(callsOn(job, two, FaultPlan::Write | FaultPlan::Flush).size(), 4);
    // The figures of the report count the content only.
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(1, u"10 B"_s), said::pass(1, 2),
                                       said::pass(2, 2), said::deleting, said::allDone(1), said::succeeded}));
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
    QCOMPARE(job.task.outcome().written(), 2 * (10 + 700'000 + 3));
}

// A progress report is due while a stream is written.
void tst_NamedStreams::progressIsThatOfTheContent()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}});
    const QString stream = job.makeFile(u"a@one"_s, 5);
    job.files.hook = [&stream](const FileCall &call) {
        if (call.kind == FaultPlan::Write && call.path == stream)
            QTest::qSleep(150);
        return Status();
    };
    QVERIFY(job.run({job.makeFile(u"a"_s, 10)}));
    for (const qint64 bytes : job.said.bytes())
        QVERIFY2(bytes <= 10, QByteArray::number(bytes).constData());
}

void tst_NamedStreams::streamsAreReadBack()
{
    StreamedFiles files(machineFiles());
    files.wrap = [](std::unique_ptr<platform::FileHandle> opened) {
        return std::make_unique<ForgetfulHandle>(std::move(opened));
    };
    FileJob job(files);
    job.setPasses({{PatternType::Zeros, 0, true}});
    job.task.setVerifyAfterWipe(true);
    const QString file = job.makeFile(u"a"_s, 10);
    const QString stream = job.makeFile(u"a@one"_s, 5);
    QVERIFY(!job.run({file}));
    QVERIFY(job.lines().contains(u"2 验证失败: "_s + stream));
    QVERIFY(QFile::exists(file));
}

void tst_NamedStreams::streamsOfAnEmptyFile()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Ones}});
    const QString file = job.makeFile(u"a"_s, QByteArray());
    const QString stream = job.makeFile(u"a@one"_s, 5);
    QVERIFY(job.run({file}));
    QCOMPARE(contentOf(stream), QByteArray(5, '\xFF'));
    QVERIFY(!job.lines().contains(said::allEmpty));
    QVERIFY(!QFile::exists(file));
}

void tst_NamedStreams::emptyStreamsAreLeft()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    const QString stream = job.makeFile(u"a@one"_s, QByteArray());
    QVERIFY(job.run({job.makeFile(u"a"_s, 10)}));
    QVERIFY(callsOn(job, stream, FaultPlan::Open).isEmpty());
    QVERIFY(job.task.outcome().shortfalls().isEmpty());
}

void tst_NamedStreams::aStreamThatCannotBeWritten()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString file = job.makeFile(u"a"_s, 10);
    const QString stream = job.makeFile(u"a@one"_s, 5);
    job.files.hook = [&stream](const FileCall &call) {
        return call.kind == FaultPlan::Write && call.path == stream ? Status{platform::IoDevice, 0, "planned"}
                                                                    : Status();
    };
    QVERIFY(!job.run({file}));
    QVERIFY(job.lines().contains(u"2 WriteFile 失败: "_s + stream));
    QVERIFY(job.lines().contains(said::passFailed(1, 2, 1)));
    QVERIFY(QFile::exists(file));
}

// The stream cannot be overwritten, and is deleted with the file nevertheless.
void tst_NamedStreams::aStreamThatCannotBeOpened()
{
    StreamedFiles files(machineFiles());
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString file = job.makeFile(u"a"_s, 10);
    const QString closed = job.makeFile(u"a@one"_s, 5);
    const QString open = job.makeFile(u"a@two"_s, 5);
    job.files.hook = [&closed](const FileCall &call) {
        return call.kind == FaultPlan::Open && call.path == closed
                   ? Status{platform::AccessDenied, 0, "planned"}
                   : Status();
    };
    QVERIFY(job.run({file}));
    QCOMPARE(contentOf(open), QByteArray(5, '\xFF'));
    QVERIFY(job.lines().contains(u"1 1 个文件的内容可能还保存在别处，未被覆写"_s));
    QCOMPARE(job.task.outcome().shortfalls(),
             (QList<Shortfall>{{ShortfallKind::ContentElsewhere, closed, 5}}));
}

void tst_NamedStreams::streamsThatCannotBeListed()
{
    StreamedFiles files(machineFiles());
    files.unlistable = {u"a"_s, u"empty"_s};
    FileJob job(files);
    const QString file = job.makeFile(u"a"_s, 10);
    const QString empty = job.makeFile(u"empty"_s, QByteArray());
    QVERIFY(job.run({file, empty}));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::ContentElsewhere, file},
                                                                {ShortfallKind::ContentElsewhere, empty}}));
}

void tst_NamedStreams::whereAStreamLies()
{
    PlacedFiles placed(machineFiles(), [](const QString &path) -> platform::Result<ContentPlace> {
        const bool isInside = path.endsWith(u"@one"_s);
        return isInside ? ContentPlace{Elsewhere::Inline, 5} : ContentPlace{.elsewhere = {}, .bytes = 0};
    });
    StreamedFiles files(placed);
    FileJob job(files);
    job.setPasses({{PatternType::Zeros}, {PatternType::Ones}});
    const QString stream = job.makeFile(u"a@one"_s, 5);
    QVERIFY(job.run({job.makeFile(u"a"_s, 10)}));
    QCOMPARE(callsOn(job, stream, FaultPlan::Locate).size(), 1);
    QCOMPARE(job.task.outcome().shortfalls(),
             (QList<Shortfall>{{ShortfallKind::ContentElsewhere, stream, 5}}));
}

// The opened stream belongs to another file than the chosen one.
void tst_NamedStreams::anotherFilesStreamsAreLeft()
{
    StreamedFiles files(machineFiles());
    class StrangersHandle : public platform::ForwardingFileHandle
    {
    public:
        using ForwardingFileHandle::ForwardingFileHandle;
        platform::Result<platform::FileId> id() override { return platform::FileId{1, 2, 3}; }
    };
    files.wrap = [](std::unique_ptr<platform::FileHandle> opened) {
        return std::make_unique<StrangersHandle>(std::move(opened));
    };
    FileJob job(files);
    const QString file = job.makeFile(u"a"_s, 10);
    const QString stream = job.makeFile(u"a@one"_s, 5);
    job.run({file});
    QCOMPARE(contentOf(stream), QByteArray(5, 'M'));
    QCOMPARE(job.task.outcome().shortfalls(), (QList<Shortfall>{{ShortfallKind::EntryReplaced, file}}));
}

void tst_NamedStreams::streamsOfFoldersAreTold()
{
    StreamedFiles files(machineFiles());
    files.unlistable = {u"closed"_s};
    FileJob job(files);
    const QString folder = job.makeFolder(u"folder"_s);
    job.makeFile(u"folder/sub/a"_s, 10);
    const QString closed = job.makeFolder(u"folder/closed"_s);
    job.makeFile(u"folder@one"_s, 5);
    job.makeFile(u"folder@two"_s, 6);
    QVERIFY(job.run({folder}));
    QCOMPARE(job.task.outcome().shortfalls(),
             (QList<Shortfall>{{ShortfallKind::ContentElsewhere, closed},
                               {ShortfallKind::ContentElsewhere, folder, 11, 2}}));
}

QUORVEX_SUITE(tst_NamedStreams, QCoreApplication)
#include "tst_namedstreams.moc"
