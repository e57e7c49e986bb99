#include "filejob.h"
#include "support/suite.h"

#include "model/units.h"
#include "model/wipereport.h"
#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "support/messagecapture.h"
#include "support/observedfiles.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QThread>
#include <QTranslator>

#include <new>
#include <optional>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

using platform::OpenMode;
using platform::Status;

namespace {

Status failure(quint32 code)
{
    return {code, 0, "planned"};
}

PassPattern verified(PatternType type, quint8 value = 0)
{
    return {type, value, true};
}

// Answers one chosen transfer by a function of the test.
class OddHandle : public platform::ForwardingFileHandle
{
public:
    using Write = std::function<platform::Result<qint64>(platform::FileHandle &, const void *, qint64)>;
    using Read = std::function<platform::Result<qint64>(platform::FileHandle &, void *, qint64)>;

    OddHandle(std::unique_ptr<platform::FileHandle> target, Write write, Read read)
        : ForwardingFileHandle(std::move(target))
        , m_write(std::move(write))
        , m_read(std::move(read))
    {}
    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        return m_write ? m_write(*m_target, data, size) : m_target->write(data, size);
    }
    platform::Result<qint64> read(void *data, qint64 size) override
    {
        return m_read ? m_read(*m_target, data, size) : m_target->read(data, size);
    }

private:
    Write m_write;
    Read m_read;
};

void setTransfers(FileJob &job, OddHandle::Write write, OddHandle::Read read = {})
{
    job.files.wrap = [write, read](std::unique_ptr<platform::FileHandle> handle, const FileCall &) {
        return std::unique_ptr<platform::FileHandle>(
            std::make_unique<OddHandle>(std::move(handle), write, read));
    };
}

// The content of a file at the end of each pass, and right before it was cut.
struct Contents
{
    QList<QByteArray> afterPass;
    QList<QByteArray> beforeDeletion;

    void watch(FileJob &job)
    {
        job.files.hook = [this](const FileCall &call) {
            if (call.kind == FaultPlan::Flush && call.mode == OpenMode::Overwrite)
                afterPass.append(contentOf(call.path));
            if (call.kind == FaultPlan::Open && call.mode == OpenMode::Truncate)
                beforeDeletion.append(contentOf(call.path));
            return Status();
        };
    }
};

// Puts the context in front of every translated text.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(ContextTranslator)

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(context) + QLatin1Char('|') + QString::fromUtf8(source);
    }
};

} // namespace

class tst_FileWipeWorker : public QObject
{
    Q_OBJECT

private slots:
    // Order of the steps
    void aJobSaysEveryStepInOrder();
    void everyPassIsAnnounced();
    void allCallsForOneFileInOrder();
    void everyTextIsTranslatedInTheContextOfTheClass();
    void pathsWithPlaceholdersAreShownAsTheyAre();
    void controlCharactersInNamesAreNotShown();

    // Scan
    void emptyFoldersHoldNothingToWipe();
    void missingTargetsHoldNothingToWipe();
    void anEmptyTargetListHoldsNothingToWipe();
    void onlyEmptyFiles();
    void anEmptyFileBesideAFullOneIsNotOpenedInThePasses();
    void aMethodWithoutPassesGoesStraightToTheDeletion();
    void theSameFileGivenTwiceIsWipedOnce();
    void aFileThatVanishesBeforeItsPassIsNoFailure();
    void aFileThatVanishesBeforeItsDeletionIsNoFailure();
    void aFileThatGrewIsOverwrittenToItsEnd();
    void aPathOfMoreThan260Characters();
    void filesOutsideTheTargetsAreLeftAlone();
    void severalFoldersAreRemoved();

    // Overwriting
    void everyMethodWritesItsPasses_data();
    void everyMethodWritesItsPasses();
    void aHundredBytesAreOneChunk();
    void chunksHaveTheSizeOfTheBuffer_data();
    void chunksHaveTheSizeOfTheBuffer();
    void randomBytesAreFreshInEveryChunkAndFile();
    void complementPassesInvertTheBuffer();
    void unknownPatternsWriteTheEmptyBuffer();
    void readOnlyIsClearedBeforeOverwritingAndBeforeDeletion();
    void aReadOnlyFileIsWiped();
    void shortWritesAreContinued();

    // Failures of a pass
    void aFileThatDoesNotOpen();
    void aSeekThatFails();
    void aWriteThatFails();
    void aWriteWithoutProgress();
    void aFlushThatFails();
    void theSystemsErrorGoesToTheDebugOutput();
    void aFileThatCannotBeLookedAtFailsInThePass();
    void sizesThatCannotBeToldAreNotTakenForEmpty();
    void oneFailedFileKeepsAllFilesAndEndsThePasses();
    void failuresOfSeveralFilesAreCounted();
    void outOfMemoryInTheScan();
    void outOfMemoryWithinAPass();
    void noBufferForAFile();

    // Reading back
    void samplesAreReadWithinTheFile_data();
    void samplesAreReadWithinTheFile();
    void samplesAreSpreadOverTheFile();
    void onlyPassesThatAskForItAreReadBack();
    void aTaskMaySwitchReadingBackOff();
    void bytesThatDifferFailTheFile();
    void aDifferenceBehindTheFirstSampleIsFound();
    void randomPassesAlwaysPass();
    void failuresToReadBackAreSilent_data();
    void failuresToReadBackAreSilent();
    void anEmptyReadFailsTheFile();

    // Deletion
    void aFileThatCannotBeDeletedIsCounted();
    void aRenamedFileThatCannotBeDeletedIsNotCounted();
    void aFailedDeletionDoesNotEndTheOthers();
    void aFileHeldOpenIsTriedTenTimes();
    void aFolderThatCannotBeRemovedIsLogged();
    void aFolderThatVanishedNeedsNoRemoval();

    // Unreadable folders
    void aFolderThatCannotBeListedFailsTheJob();
    void aFolderThatCannotBeListedKeepsItsTarget();
    void aTargetThatCannotBeLookedAtFailsTheJob();

