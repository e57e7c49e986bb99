#include "platform/anchoredfolder.h"
#include "platform/folders.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxvolumejournal.h"
#include "platform/platform.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>

using namespace Qt::StringLiterals;
using platform::Result;
using platform::VolumeJournal;

namespace {

using Found = Result<std::unique_ptr<VolumeJournal>>;

Found journalIn(const QString &folder)
{
    const auto opened = platform::Platform::current().folders().anchor(folder);
    return opened ? opened.value()->journal() : opened.status();
}

} // namespace

// What the kernel tells of journals, and the journals of real file systems on loop devices.
class tst_VolumeJournal : public QObject
{
    Q_OBJECT

private slots:
    void sizeFromTheStatistics_data();
    void sizeFromTheStatistics();
    void bytesFromTheStatistics();
    void onlyFileSystemsWithAJournal_data();
    void onlyFileSystemsWithAJournal();
    void changedBlocksAreLogged();
    void aSizeThatIsNotToldIsTheLargest();
};

void tst_VolumeJournal::sizeFromTheStatistics_data()
{
    QTest::addColumn<QByteArray>("statistics");
    QTest::addColumn<qint64>("blocks"); // 0: not told
    QTest::newRow("told") << QByteArray("2 transactions (2 requested), each up to 1365 blocks\naverage: \n")
                          << qint64(4 * 1365);
    QTest::newRow("empty") << QByteArray() << qint64(0);
    QTest::newRow("another text") << QByteArray("2 transactions") << qint64(0);
    QTest::newRow("no number") << QByteArray("each up to many blocks") << qint64(0);
    QTest::newRow("cut") << QByteArray("each up to ") << qint64(0);
    QTest::newRow("none") << QByteArray("each up to 0 blocks") << qint64(0);
}

void tst_VolumeJournal::sizeFromTheStatistics()
{
    QFETCH(QByteArray, statistics);
    QFETCH(qint64, blocks);
    QCOMPARE(platform::mostBlocksOfJournal(statistics).value_or(0), blocks);
}

void tst_VolumeJournal::bytesFromTheStatistics()
{
    QCOMPARE(platform::bytesWrittenTo("  12  0  96  1  7  1  2048  9  0  8  10").value_or(-1), 2048 * 512);
    QVERIFY(!platform::bytesWrittenTo("12 0 96 1 7 1"));
    QVERIFY(!platform::bytesWrittenTo("1 2 3 4 5 6 x 8"));
    QVERIFY(!platform::bytesWrittenTo({}));
}

void tst_VolumeJournal::onlyFileSystemsWithAJournal_data()
{
    QTest::addColumn<int>("fileSystem");
    QTest::addColumn<QString>("feature");
    constexpr qint64 Journal = 4 * 1024 * 1024; // of a file system of this size
    QTest::addColumn<qint64>("size");           // below 0: not supported
    QTest::newRow("ext4") << int(LoopMount::Ext4) << u"has_journal"_s << Journal;
    QTest::newRow("ext4 without a journal") << int(LoopMount::Ext4) << u"^has_journal"_s << qint64(0);
    QTest::newRow("xfs") << int(LoopMount::Xfs) << QString() << qint64(-1);
}

void tst_VolumeJournal::onlyFileSystemsWithAJournal()
{
    QFETCH(int, fileSystem);
    QFETCH(QString, feature);
    QFETCH(qint64, size);
    const auto kind = static_cast<LoopMount::FileSystem>(fileSystem);
    if (const QString reason = LoopMount::unavailableReason(kind); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = kind;
    if (!feature.isEmpty())
        options.makeArguments = QStringList{u"-O"_s, feature};
    LoopMount volume(folder.path(), options);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const Found found = journalIn(volume.mountPoint());
    QCOMPARE(found.code(), quint32(size < 0 ? platform::NotSupported : platform::NoError));
    if (!found)
        return;
    QVERIFY(found.value()->size() >= size);
    QVERIFY(found.value()->size() <= 2 * size);
}

void tst_VolumeJournal::changedBlocksAreLogged()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    constexpr int Files = 100;
    for (int i = 0; i < Files; ++i)
        writeFile(volume.mountPoint() + u"/%1"_s.arg(i), {});
    Found found = journalIn(volume.mountPoint());
    QVERIFY(found.ok());
    VolumeJournal &journal = *found.value();
    quint64 mark = 0;
    for (int round = 0; round < 3; ++round) {
        QVERIFY(journal.settle().ok());
        const qint64 before = journal.written().valueOr(-1);
        QVERIFY(before > 0);
        for (int i = 0; i < Files; ++i)
            QVERIFY(journal.changeBlock(QString::number(i), ++mark).ok());
        QVERIFY(journal.commit().ok());
        const qint64 after = journal.written().valueOr(-1);
        QVERIFY2(after - before >= Files * journal.blockSize(), qPrintable(QString::number(after - before)));
    }
    QVERIFY(journal.changeBlock(u"missing"_s, ++mark).isAbsent());
}

void tst_VolumeJournal::aSizeThatIsNotToldIsTheLargest()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const platform::FileDescriptor root(
        ::open(QFile::encodeName(volume.mountPoint()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    QVERIFY(root.isValid());
    const qint64 told = platform::journalOf(root.get(), {}).value()->size();

    platform::SystemTree tree;
    tree.proc = folder.path();
    const Found untold = platform::journalOf(root.get(), tree);
    QVERIFY(untold.ok());
    QVERIFY(untold.value()->size() > told);
    tree.sys = folder.path();
    const Found hidden = platform::journalOf(root.get(), tree);
    QVERIFY(hidden.ok());
    QVERIFY(hidden.value()->size() > told);
    QCOMPARE(hidden.value()->written().status().code, quint32(platform::NotSupported));
    // A kernel that lists journals, and not this one.
    QVERIFY(QDir(folder.path()).mkpath(u"fs/jbd2"_s));
    QCOMPARE(platform::journalOf(root.get(), tree).value()->size(), 0);
}

QUORVEX_SUITE(tst_VolumeJournal, QCoreApplication)
#include "tst_volumejournal.moc"
