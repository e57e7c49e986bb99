#include "platform/files.h"
#include "platform/platform.h"
#include "support/linuxfaults.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;
using namespace platform;

// What an open file answers when a call of the system fails once, and would succeed when repeated.
class tst_FileFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aFlushThatFailedOnceNeverSucceeds_data();
    void aFlushThatFailedOnceNeverSucceeds();
    void aWriteThatFailedIsFlushedAgain();
    void readingBackNeverFallsBackToTheCache();

private:
    std::unique_ptr<FileHandle> open(OpenMode mode) const
    {
        auto opened = Platform::current().files().open(m_path, mode);
        return opened ? opened.take() : nullptr;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

namespace {

const QByteArray content(10000, 'n');

} // namespace

void tst_FileFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = writeThrough(m_folder->filePath(u"file"_s), QByteArray(10000, 'o'));
}

void tst_FileFaults::aFlushThatFailedOnceNeverSucceeds_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("bad medium") << EIO;
    QTest::newRow("full") << ENOSPC;
}

// The kernel tells of lost data once; the next fsync succeeds without it.
void tst_FileFaults::aFlushThatFailedOnceNeverSucceeds()
{
    QFETCH(int, error);
    const auto file = open(OpenMode::Overwrite);
    QVERIFY(file);
    QVERIFY(file->write(content.constData(), content.size()));
    QVERIFY(file->seek(5000));
    QVERIFY(file->setEnd());
    LinuxFaults faults;
    faults.fail(LinuxFaults::Fsync_, 1, error);
    const Status first = file->flush();
    QVERIFY(!first);
    QCOMPARE(faults.fired(), 1);
    const Status second = file->flush();
    QVERIFY(!second);
    QCOMPARE(second.code, first.code);
    QCOMPARE(faults.counted(), 1);
}

void tst_FileFaults::aWriteThatFailedIsFlushedAgain()
{
    const auto file = open(OpenMode::Overwrite);
    QVERIFY(file);
    LinuxFaults faults;
    faults.fail(LinuxFaults::Pwrite_, 1, EIO);
    QVERIFY(!file->write(content.constData(), content.size()));
    QCOMPARE(faults.fired(), 1);
    faults.fail(LinuxFaults::Fdatasync_, 1, EIO);
    QVERIFY(!file->flush());
    QCOMPARE(faults.fired(), 1);
    QVERIFY(!file->flush());
}

void tst_FileFaults::readingBackNeverFallsBackToTheCache()
{
    LinuxFaults faults;
    QByteArray buffer(content.size(), '\0');
    const auto file = open(OpenMode::Verify);
    QVERIFY(file);
    faults.fail(LinuxFaults::Pread_, 1, EIO);
    QVERIFY(!file->read(buffer.data(), buffer.size()));
    QCOMPARE(faults.fired(), 1);
    QCOMPARE(faults.counted(), 1);
    faults.failNothing();
    QVERIFY(file->read(buffer.data(), buffer.size()));
}

QUORVEX_SUITE(tst_FileFaults, QCoreApplication)
#include "tst_filefaults.moc"
