#include "engine/fillnames.h"
#include "engine/freespacefixture.h"
#include "model/wipereport.h"
#include "support/faultplan.h"
#include "support/memoryvolume.h"
#include "support/messagecapture.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace freespace;
using namespace Qt::StringLiterals;

namespace {

constexpr PassPattern Zeros{PatternType::Zeros};
constexpr PassPattern Ones{PatternType::Ones, 0xFF};
constexpr PassPattern Random{PatternType::Random};

constexpr PassPattern custom(quint8 value)
{
    return {PatternType::Custom, value};
}

} // namespace

class tst_FreeSpaceWipeWorker : public QObject
{
    Q_OBJECT

private slots:
    // Targets.
    void oneVolumeJobLogsLineByLine();
    void twoVolumeJobLogsLineByLine();
    void partitionIsTakenBeforeDisk();
    void negativeDiskNumberIsAnInvalidTarget();
    void volumesWithoutDriveLetterAreSkipped();
    void diskWithoutPartitionsIsWipedThroughItsVolume();
    void diskWithoutAnyVolumeIsDoneWithTheWarning();
    void volumeOfADiskIsTheOneWhoseFirstExtentLiesOnIt();
    void developersAreToldWhatIsLookedFor();
    void volumeOfADiskMayHave33Extents();
    void unreadableVolumesArePassedOver();
    void rootsAreTakenAsGiven_data();
    void rootsAreTakenAsGiven();
    void namesWithPlaceholdersAreNotSubstituted();
    void namesAreShownWithoutControlCharacters();
    void failedVolumeEndsTheJob();

    // Free space and reserve.
    void noFreeSpaceCountsAsDone();
    void freeSpaceWithinTheReserveWritesNothingInAnyPass();
    void ordinaryVolumeKeeps100MiB();
    void systemVolumeKeeps1GiB();
    void oneByteAboveTheReserveIsWritten();

    // Fill files.
    void fiveGiBFillThreeFiles();
    void bufferThatDoesNotDivideAFileEndsItWithAShorterChunk();
    void fileBelowOneBufferEndsTheFill();
    void wholeBuffersEndWithTheVolumeFull();
    void everyPassFillsTheWholeSpaceAgain();
    void everythingIsFlushedBeforeItIsDeleted();
    void constantPassesWriteTheirByte();
    void randomPassesWriteFreshBytes();
    void impossibleBufferFailsTheFill();
    void passLabels_data();
    void passLabels();
    void methodWithoutPassesFillsNothing();

    // The temporary folder and the residue.
    void temporaryFolderIsHiddenAndNamedAtRandom();
    void fillFileNamesHaveSixDigits();
    void recordFilesAndFoldersAreMadeAndRemoved();
    void emptyTemporaryFolderStaysBehind();
    void foreignFileInTheTemporaryFolderStays();

    // Progress and report.
    void passesAndPercentRestartWithEveryVolume();
    void bytesOfEarlierPassesCountAsTheFreeSpaceAtTheStart();
    void reportTellsWhatEveryPassFilled();
    void reportOfTwoVolumesIsTheirSum();
    void roomGivenBackMeanwhileIsFilledToo();
    void reportSaysThatNothingWasReadBack();
};

void tst_FreeSpaceWipeWorker::oneVolumeJobLogsLineByLine()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 112 * MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Random});
    job.run();

    QVERIFY(compareLogs(job.log, {
                                     {u"开始空闲空间擦除..."_s, 0},
                                     {u"目标分区: E:"_s, 0},
                                     {u"分区大小: 8.00 GB"_s, 0},
                                     {u"文件系统: NTFS"_s, 0},
                                     {u"目标分区: E:/"_s, 0},
                                     {u"空闲空间: 112.00 MB"_s, 0},
                                     {u"保留 100.00 MB 作为安全空间，不会被覆写"_s, 0},
                                     {u"第 1/2 次覆写 (模式: 0x00)"_s, 0},
                                     {u"空闲空间已填满"_s, 0},
                                     {u"已写入: 12.00 MB"_s, 0},
                                     {u"第 2/2 次覆写 (模式: 随机)"_s, 0},
                                     {u"空闲空间已填满"_s, 0},
                                     {u"已写入: 12.00 MB"_s, 0},
                                     {u"正在清理文件系统残留..."_s, 0},
                                     {QString(), 0},
                                     {u"空闲空间擦除完成!"_s, 0},
                                 }));
    QVERIFY(job.succeeded());
    QVERIFY(job.errors.isEmpty());
}

