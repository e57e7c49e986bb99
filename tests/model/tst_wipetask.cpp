#include "markingtranslator.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "support/messagecapture.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <limits>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
QStringList traceOf(const WipeTask &task)
{
    const MessageCapture capture;
    task.isValid();
    return capture.texts(QtDebugMsg);
}

bool isValidQuietly(const WipeTask &task)
{
    const MessageCapture capture;
    return task.isValid();
}

/// The traced lines before the checks of a task with the default disk.
QStringList traceHead(int type, const QString &letter = QString())
{
    return {u"=== WipeTask::isValid() ==="_s, u"Operation type: %1"_s.arg(type),
            u"Target partition driveLetter: "_s + letter, u"Target disk number: -1"_s,
            u"Target disk partitions count: 0"_s};
}

const QStringList traceTail{u"Thread count: 4"_s, u"Buffer size MB: 64"_s,
                            u"=== isValid() returns TRUE ==="_s};

DiskInfo diskNumber(int number)
{
    DiskInfo disk;
    disk.diskNumber = number;
    return disk;
}

/// A valid task whose type has no check of its own.
std::unique_ptr<WipeTask> taskOfType(int type)
{
    auto task = std::make_unique<WipeTask>();
    task->setOperationType(OperationType(type));
    task->setThreadCount(4);
    return task;
}

} // namespace

class tst_WipeTask : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void idIsAFreshUuidWithoutBraces();
    void defaultThreadCountIsValid();
    void settersAreReadBack();
    void metaObject();
    void parentOwnsTheTask();
    void addFilesKeepsTheOrderOfFirstAppearance();
    void addFilesComparesExactly();
    void addFilesOnTopOfListedOnes();
    void addFilesTakesAMillionFiles();

    void diskWipeWithoutDisk();
    void diskWipeOfTheSystemDisk();
    void diskWipeOfDiskZero();
    void diskChecksComeInOrder();
    void partitionWipeWithoutPartition();
    void partitionWipeOfTheSystemPartition();
    void partitionWipeByIndexAlone();
    void partitionWipeByLetterAlone();
    void partitionChecksComeInOrder();
    void freeSpaceWithoutTarget();
    void freeSpaceByDiskZero();
    void freeSpaceByLetter();
    void fileWipeWithoutFiles();
    void fileWipeOfFileAndFolder();
    void fileWipeNamesTheFirstMissingFile();
    void fileWipeOfADanglingLink();
    void fileWipeMarksControlCharactersOfThePath();
    void fileNameWithPlaceholders();
    void unknownTypeSkipsTheTypeChecks();

    void threadCounts_data();
    void threadCounts();
    void bufferSizes_data();
    void bufferSizes();
    void typeChecksComeBeforeTheRanges();
    void threadCountComesBeforeBufferSize();
    void traceShowsTheDisk();
    void validationErrorIsSilent();
    void messagesAreTranslatedInTheTasksContext();

    void reportIsFreshAndCopied();
    void updateReportChangesInPlace();
    void updateReportReturnsAValue();
    void reportIsSafeAcrossThreads();
};

void tst_WipeTask::defaults()
{
    const WipeTask task;
    QCOMPARE(task.operationType(), FileWipe);
    QCOMPARE(qint32(task.operationType()), 3);
    QCOMPARE(task.method(), WipeMethod::fromType(0));
    QCOMPARE(task.disk(), DiskInfo());
    QCOMPARE(task.partition(), PartitionInfo());
    QVERIFY(task.files().isEmpty());
    QCOMPARE(task.bufferSizeMB(), 64);
    QVERIFY(task.verifyAfterWipe());
    QCOMPARE(task.verifySampleSize(), 1000);
    QVERIFY(task.generateReport());
    QVERIFY(!task.parent());
}