    // Figures
    void theReportCarriesCountAndSize();
    void theReportCarriesTheSamplesReadBack();
    void theReportSaysWhenNothingWasReadBack();
    void progressComesAtMostEveryTenthOfASecond();
    void progressRunsAheadInLaterPasses();
};

// ---- Order of the steps

void tst_FileWipeWorker::aJobSaysEveryStepInOrder()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/a"), 100);
    job.makeFile(QStringLiteral("t/sub/b"), 200);
    job.makeFile(QStringLiteral("t/sub/empty"), 0);
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    const QStringList expected{said::scanning,   said::preparing(3, QStringLiteral("300 B")),
                               said::pass(1, 1), said::deleting,
                               said::allDone(3), said::succeeded};
    QCOMPARE(job.lines(), expected);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::everyPassIsAnnounced()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::GermanVsitr));
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 2'048)}));
    QStringList expected{said::scanning, said::preparing(1, QStringLiteral("2.00 KB"))};
    for (int pass = 1; pass <= 7; ++pass)
        expected += said::pass(pass, 7);
    expected += {said::deleting, said::allDone(1), said::succeeded};
    QCOMPARE(job.lines(), expected);
}

void tst_FileWipeWorker::allCallsForOneFileInOrder()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 100);
    QVERIFY(job.run({file}));
    QList<int> kinds;
    for (const FileCall &call :
         job.files.calls(~(FaultPlan::Info | FaultPlan::BeginGroup | FaultPlan::CloseGroup))) {
        if (call.kind != FaultPlan::Remove)
            QCOMPARE(call.path, file);
        kinds.append(static_cast<int>(call.kind));
    }
    using F = FaultPlan;
    const QList<int> expected{F::ClearReadOnly, F::Open,     F::Identify, F::Locate,
                              F::Seek,          F::Write,    F::Flush, // overwrite
                              F::Open,          F::Identify, F::Seek,     F::Read,
                              F::Seek,          F::Read,     F::Seek,     F::Read, // read back
                              F::ClearReadOnly, F::Open,     F::Identify, F::Seek,
                              F::SetEnd,        F::Flush,    F::Rename,   F::Remove}; // delete
    QCOMPARE(kinds, expected);
    const QList<FileCall> opened = job.files.calls(FaultPlan::Open);
    QCOMPARE(opened[0].mode, OpenMode::Overwrite);
    QCOMPARE(opened[1].mode, OpenMode::Verify);
    QCOMPARE(opened[2].mode, OpenMode::Truncate);
}

void tst_FileWipeWorker::everyTextIsTranslatedInTheContextOfTheClass()
{
    const ContextTranslator translator;
    const QRegularExpression form(QStringLiteral("^([012]|error) FileWipeWorker\\|"));
    const auto check = [&form](const FileJob &job, int texts) {
        int found = 0;
        for (const QString &line : job.lines()) {
            if (line.startsWith(QStringLiteral("pass ")) || line.startsWith(QStringLiteral("finished ")))
                continue;
            QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
            ++found;
        }
        QCOMPARE(found, texts);
    };
    {
        FileJob job;
        job.run({});
        check(job, 2);
    }
    {
        FileJob job;
        QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 1)}));
        check(job, 4);
    }
    {
        FileJob job;
        QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 0)}));
        check(job, 5);
    }
    for (const FaultPlan::Kind kind :
         {FaultPlan::Open, FaultPlan::Seek, FaultPlan::Write, FaultPlan::Flush}) {
        FileJob job;
        job.files.hook = [kind](const FileCall &call) {
            return call.kind == kind ? failure(1117) : Status();
        };
        job.run({job.makeFile(QStringLiteral("a"), 1)});
        check(job, 5);
    }
}

void tst_FileWipeWorker::pathsWithPlaceholdersAreShownAsTheyAre()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Open ? failure(5) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("100%1 %2 %3"), 1);
    QVERIFY(!job.run({file}));
    QVERIFY(job.lines().contains(said::cannotOpen(file)));
}

void tst_FileWipeWorker::controlCharactersInNamesAreNotShown()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Open ? failure(5) : Status();
    };
#ifdef Q_OS_WIN
    const QString escape; // not allowed in names
    const QString mark;
#else
    const QString escape = QStringLiteral("\x1b");
    const QString mark = QStringLiteral("[U+001B]");
#endif
    const QString file = job.makeFile(u'a' + escape + QStringLiteral("[2Jb\u202e") + u'c', 1);
    QVERIFY(!job.run({file}));
    QVERIFY2(job.lines().contains(said::cannotOpen(job.path(u'a' + mark + QStringLiteral("[2Jb[U+202E]c")))),
             qPrintable(job.lines().join(QLatin1Char('\n'))));
}

// ---- Scan

void tst_FileWipeWorker::emptyFoldersHoldNothingToWipe()
{
    FileJob job;
    const QString one = job.makeFolder(QStringLiteral("one/a/b"));
    const QString two = job.makeFolder(QStringLiteral("two"));
    QVERIFY(!job.run({job.path(QStringLiteral("one")), two}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::nothingFound, said::failed}));
    QVERIFY(!QFileInfo::exists(one));
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::missingTargetsHoldNothingToWipe()
{
    FileJob job;
    QVERIFY(!job.run({job.path(QStringLiteral("nothing")), job.path(QStringLiteral("no/way"))}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::nothingFound, said::failed}));
}

void tst_FileWipeWorker::anEmptyTargetListHoldsNothingToWipe()
{
    FileJob job;
    QVERIFY(!job.run({}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::nothingFound, said::failed}));
}

void tst_FileWipeWorker::onlyEmptyFiles()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::Gutmann));
    job.makeFile(QStringLiteral("t/a"), 0);
    job.makeFile(QStringLiteral("t/b"), 0);
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(2, QStringLiteral("0 B")),
                                       said::allEmpty, said::deleting, said::allDone(2), said::succeeded}));
    QVERIFY(job.files.opened(OpenMode::Overwrite).isEmpty());
    QCOMPARE(job.files.opened(OpenMode::Truncate).size(), 2);
    QCOMPARE(job.files.calls(FaultPlan::SetEnd).size(), 2);
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 2);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::anEmptyFileBesideAFullOneIsNotOpenedInThePasses()
{
    FileJob job;
    const QString full = job.makeFile(QStringLiteral("full"), 10);
    const QString empty = job.makeFile(QStringLiteral("empty"), 0);
    QVERIFY(job.run({empty, full}));
    const QList<FileCall> opened = job.files.opened(OpenMode::Overwrite);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened[0].path, full);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::aMethodWithoutPassesGoesStraightToTheDeletion()
{
    FileJob job;
    job.setPasses({});
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(1, QStringLiteral("10 B")),
                                       said::deleting, said::allDone(1), said::succeeded}));
    QVERIFY(job.files.opened(OpenMode::Overwrite).isEmpty());
}