void tst_FreeSpaceWipeWorker::twoVolumeJobLogsLineByLine()
{
    Machine machine;
    machine.volume.freeBytes[u"/media/a/"_s] = 3 * MiB;
    machine.volume.freeBytes[u"/"_s] = GiB + 3 * MiB / 2;
    machine.session.systemRoots = QStringList{u"/"_s};
    Job job;
    job.setDisk(2, {u"/media/a"_s, u"/"_s});
    job.setPasses({custom(0xA5)});
    job.run();

    QVERIFY(compareLogs(job.log, {
                                     {u"开始空闲空间擦除..."_s, 0},
                                     {u"目标磁盘: Model (16.00 GB)"_s, 0},
                                     {u"磁盘大小: 16.00 GB"_s, 0},
                                     {u"将擦除 2 个分区的空闲空间"_s, 0},
                                     {u"  - /media/a"_s, 0},
                                     {u"  - /"_s, 0},
                                     {QString(), 0},
                                     {u"========== 分区 1/2: /media/a =========="_s, 0},
                                     {u"目标分区: /media/a/"_s, 0},
                                     {u"空闲空间: 3.00 MB"_s, 0},
                                     {u"保留 3.00 MB 作为安全空间，不会被覆写"_s, 0},
                                     {u"第 1/1 次覆写 (模式: 0XA5)"_s, 0},
                                     {u"空闲空间已填满"_s, 0},
                                     {u"已写入: 0 B"_s, 0},
                                     {u"正在清理文件系统残留..."_s, 0},
                                     {QString(), 0},
                                     {u"========== 分区 2/2: / =========="_s, 0},
                                     {u"目标分区: /"_s, 0},
                                     {u"空闲空间: 1.00 GB"_s, 0},
                                     {u"保留 1.00 GB 作为安全空间，不会被覆写"_s, 0},
                                     {u"第 1/1 次覆写 (模式: 0XA5)"_s, 0},
                                     {u"检测到系统分区，保留 1 GB 安全空间"_s, 0},
                                     {u"空闲空间已填满"_s, 0},
                                     {u"已写入: 1.50 MB"_s, 0},
                                     {u"正在清理文件系统残留..."_s, 0},
                                     {QString(), 0},
                                     {u"空闲空间擦除完成!"_s, 0},
                                 }));
    QVERIFY(job.succeeded());
    QVERIFY(job.errors.isEmpty());
}

void tst_FreeSpaceWipeWorker::partitionIsTakenBeforeDisk()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, 101 * MiB}, {u"F:/"_s, 101 * MiB}};
    Job job;
    job.setVolume(u"E:"_s);
    job.setDisk(1, {u"F:"_s});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"目标分区: E:/"_s, 0));
    QVERIFY(!job.logged(u"目标分区: F:/"_s, 0));
    QVERIFY(machine.volume.pathsBelow(u"F:/"_s).isEmpty());
}

void tst_FreeSpaceWipeWorker::negativeDiskNumberIsAnInvalidTarget()
{
    Machine machine;
    Job job;
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.errors, QStringList{u"无效的目标"_s});
    QVERIFY(compareLogs(job.log, {{u"开始空闲空间擦除..."_s, 0}}));
}

void tst_FreeSpaceWipeWorker::volumesWithoutDriveLetterAreSkipped()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 101 * MiB;
    Job job;
    job.setDisk(1, {QString(), u"E:"_s, QString()});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"将擦除 1 个分区的空闲空间"_s, 0));
    QVERIFY(job.logged(u"  - E:"_s, 0));
    QVERIFY2(!job.log.contains(LogLine{u"========== 分区 1/1: E: =========="_s, 0}),
             "a single volume has no header");
}

void tst_FreeSpaceWipeWorker::diskWithoutPartitionsIsWipedThroughItsVolume()
{
    Machine machine;
    machine.volume.freeBytes[u"G:/"_s] = 101 * MiB;
    machine.devices.mount(FakeVolume::onDrives(u"G:"_s, {3}));
    Job job;
    job.setDisk(3, {QString()});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(compareLogs(job.log.mid(3, 5), {
                                               {u"磁盘没有分区表，尝试查找对应的卷..."_s, 0},
                                               {u"找到对应卷: G:"_s, 0},
                                               {u"将擦除 1 个分区的空闲空间"_s, 0},
                                               {u"  - G:"_s, 0},
                                               {u"目标分区: G:/"_s, 0},
                                           }));
    QVERIFY(job.logged(u"已写入: 1.00 MB"_s, 0));
}