void tst_WipeTask::idIsAFreshUuidWithoutBraces()
{
    static const QRegularExpression form(u"\\A[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\z"_s);
    const WipeTask first;
    const WipeTask second;
    QCOMPARE(first.id().size(), 36);
    QVERIFY2(form.match(first.id()).hasMatch(), qPrintable(first.id()));
    QVERIFY(first.id() != second.id());
}

void tst_WipeTask::defaultThreadCountIsValid()
{
    const int threads = QThread::idealThreadCount();
    const WipeTask task;
    QVERIFY(task.threadCount() >= 1 && task.threadCount() <= 32);
    if (threads >= 1 && threads <= 32)
        QCOMPARE(task.threadCount(), threads);
    else
        QCOMPARE(task.threadCount(), threads < 1 ? 1 : 32);
}

void tst_WipeTask::settersAreReadBack()
{
    WipeTask task;
    task.setId(u"id"_s);
    task.setOperationType(FreeSpaceWipe);
    task.setMethod(WipeMethod::fromType(3));
    task.setDisk(diskNumber(5));
    PartitionInfo partition;
    partition.driveLetter = u"E:"_s;
    task.setPartition(partition);
    task.setFiles({u"/a"_s, u"/a"_s});
    task.setThreadCount(-4);
    task.setBufferSizeMB(2000);
    task.setVerifyAfterWipe(false);
    task.setVerifySampleSize(7);
    task.setGenerateReport(false);

    QCOMPARE(task.id(), u"id"_s);
    QCOMPARE(task.operationType(), FreeSpaceWipe);
    QCOMPARE(task.method(), WipeMethod::fromType(3));
    QCOMPARE(task.disk(), diskNumber(5));
    QCOMPARE(task.partition(), partition);
    QCOMPARE(task.files(), QStringList({u"/a"_s, u"/a"_s}));
    QCOMPARE(task.threadCount(), -4);
    QCOMPARE(task.bufferSizeMB(), 2000);
    QVERIFY(!task.verifyAfterWipe());
    QCOMPARE(task.verifySampleSize(), 7);
    QVERIFY(!task.generateReport());
}

void tst_WipeTask::metaObject()
{
    const WipeTask task;
    QCOMPARE(QByteArray(task.metaObject()->className()), QByteArray("WipeTask"));
    QCOMPARE(task.metaObject()->methodCount(),
             QObject::staticMetaObject.methodCount()); // no signals, no slots
}

void tst_WipeTask::parentOwnsTheTask()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<WipeTask> task = new WipeTask(parent.get());
    QCOMPARE(task->parent(), parent.get());
    parent.reset();
    QVERIFY(task.isNull());
}

void tst_WipeTask::addFilesKeepsTheOrderOfFirstAppearance()
{
    WipeTask task;
    task.addFiles({u"/c"_s, u"/a"_s, u"/c"_s, u"/b"_s, u"/a"_s});
    QCOMPARE(task.files(), QStringList({u"/c"_s, u"/a"_s, u"/b"_s}));
}

void tst_WipeTask::addFilesComparesExactly()
{
    WipeTask task;
    task.addFiles({u"/tmp/a"_s});
    task.addFiles({u"/tmp/a"_s});
    QCOMPARE(task.files(), QStringList({u"/tmp/a"_s}));
    task.addFiles({u"/tmp/A"_s, u"/tmp/a/"_s});
    QCOMPARE(task.files(), QStringList({u"/tmp/a"_s, u"/tmp/A"_s, u"/tmp/a/"_s}));
}

void tst_WipeTask::addFilesOnTopOfListedOnes()
{
    WipeTask task;
    task.setFiles({u"/b"_s, u"/a"_s});
    task.addFiles({u"/a"_s, u"/c"_s, u"/b"_s});
    QCOMPARE(task.files(), QStringList({u"/b"_s, u"/a"_s, u"/c"_s}));
    task.addFiles({});
    QCOMPARE(task.files().size(), 3);
}