void tst_FileWipeWorker::theSameFileGivenTwiceIsWipedOnce()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("t/a"), 10);
    QVERIFY(job.run({file, job.path(QStringLiteral("t")), file}));
    QVERIFY(job.lines().contains(said::preparing(1, QStringLiteral("10 B"))));
    QCOMPARE(job.files.opened(OpenMode::Overwrite).size(), 1);
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::aFileThatVanishesBeforeItsPassIsNoFailure()
{
    FileJob job;
    const QString first = job.makeFile(QStringLiteral("first"), 10);
    const QString second = job.makeFile(QStringLiteral("second"), 20);
    job.said.onLine = [&second](const QString &line) {
        if (line == said::pass(1, 1))
            QFile::remove(second);
    };
    QVERIFY(job.run({first, second}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(2, QStringLiteral("30 B")),
                                       said::pass(1, 1), said::deleting, said::allDone(2), said::succeeded}));
    QCOMPARE(job.task.report().totalBytes, 30U);
}

void tst_FileWipeWorker::aFileThatVanishesBeforeItsDeletionIsNoFailure()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.said.onLine = [&file](const QString &line) {
        if (line == said::deleting)
            QFile::remove(file);
    };
    QVERIFY(job.run({file}));
    QVERIFY(job.lines().contains(said::allDone(1)));
}

void tst_FileWipeWorker::aFileThatGrewIsOverwrittenToItsEnd()
{
    FileJob job;
    Contents contents;
    contents.watch(job);
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    job.said.onLine = [&](const QString &line) {
        if (line == said::pass(1, 1))
            job.makeFile(QStringLiteral("a"), 5'000);
    };
    QVERIFY(job.run({file}));
    QCOMPARE(contents.afterPass, QList<QByteArray>{QByteArray(5'000, '\0')});
    QCOMPARE(job.task.report().totalBytes, 10U);
}

void tst_FileWipeWorker::aPathOfMoreThan260Characters()
{
    FileJob job;
    const QString name = QStringLiteral("t/") + QString(120, QLatin1Char('x')) + QLatin1Char('/') +
                         QString(120, QLatin1Char('y')) + QLatin1Char('/') + QString(120, QLatin1Char('z'));
    const QString file = job.makeFile(name, 10);
    QVERIFY(file.size() > 260);
    QVERIFY(job.run({job.path(QStringLiteral("t"))}));
    QVERIFY(QDir(job.path({})).isEmpty());
}

void tst_FileWipeWorker::filesOutsideTheTargetsAreLeftAlone()
{
    FileJob job;
    const QString beside = job.makeFile(QStringLiteral("t/beside"), QByteArray("keep"));
    const QString similar = job.makeFile(QStringLiteral("t/target2"), QByteArray("keep too"));
    QVERIFY(job.run({job.makeFile(QStringLiteral("t/target"), 10)}));
    QCOMPARE(contentOf(beside), QByteArray("keep"));
    QCOMPARE(contentOf(similar), QByteArray("keep too"));
    QCOMPARE(QDir(job.path(QStringLiteral("t"))).entryList(QDir::Files).size(), 2);
}

void tst_FileWipeWorker::severalFoldersAreRemoved()
{
    FileJob job;
    job.makeFile(QStringLiteral("one/a"), 10);
    job.makeFile(QStringLiteral("one/sub/b"), 10);
    job.makeFolder(QStringLiteral("two/empty"));
    const QString inner = job.path(QStringLiteral("one/sub"));
    QVERIFY(job.run({job.path(QStringLiteral("one")), job.path(QStringLiteral("two/")), inner}));
    QVERIFY(QDir(job.path({})).isEmpty());
    QVERIFY(job.lines().filter(QRegularExpression(QStringLiteral("^1 "))).isEmpty());
}

// ---- Overwriting

void tst_FileWipeWorker::everyMethodWritesItsPasses_data()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type < 5; ++type)
        QTest::addRow("%s", qPrintable(WipeMethod::fromType(type).name)) << type;
}

void tst_FileWipeWorker::everyMethodWritesItsPasses()
{
    QFETCH(int, type);
    FileJob job;
    const WipeMethod method = WipeMethod::fromType(type);
    job.task.setMethod(method);
    Contents contents;
    contents.watch(job);
    const QByteArray original(3'001, 'M');
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), original)}));

    QCOMPARE(contents.afterPass.size(), method.passes.size());
    QSet<QByteArray> randoms;
    for (qsizetype i = 0; i < method.passes.size(); ++i) {
        const QByteArray &content = contents.afterPass[i];
        switch (method.passes[i].type) {
        case PatternType::Zeros:
            QCOMPARE(content, QByteArray(3'001, '\0'));
            break;
        case PatternType::Ones:
            QCOMPARE(content, QByteArray(3'001, '\xFF'));
            break;
        case PatternType::Custom:
            QCOMPARE(content, QByteArray(3'001, static_cast<char>(method.passes[i].value)));
            break;
        default:
            QCOMPARE(content.size(), 3'001);
            QVERIFY(!randoms.contains(content));
            randoms.insert(content);
            // 3001 random bytes miss a given value with a probability of 8e-6, and ten values with 1e-51.
            QVERIFY(QSet<char>(content.begin(), content.end()).size() > 246);
        }
    }
    QCOMPARE(contents.beforeDeletion, QList<QByteArray>{contents.afterPass.last()});
}

void tst_FileWipeWorker::aHundredBytesAreOneChunk()
{
    FileJob job;
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 100)}));
    const QList<FileCall> writes = job.files.calls(FaultPlan::Write);
    QCOMPARE(writes.size(), 1);
    QCOMPARE(writes[0].size, 100);
    for (const FileCall &seek : job.files.calls(FaultPlan::Seek))
        QCOMPARE(seek.position, 0);
}

void tst_FileWipeWorker::chunksHaveTheSizeOfTheBuffer_data()
{
    QTest::addColumn<int>("bufferSizeMB");
    QTest::addColumn<qint64>("fileSize");
    QTest::addColumn<QList<qint64>>("chunks");
    QTest::newRow("1 MiB") << 1 << 2 * MiB + 7 << QList<qint64>{MiB, MiB, 7};
    QTest::newRow("exactly two") << 1 << 2 * MiB << QList<qint64>{MiB, MiB};
    QTest::newRow("0 stands for 4") << 0 << 4 * MiB + 1 << QList<qint64>{4 * MiB, 1};
    QTest::newRow("below 0 stands for 4") << -3 << 4 * MiB + 1 << QList<qint64>{4 * MiB, 1};
    QTest::newRow("64 is limited to 16") << 64 << 16 * MiB + 512 << QList<qint64>{16 * MiB, 512};
    QTest::newRow("1024 is limited to the file") << 1024 << 3 * MiB << QList<qint64>{3 * MiB};
}

void tst_FileWipeWorker::chunksHaveTheSizeOfTheBuffer()
{
    QFETCH(int, bufferSizeMB);
    QFETCH(qint64, fileSize);
    QFETCH(QList<qint64>, chunks);
    FileJob job;
    job.task.setBufferSizeMB(bufferSizeMB);
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), fileSize)}));
    qint64 offset = 0;
    QList<qint64> written;
    qint64 position = -1;
    for (const FileCall &call : job.files.calls(FaultPlan::Seek | FaultPlan::Write)) {
        if (call.mode != OpenMode::Overwrite)
            continue;
        if (call.kind == FaultPlan::Seek) {
            position = call.position;
            continue;
        }
        QCOMPARE(position, offset);
        offset += call.size;
        written.append(call.size);
    }
    QCOMPARE(written, chunks);
}