void tst_FreeSpaceWipeWorker::diskWithoutAnyVolumeIsDoneWithTheWarning()
{
    Machine machine;
    machine.devices.mount(FakeVolume::onDrives(u"G:"_s, {4}));
    Job job;
    job.setDisk(3, {});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.errors.isEmpty());
    QVERIFY(compareLogs(job.log.mid(3), {
                                            {u"磁盘没有分区表，尝试查找对应的卷..."_s, 0},
                                            {u"警告: 磁盘上没有可用的非系统分区"_s, 1},
                                        }));
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeWorker::volumeOfADiskIsTheOneWhoseFirstExtentLiesOnIt()
{
    Machine machine;
    machine.devices.mount(FakeVolume::onDrives(u"D:"_s, {1, 5}));
    machine.devices.mount(FakeVolume::onDrives(u"E:"_s, {5, 1}));
    machine.devices.mount(FakeVolume::onDrives(u"F:"_s, {5}));
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(5), u"E:"_s);
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(1), u"D:"_s);
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(2), QString());
    QCOMPARE(machine.devices.openHandles, 0);
    QCOMPARE(machine.devices.mostOpenHandles, 1);
}

void tst_FreeSpaceWipeWorker::developersAreToldWhatIsLookedFor()
{
    Machine machine;
    machine.devices.mount(FakeVolume::onDrives(u"E:"_s, {5}));
    {
        const MessageCapture messages;
        FreeSpaceWipeWorker::findDriveForDisk(5);
        QCOMPARE(messages.texts(QtDebugMsg),
                 (QStringList{u"findDriveForDisk: searching for disk 5"_s, u"  Drive \"E:\" is on disk 5"_s,
                              u"  Found matching drive: \"E:\""_s}));
    }
    {
        const MessageCapture messages;
        FreeSpaceWipeWorker::findDriveForDisk(4);
        QCOMPARE(messages.texts(QtDebugMsg).last(), u"findDriveForDisk: no drive found for disk 4"_s);
    }
    const MessageCapture messages;
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    const QStringList told = messages.texts(QtDebugMsg);
    for (const QString &text :
         {u"Partition driveLetter: \"E:\""_s, u"Disk number: "_s, u"Disk partitions count: 0"_s})
        QVERIFY2(!told.filter(text).isEmpty(), qPrintable(text + u" not in "_s + told.join(u'\n')));
}

void tst_FreeSpaceWipeWorker::volumeOfADiskMayHave33Extents()
{
    Machine machine;
    machine.devices.mount(FakeVolume::onDrives(u"E:"_s, QList<int>(34, 5)));
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(5), QString());
    machine.devices.mount(FakeVolume::onDrives(u"F:"_s, QList<int>(33, 5)));
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(5), u"F:"_s);
}

void tst_FreeSpaceWipeWorker::unreadableVolumesArePassedOver()
{
    Machine machine;
    FakeVolume closed = FakeVolume::onDrives(u"A:"_s, {0});
    closed.opening = fakeFailure(platform::NotReady);
    FakeVolume dumb = FakeVolume::onDrives(u"B:"_s, {0});
    dumb.extentsAnswer = fakeFailure(platform::NotSupported);
    machine.devices.mount(closed);
    machine.devices.mount(dumb);
    machine.devices.mount(FakeVolume::onDrives(u"C:"_s, {}));
    machine.devices.mount(FakeVolume::onDrives(u"D:"_s, {0}));
    QCOMPARE(FreeSpaceWipeWorker::findDriveForDisk(0), u"D:"_s);
}

void tst_FreeSpaceWipeWorker::rootsAreTakenAsGiven_data()
{
    QTest::addColumn<QString>("drive");
    QTest::addColumn<QString>("root");
    QTest::newRow("letter") << u"E:"_s << u"E:/"_s;
    QTest::newRow("letter and slash") << u"E:/"_s << u"E:/"_s;
    QTest::newRow("letter and backslash") << u"E:\\"_s << u"E:\\"_s;
    QTest::newRow("mount point") << u"/media/data"_s << u"/media/data/"_s;
    QTest::newRow("root of the system") << u"/"_s << u"/"_s;
}