void tst_WipeTask::addFilesTakesAMillionFiles()
{
    QStringList paths;
    paths.reserve(1000000);
    for (int i = 0; i < 1000000; ++i)
        paths.append(QString::number(i));
    WipeTask task;
    task.addFiles(paths);
    QCOMPARE(task.files().size(), 1000000);
    QVERIFY(task.files() == paths);
}

void tst_WipeTask::diskWipeWithoutDisk()
{
    const auto task = taskOfType(DiskWipe);
    QCOMPARE(task->validationError(), u"Please select a disk to wipe"_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(0) + QStringList({u"FAIL: DiskWipe - disk number < 0"_s}));
}

void tst_WipeTask::diskWipeOfTheSystemDisk()
{
    const auto task = taskOfType(DiskWipe);
    DiskInfo disk = diskNumber(0);
    disk.isSystemDisk = true;
    task->setDisk(disk);
    QCOMPARE(task->validationError(), u"Cannot wipe system disk. Please boot from external drive."_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task).last(), u"FAIL: DiskWipe - is system disk"_s);
}

void tst_WipeTask::diskWipeOfDiskZero()
{
    const auto task = taskOfType(DiskWipe);
    task->setDisk(diskNumber(0));
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task).last(3), traceTail);
}

void tst_WipeTask::diskChecksComeInOrder()
{
    const auto task = taskOfType(DiskWipe);
    DiskInfo disk;
    disk.isSystemDisk = true;
    task->setDisk(disk);
    QCOMPARE(task->validationError(), u"Please select a disk to wipe"_s);
}

void tst_WipeTask::partitionWipeWithoutPartition()
{
    const auto task = taskOfType(PartitionWipe);
    PartitionInfo partition;
    partition.partitionIndex = -1;
    task->setPartition(partition);
    QCOMPARE(task->validationError(), u"Please select a partition to wipe"_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(1) + QStringList({u"FAIL: PartitionWipe - no partition selected"_s}));
}

void tst_WipeTask::partitionWipeOfTheSystemPartition()
{
    const auto task = taskOfType(PartitionWipe);
    PartitionInfo partition;
    partition.driveLetter = u"C:"_s;
    partition.isSystem = true;
    task->setPartition(partition);
    QCOMPARE(task->validationError(), u"Cannot wipe system partition. Please boot from external drive."_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task),
             traceHead(1, u"C:"_s) + QStringList({u"FAIL: PartitionWipe - is system partition"_s}));
}

void tst_WipeTask::partitionWipeByIndexAlone()
{
    const auto task = taskOfType(PartitionWipe);
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(1) + traceTail);
}

void tst_WipeTask::partitionWipeByLetterAlone()
{
    const auto task = taskOfType(PartitionWipe);
    PartitionInfo partition;
    partition.driveLetter = u"E:"_s;
    partition.partitionIndex = -1;
    task->setPartition(partition);
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
}

void tst_WipeTask::partitionChecksComeInOrder()
{
    const auto task = taskOfType(PartitionWipe);
    PartitionInfo partition;
    partition.partitionIndex = -1;
    partition.isSystem = true;
    task->setPartition(partition);
    QCOMPARE(task->validationError(), u"Please select a partition to wipe"_s);
}

void tst_WipeTask::freeSpaceWithoutTarget()
{
    const auto task = taskOfType(FreeSpaceWipe);
    QCOMPARE(task->validationError(), u"Please select a disk or partition for free space wipe"_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task),
             traceHead(2) +
                 QStringList({u"FreeSpaceWipe validation:"_s, u"  - partition.driveLetter.isEmpty(): true"_s,
                              u"  - disk.diskNumber(): -1"_s,
                              u"FAIL: FreeSpaceWipe - no partition and no disk"_s}));
}