void tst_FileWipeWorker::randomBytesAreFreshInEveryChunkAndFile()
{
    FileJob job;
    job.setPasses({{PatternType::Random, 0, false}});
    job.task.setBufferSizeMB(1);
    Contents contents;
    contents.watch(job);
    QVERIFY(
        job.run({job.makeFile(QStringLiteral("a"), 2 * MiB), job.makeFile(QStringLiteral("b"), 2 * MiB)}));
    QCOMPARE(contents.afterPass.size(), 2);
    QSet<QByteArray> halves;
    for (const QByteArray &content : contents.afterPass) {
        halves.insert(content.first(MiB));
        halves.insert(content.last(MiB));
    }
    QCOMPARE(halves.size(), 4);
}

void tst_FileWipeWorker::complementPassesInvertTheBuffer()
{
    FileJob job;
    job.setPasses({verified(PatternType::Complement)});
    job.task.setBufferSizeMB(1);
    Contents contents;
    contents.watch(job);
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 2 * MiB)}));
    // A new buffer holds zeros and is inverted at every chunk.
    QCOMPARE(contents.afterPass, QList<QByteArray>{QByteArray(MiB, '\xFF') + QByteArray(MiB, '\0')});
}

void tst_FileWipeWorker::unknownPatternsWriteTheEmptyBuffer()
{
    FileJob job;
    job.setPasses({verified(static_cast<PatternType>(9), 0x55)});
    Contents contents;
    contents.watch(job);
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 50)}));
    QCOMPARE(contents.afterPass, QList<QByteArray>{QByteArray(50, '\0')});
}

void tst_FileWipeWorker::readOnlyIsClearedBeforeOverwritingAndBeforeDeletion()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QStringList order;
    for (const FileCall &call : job.files.calls(FaultPlan::ClearReadOnly | FaultPlan::Open)) {
        if (call.kind == FaultPlan::ClearReadOnly)
            order += QStringLiteral("clear");
        else if (call.mode != OpenMode::Verify)
            order += call.mode == OpenMode::Overwrite ? QStringLiteral("overwrite") : QStringLiteral("cut");
    }
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("clear overwrite clear overwrite clear cut"));
}

void tst_FileWipeWorker::aReadOnlyFileIsWiped()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(QFile::setPermissions(file, QFileDevice::ReadOwner));
    // Root can write to such a file anyway, so the permissions at the opening are checked instead.
    std::optional<QFileDevice::Permissions> atOpening;
    job.files.hook = [&atOpening](const FileCall &call) {
        if (call.kind == FaultPlan::Open && call.mode == OpenMode::Overwrite)
            atOpening = QFile::permissions(call.path);
        return Status();
    };
    QVERIFY(job.run({file}));
    QVERIFY(atOpening.has_value());
    QVERIFY(atOpening->testFlag(QFileDevice::WriteOwner));
}

void tst_FileWipeWorker::shortWritesAreContinued()
{
    FileJob job;
    job.setPasses({{PatternType::Random, 0, false}});
    QByteArray wanted;
    setTransfers(job, [&wanted](platform::FileHandle &file, const void *data, qint64 size) {
        if (wanted.isEmpty())
            wanted = QByteArray(static_cast<const char *>(data), static_cast<qsizetype>(size));
        return file.write(data, std::min<qint64>(size, 33));
    });
    Contents contents;
    contents.watch(job);
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 100)}));
    QCOMPARE(contents.afterPass, QList<QByteArray>{wanted});
    QCOMPARE(job.files.calls(FaultPlan::Write).size(), 4);
}

// ---- Failures of a pass

namespace {

// The log of a job over one file of 10 bytes whose first pass failed.
QStringList failedFirstPass(const QStringList &why, int passes = 1)
{
    return QStringList{said::scanning, said::preparing(1, QStringLiteral("10 B")), said::pass(1, passes)} +
           why + QStringList{said::passFailed(1, passes, 1), said::someFailed(1), said::failed};
}

} // namespace