void tst_FreeSpaceWipeWorker::rootsAreTakenAsGiven()
{
    QFETCH(const QString, drive);
    QFETCH(const QString, root);
    Machine machine;
    machine.volume.freeBytes[root] = 101 * MiB;
    Job job;
    job.setVolume(drive);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"目标分区: "_s + root, 0));
    QCOMPARE(withoutRandom(machine.volume.createdFolders.first()), root + u".quorvex_temp_########"_s);
    QVERIFY(job.logged(u"已写入: 1.00 MB"_s, 0));
}

void tst_FreeSpaceWipeWorker::namesWithPlaceholdersAreNotSubstituted()
{
    Machine machine;
    machine.volume.freeBytes = {{u"/m/%1%2%3/"_s, 101 * MiB}, {u"/m/%2/"_s, 101 * MiB}};
    Job job;
    job.setDisk(1, {u"/m/%1%2%3"_s, u"/m/%2"_s});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"========== 分区 1/2: /m/%1%2%3 =========="_s, 0));
    QVERIFY(job.logged(u"目标分区: /m/%1%2%3/"_s, 0));
    QCOMPARE(closedFillFiles(machine.volume).first().path,
             u"/m/%1%2%3/.quorvex_temp_########/fill_000000.tmp"_s);
    const QStringList stays = withoutRandom(machine.volume.pathsBelow(u"/m/"_s));
    QCOMPARE(stays, (QStringList{u"/m/%1%2%3/.quorvex_temp_########"_s, u"/m/%2/.quorvex_temp_########"_s}));
}

void tst_FreeSpaceWipeWorker::namesAreShownWithoutControlCharacters()
{
    Machine machine;
    const QString drive = u"/media/a\u001b[31m\u202egpj"_s;
    machine.volume.freeBytes[drive + u'/'] = 101 * MiB;
    Job job;
    job.setVolume(drive);
    job.run();
    QVERIFY(job.succeeded());
    for (const LogLine &line : std::as_const(job.log)) {
        QVERIFY(!line.text.contains(QChar(0x1b)));
        QVERIFY(!line.text.contains(QChar(0x202e)));
    }
    QVERIFY(machine.volume.createdFolders.first().startsWith(drive + u"/.quorvex_temp_"_s));
}

void tst_FreeSpaceWipeWorker::failedVolumeEndsTheJob()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, 101 * MiB}, {u"F:/"_s, 101 * MiB}};
    machine.volume.distrustsPrograms = true;
    FaultPlan plan(FaultPlan::CreateFolder, 1, platform::AccessDenied);
    machine.volume.setPlan(&plan);
    Job job;
    job.setDisk(1, {u"E:"_s, u"F:"_s});
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.errors, QStringList{u"无法创建临时目录: E:/.quorvex_temp_########"_s});
    const QList<LogLine> expected{
        {QString(), 0},
        {u"========== 分区 1/2: E: =========="_s, 0},
        {u"目标分区: E:/"_s, 0},
        {u"空闲空间: 101.00 MB"_s, 0},
        {u"提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试"_s, 1},
    };
    QVERIFY(compareLogs(job.log.mid(6), expected));
    QVERIFY(machine.volume.pathsBelow(u"F:/"_s).isEmpty());
}

void tst_FreeSpaceWipeWorker::noFreeSpaceCountsAsDone()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 0;
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(compareLogs(job.log.mid(4), {
                                            {u"目标分区: E:/"_s, 0},
                                            {u"空闲空间: 0 B"_s, 0},
                                            {u"没有空闲空间需要擦除"_s, 0},
                                            {QString(), 0},
                                            {u"空闲空间擦除完成!"_s, 0},
                                        }));
    QVERIFY(machine.volume.createdFolders.isEmpty());
}

void tst_FreeSpaceWipeWorker::freeSpaceWithinTheReserveWritesNothingInAnyPass()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Ones, Random});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.count(u"空闲空间已填满"_s, 0), 3);
    QCOMPARE(job.count(u"已写入: 0 B"_s, 0), 3);
    QVERIFY(fillWrites(machine.volume).isEmpty());
    QVERIFY(closedFillFiles(machine.volume).isEmpty());
    QVERIFY(job.percents.isEmpty());
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeWorker::ordinaryVolumeKeeps100MiB()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 150 * MiB;
    machine.session.systemRoots = QStringList{u"C:/"_s};
    qint64 lowest = 150 * MiB;
    machine.volume.onCall = [&](FaultPlan::Kind, const QString &) {
        lowest = std::min(lowest, machine.volume.freeBytes.value(u"E:/"_s));
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(lowest, 100 * MiB);
    QVERIFY(!job.logged(u"检测到系统分区，保留 1 GB 安全空间"_s, 0));
    QCOMPARE(machine.volume.freeBytes.value(u"E:/"_s), 150 * MiB);
}