void tst_WipeTask::freeSpaceByDiskZero()
{
    const auto task = taskOfType(FreeSpaceWipe);
    task->setDisk(diskNumber(0));
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task).mid(6, 3),
             QStringList({u"  - partition.driveLetter.isEmpty(): true"_s, u"  - disk.diskNumber(): 0"_s,
                          u"FreeSpaceWipe - validation passed (will find drive in worker)"_s}));
}

void tst_WipeTask::freeSpaceByLetter()
{
    const auto task = taskOfType(FreeSpaceWipe);
    PartitionInfo partition;
    partition.driveLetter = u"E:"_s;
    task->setPartition(partition);
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task),
             traceHead(2, u"E:"_s) +
                 QStringList({u"FreeSpaceWipe validation:"_s, u"  - partition.driveLetter.isEmpty(): false"_s,
                              u"  - disk.diskNumber(): -1"_s,
                              u"FreeSpaceWipe - validation passed (will find drive in worker)"_s}) +
                 traceTail);
}

void tst_WipeTask::fileWipeWithoutFiles()
{
    const auto task = taskOfType(FileWipe);
    QCOMPARE(task->validationError(), u"Please add files to wipe"_s);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(3) + QStringList({u"FAIL: FileWipe - no files"_s}));
}

void tst_WipeTask::fileWipeOfFileAndFolder()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    writeFile(folder.filePath(u"文件"_s), {});
    const auto task = taskOfType(FileWipe);
    task->setFiles({folder.filePath(u"文件"_s), folder.path()});
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(3) + traceTail);
}

void tst_WipeTask::fileWipeNamesTheFirstMissingFile()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString first = folder.filePath(u"z missing"_s);
    const QString second = folder.filePath(u"a missing"_s);
    const auto task = taskOfType(FileWipe);
    task->setFiles({folder.path(), first, second});
    QCOMPARE(task->validationError(), u"File not found: "_s + first);
    QVERIFY(!isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(3) + QStringList({u"FAIL: FileWipe - file not found: "_s + first}));
}

void tst_WipeTask::fileWipeOfADanglingLink()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    // Windows recognises a link file only by this suffix.
    const QString link = folder.filePath(u"link.lnk"_s);
    QVERIFY(QFile::link(folder.filePath(u"gone"_s), link));
    const auto task = taskOfType(FileWipe);
    task->setFiles({link});
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
}

void tst_WipeTask::fileWipeMarksControlCharactersOfThePath()
{
    const auto task = taskOfType(FileWipe);
    task->setFiles({u"/nowhere/a\nb\u202Ec"_s});
    QCOMPARE(task->validationError(), u"File not found: /nowhere/a[U+000A]b[U+202E]c"_s);
    QCOMPARE(traceOf(*task).last(), u"FAIL: FileWipe - file not found: /nowhere/a[U+000A]b[U+202E]c"_s);
}

void tst_WipeTask::fileNameWithPlaceholders()
{
    const auto task = taskOfType(FileWipe);
    task->setFiles({u"/nowhere/%1%2"_s});
    QCOMPARE(task->validationError(), u"File not found: /nowhere/%1%2"_s);
}

void tst_WipeTask::unknownTypeSkipsTheTypeChecks()
{
    const auto task = taskOfType(9);
    QCOMPARE(qint32(task->operationType()), 9);
    QCOMPARE(task->validationError(), QString());
    QVERIFY(isValidQuietly(*task));
    QCOMPARE(traceOf(*task), traceHead(9) + traceTail);
    task->setThreadCount(0);
    QVERIFY(!isValidQuietly(*task));
}

void tst_WipeTask::threadCounts_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("valid");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("32") << 32 << true;
    QTest::newRow("33") << 33 << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << false;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << false;
}