void tst_FileWipeWorker::aFileThatDoesNotOpen()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Open && call.mode == OpenMode::Overwrite ? failure(32) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({said::cannotOpen(file)}));
    QCOMPARE(contentOf(file), QByteArray(10, 'M'));
}

void tst_FileWipeWorker::aSeekThatFails()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Seek ? failure(87) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 SetFilePointerEx 失败: ") + file}));
    QVERIFY(job.files.calls(FaultPlan::Write).isEmpty());
}

void tst_FileWipeWorker::aWriteThatFails()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Write ? failure(1117) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 WriteFile 失败: ") + file}));
    QVERIFY(job.files.calls(FaultPlan::Flush).isEmpty());
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileWipeWorker::aWriteWithoutProgress()
{
    FileJob job;
    int calls = 0;
    setTransfers(
        job, [&calls](platform::FileHandle &file, const void *data, qint64 size) -> platform::Result<qint64> {
            return ++calls == 1 ? file.write(data, std::min<qint64>(size, 4)) : platform::Result<qint64>(0);
        });
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(calls, 2);
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 WriteFile 失败: ") + file}));
    QCOMPARE(contentOf(file), QByteArray(4, '\0') + QByteArray(6, 'M'));
}

void tst_FileWipeWorker::aFlushThatFails()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Flush ? failure(1117) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 FlushFileBuffers 失败: ") + file}));
    QVERIFY(job.files.opened(OpenMode::Verify).isEmpty());
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileWipeWorker::theSystemsErrorGoesToTheDebugOutput()
{
    const MessageCapture capture;
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Write ? Status{platform::IoDevice, 5, "pwrite"} : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    const QString expected =
        QStringLiteral("[FileWipe] ") + file + QStringLiteral(" pwrite: 1117 (system error 5)");
    QVERIFY2(capture.texts().contains(expected), qPrintable(capture.texts().join(QLatin1Char('\n'))));
}

void tst_FileWipeWorker::aFileThatCannotBeLookedAtFailsInThePass()
{
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    const QString other = job.makeFile(QStringLiteral("b"), 10);
    bool inPass = false;
    job.said.onLine = [&inPass](const QString &line) { inPass = inPass || line == said::pass(1, 1); };
    job.files.hook = [&](const FileCall &call) {
        return inPass && call.kind == FaultPlan::Info && call.path == file ? failure(1117) : Status();
    };
    QVERIFY(!job.run({file, other}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(2, QStringLiteral("20 B")),
                                       said::pass(1, 1), said::cannotOpen(file), said::passFailed(1, 1, 1),
                                       said::someFailed(1), said::failed}));
    QCOMPARE(contentOf(file), QByteArray(10, 'M'));
    QCOMPARE(contentOf(other), QByteArray(10, '\0'));
}

void tst_FileWipeWorker::sizesThatCannotBeToldAreNotTakenForEmpty()
{
    FileJob job;
    Contents contents;
    contents.watch(job);
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    int looks = 0;
    const auto watch = job.files.hook;
    job.files.hook = [&looks, watch](const FileCall &call) {
        // The first query belongs to the scan, the second one to the sum of the sizes.
        if (call.kind == FaultPlan::Info && ++looks == 2)
            return failure(1117);
        return watch(call);
    };
    QVERIFY(job.run({file}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(1, QStringLiteral("0 B")),
                                       said::pass(1, 1), said::deleting, said::allDone(1), said::succeeded}));
    QCOMPARE(contents.beforeDeletion, QList<QByteArray>{QByteArray(10, '\0')});
}

void tst_FileWipeWorker::oneFailedFileKeepsAllFilesAndEndsThePasses()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::Dod522022M));
    QStringList files;
    for (int i = 0; i < 5; ++i)
        files += job.makeFile(QStringLiteral("t/%1").arg(i), 10);
    bool inThirdPass = false;
    job.said.onLine = [&](const QString &line) { inThirdPass = inThirdPass || line == said::pass(3, 7); };
    job.files.hook = [&](const FileCall &call) {
        return inThirdPass && call.kind == FaultPlan::Write && call.path == files.at(1) ? failure(19)
                                                                                        : Status();
    };
    QVERIFY(!job.run({job.path(QStringLiteral("t"))}));
    const QStringList expected{said::scanning,
                               said::preparing(5, QStringLiteral("50 B")),
                               said::pass(1, 7),
                               said::pass(2, 7),
                               said::pass(3, 7),
                               QStringLiteral("2 WriteFile 失败: ") + files[1],
                               said::passFailed(3, 7, 1),
                               said::someFailed(1),
                               said::failed};
    QCOMPARE(job.lines(), expected);
    for (const QString &file : files)
        QCOMPARE(QFileInfo(file).size(), 10);
    QCOMPARE(contentOf(files[1]), QByteArray(10, '\xFF'));
    // The other files of that pass were still written.
    for (const int i : {0, 2, 3, 4})
        QVERIFY(contentOf(files[i]) != QByteArray(10, '\xFF'));
    QVERIFY(job.files.opened(OpenMode::Truncate).isEmpty());
}

void tst_FileWipeWorker::failuresOfSeveralFilesAreCounted()
{
    FileJob job;
    job.task.setThreadCount(2);
    QStringList files;
    for (int i = 0; i < 9; ++i)
        files += job.makeFile(QStringLiteral("%1").arg(i), 10);
    job.files.hook = [&](const FileCall &call) {
        const bool bad = call.path == files.at(0) || call.path == files.at(4) || call.path == files.at(8);
        return bad && call.kind == FaultPlan::Open ? failure(5) : Status();
    };
    QVERIFY(!job.run(files));
    const QStringList lines = job.lines();
    QCOMPARE(lines.mid(lines.size() - 3),
             (QStringList{said::passFailed(1, 1, 3), said::someFailed(3), said::failed}));
    for (const int i : {0, 4, 8})
        QCOMPARE(lines.count(said::cannotOpen(files[i])), 1);
}