void tst_FreeSpaceWipeWorker::systemVolumeKeeps1GiB()
{
    Machine machine;
    machine.volume.freeBytes[u"C:/"_s] = GiB + 50 * MiB;
    machine.session.systemRoots = QStringList{u"C:/"_s};
    qint64 lowest = 2 * GiB;
    machine.volume.onCall = [&](FaultPlan::Kind, const QString &) {
        lowest = std::min(lowest, machine.volume.freeBytes.value(u"C:/"_s));
    };
    Job job;
    job.setVolume(u"C:"_s);
    job.setPasses({Zeros, Ones});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(lowest, GiB);
    QCOMPARE(job.count(u"检测到系统分区，保留 1 GB 安全空间"_s, 0), 2);
}

void tst_FreeSpaceWipeWorker::oneByteAboveTheReserveIsWritten()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 1;
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已写入: 1 B"_s, 0));
    QVERIFY(!job.logged(u"空闲空间已填满"_s, 0));
    QCOMPARE(closedFillFiles(machine.volume),
             (QList<MemoryVolume::Closed>{{u"E:/.quorvex_temp_########/fill_000000.tmp"_s, 1}}));
}

void tst_FreeSpaceWipeWorker::fiveGiBFillThreeFiles()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 5 * GiB + Reserve;
    Job job;
    job.setVolume(u"E:"_s);
    job.task.setBufferSizeMB(64);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(closedFillFiles(machine.volume), (QList<MemoryVolume::Closed>{
                                                  {u"E:/.quorvex_temp_########/fill_000000.tmp"_s, 2 * GiB},
                                                  {u"E:/.quorvex_temp_########/fill_000001.tmp"_s, 2 * GiB},
                                                  {u"E:/.quorvex_temp_########/fill_000002.tmp"_s, GiB},
                                              }));
    QCOMPARE(fillWrites(machine.volume).size(), 5 * GiB / (64 * MiB));
    QVERIFY(job.logged(u"已写入: 5.00 GB"_s, 0));
    QVERIFY(fillFiles(machine.volume).isEmpty());
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(5 * GiB / 512));
}

void tst_FreeSpaceWipeWorker::bufferThatDoesNotDivideAFileEndsItWithAShorterChunk()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = 2 * GiB + 10 * MiB + Reserve;
    Job job;
    job.setVolume(u"E:"_s);
    job.task.setBufferSizeMB(3);
    job.run();
    QVERIFY(job.succeeded());
    const auto files = closedFillFiles(machine.volume);
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.at(0).size, 2 * GiB);
    QCOMPARE(files.at(1).size, 10 * MiB);

    QList<qint64> sizes;
    for (const auto &write : fillWrites(machine.volume))
        sizes.append(write.size);
    // 682 chunks of 3 MiB and 2 MiB fill the first file; 3 chunks and 1 MiB the second.
    QList<qint64> expected(682, 3 * MiB);
    expected << 2 * MiB << 3 * MiB << 3 * MiB << 3 * MiB << 1 * MiB;
    QCOMPARE(sizes, expected);
}

void tst_FreeSpaceWipeWorker::fileBelowOneBufferEndsTheFill()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 5 * MiB;
    // The last file received less than one buffer, so space that appears while it is written is left alone.
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Flush && machine.volume.writes.size() == 1)
            machine.volume.freeBytes[u"E:/"_s] = Reserve;
        if (kind == FaultPlan::Remove)
            machine.volume.freeBytes[u"E:/"_s] = 2 * Reserve;
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.task.setBufferSizeMB(8);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(closedFillFiles(machine.volume).size(), 1);
    QVERIFY(!job.logged(u"空闲空间已填满"_s, 0));
}