void tst_WipeTask::threadCounts()
{
    QFETCH(int, count);
    QFETCH(bool, valid);
    const auto task = taskOfType(9);
    task->setThreadCount(count);
    QCOMPARE(isValidQuietly(*task), valid);
    QCOMPARE(task->validationError(), valid ? QString() : u"线程数必须在1-32之间"_s);
    const QStringList failed{u"Thread count: %1"_s.arg(count), u"FAIL: thread count out of range"_s};
    const QStringList passed{u"Thread count: %1"_s.arg(count), u"Buffer size MB: 64"_s,
                             u"=== isValid() returns TRUE ==="_s};
    QCOMPARE(traceOf(*task), traceHead(9) + (valid ? passed : failed));
}

void tst_WipeTask::bufferSizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("valid");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("1024") << 1024 << true;
    QTest::newRow("1025") << 1025 << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << false;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << false;
}

void tst_WipeTask::bufferSizes()
{
    QFETCH(int, size);
    QFETCH(bool, valid);
    const auto task = taskOfType(9);
    task->setBufferSizeMB(size);
    QCOMPARE(isValidQuietly(*task), valid);
    QCOMPARE(task->validationError(), valid ? QString() : u"缓冲区大小必须在1-1024 MB之间"_s);
    const QString last = valid ? u"=== isValid() returns TRUE ==="_s : u"FAIL: buffer size out of range"_s;
    QCOMPARE(traceOf(*task),
             traceHead(9) + QStringList({u"Thread count: 4"_s, u"Buffer size MB: %1"_s.arg(size), last}));
}

void tst_WipeTask::typeChecksComeBeforeTheRanges()
{
    const auto task = taskOfType(DiskWipe);
    DiskInfo disk = diskNumber(1);
    disk.isSystemDisk = true;
    task->setDisk(disk);
    task->setThreadCount(33);
    QCOMPARE(task->validationError(), u"Cannot wipe system disk. Please boot from external drive."_s);
    QCOMPARE(traceOf(*task).last(), u"FAIL: DiskWipe - is system disk"_s);
}

void tst_WipeTask::threadCountComesBeforeBufferSize()
{
    const auto task = taskOfType(9);
    task->setThreadCount(0);
    task->setBufferSizeMB(0);
    QCOMPARE(task->validationError(), u"线程数必须在1-32之间"_s);
    QCOMPARE(traceOf(*task).last(), u"FAIL: thread count out of range"_s);
}

void tst_WipeTask::traceShowsTheDisk()
{
    const auto task = taskOfType(DiskWipe);
    DiskInfo disk = diskNumber(4);
    disk.addPartition(PartitionInfo());
    disk.addPartition(PartitionInfo());
    task->setDisk(disk);
    PartitionInfo partition;
    partition.driveLetter = u"E:"_s;
    task->setPartition(partition);
    const QStringList head{u"=== WipeTask::isValid() ==="_s, u"Operation type: 0"_s,
                           u"Target partition driveLetter: E:"_s, u"Target disk number: 4"_s,
                           u"Target disk partitions count: 2"_s};
    QCOMPARE(traceOf(*task), head + traceTail);
}

void tst_WipeTask::validationErrorIsSilent()
{
    const MessageCapture capture;
    QVERIFY(!taskOfType(FreeSpaceWipe)->validationError().isEmpty());
    QCOMPARE(capture.texts(QtDebugMsg), QStringList());
}