void tst_FileWipeWorker::outOfMemoryInTheScan()
{
    FileJob job;
    job.files.hook = [](const FileCall &) -> Status { throw std::bad_alloc(); };
    QVERIFY(!job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QCOMPARE(job.lines(), (QStringList{said::scanning, QStringLiteral("error 内存分配失败"), said::failed}));
}

void tst_FileWipeWorker::outOfMemoryWithinAPass()
{
    FileJob job;
    job.task.setThreadCount(3);
    QStringList files;
    for (int i = 0; i < 4; ++i)
        files += job.makeFile(QStringLiteral("%1").arg(i), 10);
    job.files.hook = [&files](const FileCall &call) -> Status {
        if (call.kind == FaultPlan::Open && call.path == files.at(2))
            throw std::bad_alloc();
        return {};
    };
    QVERIFY(!job.run(files));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(4, QStringLiteral("40 B")),
                                       said::pass(1, 1), QStringLiteral("2 内存分配失败"),
                                       said::passFailed(1, 1, 1), said::someFailed(1), said::failed}));
}

void tst_FileWipeWorker::noBufferForAFile()
{
#if !defined(Q_OS_LINUX)
    QSKIP("SKIPPED: only on Linux can a test forbid its process further memory");
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("SKIPPED: a sanitizer needs memory of its own when the process is forbidden any");
#else
    FileJob job;
    const QString file = job.makeFile(QStringLiteral("a"), 16 * MiB);
    rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_AS, &before), 0);
    const QThread *const workerThread = QThread::currentThread();
    job.files.hook = [&](const FileCall &call) {
        // The last call before the buffer is allocated. Memory that the heap already has stays usable.
        if (call.kind == FaultPlan::Info && QThread::currentThread() != workerThread) {
            rlimit none = before;
            none.rlim_cur = 1;
            setrlimit(RLIMIT_AS, &none);
        }
        return Status();
    };
    job.said.onLine = [&before](const QString &line) {
        if (line.startsWith(QStringLiteral("2 ")))
            setrlimit(RLIMIT_AS, &before);
    };
    const bool success = job.run({file});
    QCOMPARE(setrlimit(RLIMIT_AS, &before), 0);
    QVERIFY(!success);
    QVERIFY2(job.lines().contains(QStringLiteral("2 内存分配失败")),
             qPrintable(job.lines().join(QLatin1Char('\n'))));
    QVERIFY(job.files.calls(FaultPlan::Open).isEmpty());
    QCOMPARE(QFileInfo(file).size(), 16 * MiB);
#endif
}

// ---- Reading back

void tst_FileWipeWorker::samplesAreReadWithinTheFile_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("end"); // offsets are below this
    QTest::newRow("1 byte") << qint64(1) << qint64(1);
    QTest::newRow("1023 bytes") << qint64(1023) << qint64(1);
    QTest::newRow("1024 bytes") << qint64(1024) << qint64(1);
    QTest::newRow("1025 bytes") << qint64(1025) << qint64(1);
    QTest::newRow("1026 bytes") << qint64(1026) << qint64(2);
    QTest::newRow("5000 bytes") << qint64(5000) << qint64(5000 - 1024);
}

void tst_FileWipeWorker::samplesAreReadWithinTheFile()
{
    QFETCH(qint64, size);
    QFETCH(qint64, end);
    for (int round = 0; round < 10; ++round) {
        FileJob job;
        QVERIFY(job.run({job.makeFile(QStringLiteral("a"), size)}));
        int seeks = 0;
        for (const FileCall &call : job.files.calls(FaultPlan::Seek)) {
            if (call.mode != OpenMode::Verify)
                continue;
            ++seeks;
            QVERIFY(call.position >= 0);
            QVERIFY(call.position < end);
        }
        QCOMPARE(seeks, 3);
        for (const FileCall &call : job.files.calls(FaultPlan::Read))
            QCOMPARE(call.size, 1024);
        QCOMPARE(job.files.calls(FaultPlan::Read).size(), 3);
    }
}

void tst_FileWipeWorker::samplesAreSpreadOverTheFile()
{
    QSet<qint64> offsets;
    FileJob job;
    QStringList files;
    for (int i = 0; i < 20; ++i)
        files += job.makeFile(QString::number(i), MiB);
    QVERIFY(job.run(files));
    qint64 lowest = MiB;
    qint64 highest = 0;
    for (const FileCall &call : job.files.calls(FaultPlan::Seek)) {
        if (call.mode != OpenMode::Verify)
            continue;
        offsets.insert(call.position);
        lowest = std::min(lowest, call.position);
        highest = std::max(highest, call.position);
    }
    // 60 draws out of a million: all of them in one half has a probability of 2e-18.
    QVERIFY(offsets.size() > 50);
    QVERIFY(lowest < MiB / 2);
    QVERIFY(highest > MiB / 2);
}

void tst_FileWipeWorker::onlyPassesThatAskForItAreReadBack()
{
    FileJob job;
    job.setPasses(
        {verified(PatternType::Ones), {PatternType::Zeros, 0, false}, verified(PatternType::Custom, 7)});
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QCOMPARE(job.files.opened(OpenMode::Overwrite).size(), 3);
    QCOMPARE(job.files.opened(OpenMode::Verify).size(), 2);
}

void tst_FileWipeWorker::aTaskMaySwitchReadingBackOff()
{
    FileJob job;
    job.task.setVerifyAfterWipe(false);
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QVERIFY(job.files.opened(OpenMode::Verify).isEmpty());
}

void tst_FileWipeWorker::bytesThatDifferFailTheFile()
{
    FileJob job;
    // A device that accepts bytes and drops them.
    setTransfers(job, [](platform::FileHandle &, const void *, qint64 size) {
        return platform::Result<qint64>(size);
    });
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 验证失败: ") + file}));
    QCOMPARE(contentOf(file), QByteArray(10, 'M'));
}

void tst_FileWipeWorker::aDifferenceBehindTheFirstSampleIsFound()
{
    FileJob job;
    int reads = 0;
    setTransfers(job, {}, [&reads](platform::FileHandle &file, void *data, qint64 size) {
        auto read = file.read(data, size);
        if (++reads == 3 && read)
            static_cast<char *>(data)[read.value() - 1] = '\1';
        return read;
    });
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(reads, 3);
    QCOMPARE(job.lines(), failedFirstPass({QStringLiteral("2 验证失败: ") + file}));
    QCOMPARE(job.task.report().verificationSampleSize, 3);
}