void tst_FreeSpaceWipeWorker::wholeBuffersEndWithTheVolumeFull()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 8 * MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.task.setBufferSizeMB(8);
    job.run();
    QVERIFY(job.succeeded());
    // The file took a whole buffer, so another one is tried, and the volume is full.
    QCOMPARE(job.count(u"空闲空间已填满"_s, 0), 1);
    QCOMPARE(closedFillFiles(machine.volume).size(), 1);
}

void tst_FreeSpaceWipeWorker::everyPassFillsTheWholeSpaceAgain()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 12 * MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Ones, custom(0x55)});
    job.run();
    QVERIFY(job.succeeded());
    const MemoryVolume::Closed full{u"E:/.quorvex_temp_########/fill_000000.tmp"_s, 12 * MiB};
    QCOMPARE(closedFillFiles(machine.volume), (QList<MemoryVolume::Closed>{full, full, full}));
    QCOMPARE(job.count(u"已写入: 12.00 MB"_s, 0), 3);
}

void tst_FreeSpaceWipeWorker::everythingIsFlushedBeforeItIsDeleted()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 10 * MiB;
    qint64 unflushedChunks = 0;
    bool lastRecordIsFlushed = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Write && machine.volume.entries.value(path).unflushed > 0)
            ++unflushedChunks;
        if (kind == FaultPlan::Flush && path.endsWith(u"/mft_clean/999.tmp"_s))
            lastRecordIsFlushed = machine.volume.pathsBelow(path.chopped(7)).size() == 1000;
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Random});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(machine.volume.removed.size(), 2 + 1000);
    QCOMPARE(machine.volume.removedUnflushed.filter(u"/fill_"_s), QStringList());
    // One flush commits all records, that of the last file, before any file is deleted.
    QVERIFY(lastRecordIsFlushed);
    QCOMPARE(unflushedChunks, 0);
}

void tst_FreeSpaceWipeWorker::constantPassesWriteTheirByte()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 5 * MiB / 2;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Ones, custom(0x92), custom(0x00), custom(0xDB), {PatternType::Complement}});
    job.run();
    QVERIFY(job.succeeded());
    const auto writes = fillWrites(machine.volume);
    const QList<quint8> bytes{0x00, 0xFF, 0x92, 0x00, 0xDB, 0x24};
    QCOMPARE(writes.size(), 3 * bytes.size());
    for (qsizetype i = 0; i < writes.size(); ++i) {
        QCOMPARE(writes.at(i).first, bytes.at(i / 3));
        QCOMPARE(writes.at(i).last, bytes.at(i / 3));
    }
}

void tst_FreeSpaceWipeWorker::randomPassesWriteFreshBytes()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 8 * MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Random, Random});
    job.run();
    QVERIFY(job.succeeded());
    QSet<QPair<quint8, quint8>> ends;
    for (const auto &write : fillWrites(machine.volume))
        ends.insert({write.first, write.last});
    // 16 chunks; the odds that 9 of them begin and end with the bytes of another one are below 1e-20.
    QVERIFY(ends.size() > 7);
}

void tst_FreeSpaceWipeWorker::impossibleBufferFailsTheFill()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 8 * MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Ones});
    job.task.setBufferSizeMB(0);
    job.run();
    QVERIFY(job.failed());
    QCOMPARE(job.errors, (QStringList{u"内存分配失败"_s, u"填充空闲空间失败"_s}));
    QCOMPARE(job.passes.size(), 1);
    QVERIFY(machine.volume.pathsBelow(u"E:/"_s).isEmpty());
}

void tst_FreeSpaceWipeWorker::passLabels_data()
{
    QTest::addColumn<PassPattern>("pattern");
    QTest::addColumn<QString>("line");
    QTest::newRow("zeros") << Zeros << u"第 1/1 次覆写 (模式: 0x00)"_s;
    QTest::newRow("ones") << Ones << u"第 1/1 次覆写 (模式: 0xFF)"_s;
    QTest::newRow("random") << Random << u"第 1/1 次覆写 (模式: 随机)"_s;
    QTest::newRow("one byte is upper-cased with its prefix")
        << custom(0xab) << u"第 1/1 次覆写 (模式: 0XAB)"_s;
    QTest::newRow("one byte has two digits") << custom(0x05) << u"第 1/1 次覆写 (模式: 0X05)"_s;
    QTest::newRow("complement has no name")
        << PassPattern{PatternType::Complement} << u"第 1/1 次覆写 (模式: 未知)"_s;
    QTest::newRow("number without a meaning")
        << PassPattern{static_cast<PatternType>(9)} << u"第 1/1 次覆写 (模式: 未知)"_s;
}