void tst_WipeTask::messagesAreTranslatedInTheTasksContext()
{
    const MarkingTranslator translator;
    const auto prefixed = [](const QString &text) { return u"<WipeTask>"_s + text; };

    QCOMPARE(taskOfType(DiskWipe)->validationError(), prefixed(u"Please select a disk to wipe"_s));
    QCOMPARE(taskOfType(FreeSpaceWipe)->validationError(),
             prefixed(u"Please select a disk or partition for free space wipe"_s));
    const auto files = taskOfType(FileWipe);
    QCOMPARE(files->validationError(), prefixed(u"Please add files to wipe"_s));
    files->setFiles({u"/nowhere"_s});
    QCOMPARE(files->validationError(), prefixed(u"File not found: /nowhere"_s));

    const auto partition = taskOfType(PartitionWipe);
    PartitionInfo record;
    record.isSystem = true;
    partition->setPartition(record);
    QCOMPARE(partition->validationError(),
             prefixed(u"Cannot wipe system partition. Please boot from external drive."_s));
    record.partitionIndex = -1;
    partition->setPartition(record);
    QCOMPARE(partition->validationError(), prefixed(u"Please select a partition to wipe"_s));

    const auto disk = taskOfType(DiskWipe);
    DiskInfo system = diskNumber(0);
    system.isSystemDisk = true;
    disk->setDisk(system);
    QCOMPARE(disk->validationError(),
             prefixed(u"Cannot wipe system disk. Please boot from external drive."_s));

    const auto tuning = taskOfType(9);
    tuning->setBufferSizeMB(0);
    QCOMPARE(tuning->validationError(), prefixed(u"缓冲区大小必须在1-1024 MB之间"_s));
    tuning->setThreadCount(0);
    QCOMPARE(tuning->validationError(), prefixed(u"线程数必须在1-32之间"_s));
    tuning->setThreadCount(1);
    tuning->setBufferSizeMB(1);
    QCOMPARE(tuning->validationError(), QString());
}

void tst_WipeTask::reportIsFreshAndCopied()
{
    WipeTask task;
    QVERIFY(task.report().certificateId.startsWith(u"QVX-"));
    QCOMPARE(task.report(), task.report());

    WipeReport copy = task.report();
    copy.badSectors = 5;
    QCOMPARE(task.report().badSectors, 0);
    task.setReport(copy);
    QCOMPARE(task.report(), copy);
}

void tst_WipeTask::updateReportChangesInPlace()
{
    WipeTask task;
    const QString id = task.report().certificateId;
    task.updateReport([](WipeReport &report) { report.bytesWritten += 512; });
    task.updateReport([](WipeReport &report) { report.bytesWritten += 512; });
    QCOMPARE(task.report().bytesWritten, quint64(1024));
    QCOMPARE(task.report().certificateId, id);
}

void tst_WipeTask::updateReportReturnsAValue()
{
    WipeTask task;
    QCOMPARE(task.updateReport([](WipeReport &report) { return ++report.fileCount; }), 1);
    QCOMPARE(task.updateReport([](WipeReport &report) { return ++report.fileCount; }), 2);
}

void tst_WipeTask::reportIsSafeAcrossThreads()
{
    // The writers keep the first and the last field of the record, and a count between them, in step. A copy
    // made without the lock would show them out of step, or a deleted string.
    constexpr int writers = 2;
    constexpr int reads = 20000;
    WipeTask task;
    task.updateReport([](WipeReport &report) { report.certificateId = report.errorMessage = u"0"_s; });

    std::atomic<bool> stop = false;
    std::atomic<quint64> updates = 0;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < writers; ++i) {
        threads.emplace_back(QThread::create([&] {
            while (!stop) {
                task.updateReport([](WipeReport &report) {
                    ++report.bytesWritten;
                    report.certificateId = QString::number(report.bytesWritten);
                    report.errorMessage = report.certificateId;
                });
                ++updates;
            }
        }));
        threads.back()->start();
    }
    int torn = 0;
    quint64 last = 0;
    for (int i = 0; i < reads || last < 1000; ++i) {
        const WipeReport seen = task.report();
        const QString count = QString::number(seen.bytesWritten);
        torn += seen.certificateId != count || seen.errorMessage != count || seen.bytesWritten < last;
        last = seen.bytesWritten;
    }
    stop = true;
    for (const auto &thread : threads)
        thread->wait();
    QCOMPARE(torn, 0);
    QCOMPARE(task.report().bytesWritten, updates.load());
}

QUORVEX_SUITE(tst_WipeTask, QCoreApplication)
#include "tst_wipetask.moc"