void tst_FileWipeWorker::randomPassesAlwaysPass()
{
    FileJob job;
    job.setPasses({verified(PatternType::Random)});
    setTransfers(job, {}, [](platform::FileHandle &file, void *data, qint64 size) {
        auto read = file.read(data, size);
        if (read)
            memset(data, 0, static_cast<size_t>(read.value()));
        return read;
    });
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
}

void tst_FileWipeWorker::failuresToReadBackAreSilent_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::addColumn<int>("samples");
    QTest::newRow("open") << quint32(FaultPlan::Open) << 0;
    QTest::newRow("seek") << quint32(FaultPlan::Seek) << 0;
    QTest::newRow("read") << quint32(FaultPlan::Read) << 0;
}

void tst_FileWipeWorker::failuresToReadBackAreSilent()
{
    QFETCH(quint32, kind);
    QFETCH(int, samples);
    FileJob job;
    job.files.hook = [kind](const FileCall &call) {
        return call.mode == OpenMode::Verify && call.kind == kind ? failure(1117) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(), failedFirstPass({}));
    QCOMPARE(job.task.report().verificationSampleSize, samples);
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileWipeWorker::anEmptyReadFailsTheFile()
{
    FileJob job;
    int reads = 0;
    setTransfers(job, {}, [&reads](platform::FileHandle &file, void *data, qint64 size) {
        return ++reads == 2 ? platform::Result<qint64>(0) : file.read(data, size);
    });
    QVERIFY(!job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QCOMPARE(job.lines(), failedFirstPass({}));
    QCOMPARE(job.task.report().verificationSampleSize, 1);
}

// ---- Deletion

void tst_FileWipeWorker::aFileThatCannotBeDeletedIsCounted()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return (call.kind & (FaultPlan::Rename | FaultPlan::Remove)) ? failure(1117) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(!job.run({file}));
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::preparing(1, QStringLiteral("10 B")), said::pass(1, 1),
                          said::deleting, said::deletionFailed(file), said::someFailed(1), said::failed}));
    QCOMPARE(contentOf(file), QByteArray());
}

void tst_FileWipeWorker::aRenamedFileThatCannotBeDeletedIsNotCounted()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return call.kind == FaultPlan::Remove ? failure(1117) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QVERIFY(job.run({file}));
    QVERIFY(job.lines().contains(said::allDone(1)));
    const QFileInfoList left = QDir(job.path({})).entryInfoList(QDir::Files);
    QCOMPARE(left.size(), 1);
    QVERIFY(left[0].fileName().endsWith(QStringLiteral(".tmp")));
    QCOMPARE(left[0].size(), 0);
}

void tst_FileWipeWorker::aFailedDeletionDoesNotEndTheOthers()
{
    FileJob job;
    QStringList files;
    for (int i = 0; i < 4; ++i)
        files += job.makeFile(QString::number(i), 10);
    job.files.hook = [&files](const FileCall &call) {
        const bool held = call.path == files[0] || call.path == files[2];
        return held && (call.kind & (FaultPlan::Rename | FaultPlan::Remove)) ? failure(1117) : Status();
    };
    QVERIFY(!job.run(files));
    const QStringList lines = job.lines();
    QCOMPARE(lines.mid(lines.size() - 5),
             (QStringList{said::deleting, said::deletionFailed(files[0]), said::deletionFailed(files[2]),
                          said::someFailed(2), said::failed}));
    QVERIFY(QFileInfo::exists(files[0]));
    QVERIFY(!QFileInfo::exists(files[1]));
    QVERIFY(QFileInfo::exists(files[2]));
    QVERIFY(!QFileInfo::exists(files[3]));
}

void tst_FileWipeWorker::aFileHeldOpenIsTriedTenTimes()
{
    FileJob job;
    job.files.hook = [](const FileCall &call) {
        return (call.kind & (FaultPlan::Rename | FaultPlan::Remove)) ? failure(32) : Status();
    };
    const QString file = job.makeFile(QStringLiteral("a"), 10);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!job.run({file}));
    QVERIFY(timer.elapsed() >= 9 * 50 - 1);
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 5);
    QCOMPARE(job.files.calls(FaultPlan::Remove).size(), 10);
    QVERIFY(job.lines().contains(said::deletionFailed(file)));
}

void tst_FileWipeWorker::aFolderThatCannotBeRemovedIsLogged()
{
    FaultPlan plan(FaultPlan::RemoveFolder, 1, platform::SharingViolation);
    FaultyFolders folders(platform::Platform::current().folders(), plan);
    FileJob job(platform::Platform::current().files(), folders);
    job.makeFile(QStringLiteral("one/a"), 10);
    job.makeFile(QStringLiteral("two/b"), 10);
    const QString one = job.path(QStringLiteral("one"));
    QVERIFY(job.run({one, job.path(QStringLiteral("two"))}));
    QCOMPARE(plan.fired(), 1);
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::preparing(2, QStringLiteral("20 B")), said::pass(1, 1),
                          said::deleting,
                          QStringLiteral("1 无法删除文件夹: ") + one + QStringLiteral("，错误码: 32"),
                          said::allDone(2), said::succeeded}));
    QVERIFY(QFileInfo::exists(one));
    QVERIFY(!QFileInfo::exists(job.path(QStringLiteral("two"))));
}

void tst_FileWipeWorker::aFolderThatVanishedNeedsNoRemoval()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/a"), 10);
    const QString folder = job.path(QStringLiteral("t"));
    job.said.onLine = [&folder](const QString &line) {
        if (line == said::deleting)
            QDir(folder).removeRecursively();
    };
    QVERIFY(job.run({folder}));
    QVERIFY(job.lines().filter(QRegularExpression(QStringLiteral("^1 "))).isEmpty());
}

// ---- Unreadable folders