void tst_FreeSpaceWipeWorker::passLabels()
{
    QFETCH(const PassPattern, pattern);
    QFETCH(const QString, line);
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({pattern});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.count(line, 0), 1);
}

void tst_FreeSpaceWipeWorker::methodWithoutPassesFillsNothing()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
    Job job;
    job.setVolume(u"E:"_s);
    job.setPasses({});
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(fillWrites(machine.volume).isEmpty());
    QCOMPARE(job.wipedSectors(), 0u);
}

void tst_FreeSpaceWipeWorker::temporaryFolderIsHiddenAndNamedAtRandom()
{
    static const QRegularExpression name(u"^E:/\\.quorvex_temp_[0-9a-f]{8}$"_s);
    QSet<QString> names;
    for (int i = 0; i < 5; ++i) {
        Machine machine;
        machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
        Job job;
        job.setVolume(u"E:"_s);
        job.run();
        QVERIFY(job.succeeded());
        const QString folder = machine.volume.createdFolders.first();
        QVERIFY(name.match(folder).hasMatch());
        names.insert(folder);
        // Hidden once for the fill, and once when the residue steps create it again.
        QCOMPARE(machine.volume.hidden, (QStringList{folder, folder}));
    }
    QCOMPARE(names.size(), 5);
}

void tst_FreeSpaceWipeWorker::fillFileNamesHaveSixDigits()
{
    QCOMPARE(fillnames::file(0), u"fill_000000.tmp"_s);
    QCOMPARE(fillnames::file(123456), u"fill_123456.tmp"_s);
    QVERIFY(fillnames::isFile(u"fill_000123.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_00123.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_0000123.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_00012a.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_+00123.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_٠٠٠١٢٣.tmp")); // other digits than ASCII
    QVERIFY(!fillnames::isFile(u"Fill_000123.tmp"));
    QVERIFY(!fillnames::isFile(u"fill_000123.tmpx"));
    QVERIFY(!fillnames::isFile(u"fill_000123.TMP"));
    QVERIFY(fillnames::isFolder(fillnames::newFolder()));
    QVERIFY(fillnames::isFolder(u".quorvex_temp_0123abcd"));
    QVERIFY(!fillnames::isFolder(u".quorvex_temp_0123ABCD"));
    QVERIFY(!fillnames::isFolder(u".quorvex_temp_0123abc"));
    QVERIFY(!fillnames::isFolder(u".quorvex_temp_0123abcde"));
    QVERIFY(!fillnames::isFolder(u".quorvex_temp_0123abcg"));
    QVERIFY(!fillnames::isFolder(u"quorvex_temp_0123abcd"));
}

void tst_FreeSpaceWipeWorker::recordFilesAndFoldersAreMadeAndRemoved()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
    int mostFiles = 0;
    int mostFolders = 0;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind != FaultPlan::RemoveTree)
            return;
        (path.endsWith(u"/mft_clean"_s) ? mostFiles : mostFolders) =
            static_cast<int>(machine.volume.pathsBelow(path + u'/').size());
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(mostFiles, 1000);
    QCOMPARE(mostFolders, 100);

    const QString folder = machine.volume.createdFolders.first();
    QStringList names;
    QSet<quint8> bytes;
    for (const auto &write : std::as_const(machine.volume.writes)) {
        if (!write.path.startsWith(folder + u"/mft_clean/"_s))
            continue;
        QCOMPARE(write.size, 256);
        bytes += {write.first, write.last};
        names.append(write.path.mid(folder.size() + 11));
    }
    QCOMPARE(names.size(), 1000);
    QCOMPARE(names.first(), u"0.tmp"_s);
    QCOMPARE(names.at(10), u"10.tmp"_s);
    QCOMPARE(names.last(), u"999.tmp"_s);
    QVERIFY(bytes.size() > 200); // 2,000 random bytes

    const QStringList folders = machine.volume.createdFolders.filter(folder + u"/dir_clean/"_s);
    QCOMPARE(folders.size(), 100);
    static const QRegularExpression uuid(u"/dir_clean/[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$"_s);
    QCOMPARE(folders.filter(uuid).size(), 100);
    QCOMPARE(QSet<QString>(folders.begin(), folders.end()).size(), 100);
}

void tst_FreeSpaceWipeWorker::emptyTemporaryFolderStaysBehind()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
    machine.volume.addFile(u"E:/keep.txt"_s, 1000);
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(withoutRandom(machine.volume.pathsBelow(u"E:/"_s)),
             (QStringList{u"E:/.quorvex_temp_########"_s, u"E:/keep.txt"_s}));
}

void tst_FreeSpaceWipeWorker::foreignFileInTheTemporaryFolderStays()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + MiB;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &path) {
        if (kind == FaultPlan::Hide)
            machine.volume.addFile(path + u"/foreign.txt"_s, 10);
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(!machine.volume.removed.filter(u"foreign"_s).size());
    QCOMPARE(machine.volume.pathsBelow(u"E:/"_s).filter(u"/foreign.txt"_s).size(), 1);
}

void tst_FreeSpaceWipeWorker::passesAndPercentRestartWithEveryVolume()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, 2 * Reserve}, {u"F:/"_s, 2 * Reserve}};
    Job job;
    job.setDisk(1, {u"E:"_s, u"F:"_s});
    job.setPasses({Zeros, Ones});
    job.task.setBufferSizeMB(100);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.passes, (QList<std::pair<int, int>>{{1, 2}, {2, 2}, {1, 2}, {2, 2}}));
    // The reserve is half of the free space, so each pass covers half of its range.
    QCOMPARE(job.percents, (QList<int>{25, 75, 25, 75}));
}

void tst_FreeSpaceWipeWorker::bytesOfEarlierPassesCountAsTheFreeSpaceAtTheStart()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, 2 * Reserve}, {u"F:/"_s, 3 * Reserve}};
    Job job;
    job.setDisk(1, {u"E:"_s, u"F:"_s});
    job.setPasses({Zeros, Ones});
    job.task.setBufferSizeMB(100);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.bytes,
             (QList<qint64>{1 * Reserve, 3 * Reserve,                              // E:, 200 MiB free
                            5 * Reserve, 6 * Reserve, 8 * Reserve, 9 * Reserve})); // F:, 300 MiB free
}

void tst_FreeSpaceWipeWorker::reportTellsWhatEveryPassFilled()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 10 * MiB;
    // Another program takes 4 MiB between the passes.
    int passes = 0;
    Job job;
    QObject::connect(&job.worker, &BaseWipeWorker::passChanged, &job, [&] {
        if (++passes == 2)
            machine.volume.freeBytes[u"E:/"_s] -= 4 * MiB;
    });
    job.setVolume(u"E:"_s);
    job.setPasses({Zeros, Ones, Zeros});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(6 * MiB / 512));
}

void tst_FreeSpaceWipeWorker::reportOfTwoVolumesIsTheirSum()
{
    Machine machine;
    machine.volume.freeBytes = {{u"E:/"_s, Reserve + 2 * MiB}, {u"F:/"_s, Reserve + 5 * MiB}};
    Job job;
    job.setDisk(1, {u"E:"_s, u"F:"_s});
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(7 * MiB / 512));
    QCOMPARE(job.task.outcome().volumes(), (QStringList{u"E:"_s, u"F:"_s}));
}

void tst_FreeSpaceWipeWorker::roomGivenBackMeanwhileIsFilledToo()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 2 * MiB;
    // Space that another program frees meanwhile is filled too.
    bool given = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind == FaultPlan::Flush && !std::exchange(given, true))
            machine.volume.freeBytes[u"E:/"_s] += 3 * MiB;
    };
    Job job;
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QVERIFY(job.logged(u"已写入: 5.00 MB"_s, 0));
    QCOMPARE(job.wipedSectors(), static_cast<quint64>(5 * MiB / 512));
}

void tst_FreeSpaceWipeWorker::reportSaysThatNothingWasReadBack()
{
    Machine machine;
    machine.volume.freeBytes[u"E:/"_s] = Reserve + 2 * MiB;
    Job job;
    job.task.updateReport([](WipeReport &report) { report.verificationMethod = u"something"_s; });
    QCOMPARE(job.task.report().verificationSampleSize, 1000);
    job.setVolume(u"E:"_s);
    job.run();
    QVERIFY(job.succeeded());
    QCOMPARE(job.task.report().verificationSampleSize, 0);
    QCOMPARE(job.task.report().verificationMethod, QString());
}

QUORVEX_SUITE(tst_FreeSpaceWipeWorker, QCoreApplication)

#include "tst_freespacewipeworker.moc"