void tst_FileWipeWorker::aFolderThatCannotBeListedFailsTheJob()
{
    FaultPlan plan(FaultPlan::List, 1, platform::AccessDenied);
    FaultyFolders folders(platform::Platform::current().folders(), plan,
                          [](const QString &path) { return path.endsWith(QStringLiteral("/locked")); });
    FileJob job(platform::Platform::current().files(), folders);
    const QString unseen = job.makeFile(QStringLiteral("t/locked/unseen"), 10);
    const QString seen = job.makeFile(QStringLiteral("t/seen"), 10);
    QVERIFY(!job.run({job.path(QStringLiteral("t"))}));
    QCOMPARE(job.lines(),
             (QStringList{said::scanning, said::folderUnreadable(job.path(QStringLiteral("t/locked")), 5),
                          said::preparing(1, QStringLiteral("10 B")), said::pass(1, 1), said::deleting,
                          said::someFailed(1), said::failed}));
    QVERIFY(!QFileInfo::exists(seen));
    // Deleted without an overwrite, the content would stay on the medium out of reach.
    QCOMPARE(contentOf(unseen), QByteArray(10, 'M'));
}

void tst_FileWipeWorker::aFolderThatCannotBeListedKeepsItsTarget()
{
    FaultPlan plan(FaultPlan::List, 1, platform::IoDevice);
    FaultyFolders folders(platform::Platform::current().folders(), plan);
    FileJob job(platform::Platform::current().files(), folders);
    job.makeFile(QStringLiteral("one/a"), 10);
    job.makeFile(QStringLiteral("two/b"), 10);
    QVERIFY(!job.run({job.path(QStringLiteral("one")), job.path(QStringLiteral("two"))}));
    QCOMPARE(contentOf(job.path(QStringLiteral("one/a"))), QByteArray(10, 'M'));
    QVERIFY(!QFileInfo::exists(job.path(QStringLiteral("two"))));
}

void tst_FileWipeWorker::aTargetThatCannotBeLookedAtFailsTheJob()
{
    FileJob job;
    const QString bad = job.makeFile(QStringLiteral("bad"), 10);
    job.files.hook = [&bad](const FileCall &call) { return call.path == bad ? failure(1117) : Status(); };
    QVERIFY(!job.run({bad, job.makeFile(QStringLiteral("good"), 10)}));
    QCOMPARE(
        job.lines(),
        (QStringList{said::scanning, QStringLiteral("2 无法访问: ") + bad + QStringLiteral("，错误码: 1117"),
                     said::preparing(1, QStringLiteral("10 B")), said::pass(1, 1), said::deleting,
                     said::someFailed(1), said::failed}));
    QCOMPARE(contentOf(bad), QByteArray(10, 'M'));
}

// ---- Figures

void tst_FileWipeWorker::theReportCarriesCountAndSize()
{
    FileJob job;
    job.makeFile(QStringLiteral("t/a"), 1'000);
    job.makeFile(QStringLiteral("t/b"), 0);
    WipeReport before = job.task.report();
    QVERIFY(job.run({job.path(QStringLiteral("t")), job.makeFile(QStringLiteral("c"), 24)}));
    WipeReport expected = before;
    expected.fileCount = 3;
    expected.totalBytes = 1'024;
    expected.verificationSampleSize = 6;
    expected.verificationMethod = QStringLiteral("random sampling, 3 samples per file");
    // The engine fills the other fields.
    QCOMPARE(job.task.report(), expected);
}

void tst_FileWipeWorker::theReportCarriesTheSamplesReadBack()
{
    FileJob job;
    job.task.setThreadCount(4);
    QStringList files;
    for (int i = 0; i < 11; ++i)
        files += job.makeFile(QString::number(i), i == 5 ? 0 : 10);
    QVERIFY(job.run(files));
    QCOMPARE(job.task.report().verificationSampleSize, 30);
    QCOMPARE(job.task.report().verificationMethod, QStringLiteral("random sampling, 3 samples per file"));
}

void tst_FileWipeWorker::theReportSaysWhenNothingWasReadBack()
{
    const auto check = [](const FileJob &job) {
        QCOMPARE(job.task.report().verificationSampleSize, 0);
        QCOMPARE(job.task.report().verificationMethod, QString());
    };
    FileJob nothingFound;
    QCOMPARE(nothingFound.task.report().verificationSampleSize, 1000);
    nothingFound.run({});
    check(nothingFound);
    FileJob empty;
    QVERIFY(empty.run({empty.makeFile(QStringLiteral("a"), 0)}));
    check(empty);
    FileJob switchedOff;
    switchedOff.task.setVerifyAfterWipe(false);
    QVERIFY(switchedOff.run({switchedOff.makeFile(QStringLiteral("a"), 10)}));
    check(switchedOff);
    FileJob outOfMemory;
    outOfMemory.files.hook = [](const FileCall &) -> Status { throw std::bad_alloc(); };
    QVERIFY(!outOfMemory.run({outOfMemory.makeFile(QStringLiteral("a"), 10)}));
    check(outOfMemory);
}

void tst_FileWipeWorker::progressComesAtMostEveryTenthOfASecond()
{
    FileJob job;
    job.task.setThreadCount(4);
    QStringList files;
    for (int i = 0; i < 300; ++i)
        files += job.makeFile(QString::number(i), 10);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(job.run(files));
    QVERIFY2(job.said.percents().size() <= timer.elapsed() / 100,
             qPrintable(
                 QStringLiteral("%1 reports in %2 ms").arg(job.said.percents().size()).arg(timer.elapsed())));
}

void tst_FileWipeWorker::progressRunsAheadInLaterPasses()
{
    FileJob job;
    job.task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    // Slow enough for a report after every chunk.
    setTransfers(job, [](platform::FileHandle &file, const void *data, qint64 size) {
        QThread::msleep(102);
        return file.write(data, size);
    });
    QStringList files;
    for (int i = 0; i < 3; ++i)
        files += job.makeFile(QString::number(i), 100);
    QVERIFY(job.run(files));
    // Of 600 bytes: (done/600 + earlier passes) / 2, with done counting the earlier pass as well.
    QCOMPARE(job.said.percents(), (QList<int>{8, 16, 25, 83, 91, 100}));
    QCOMPARE(job.said.bytes(), (QList<qint64>{100, 200, 300, 700, 800, 900}));
}

QUORVEX_SUITE(tst_FileWipeWorker, QCoreApplication)
#include "tst_filewipeworker.moc"
