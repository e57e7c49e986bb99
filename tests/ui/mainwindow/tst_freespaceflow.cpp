#include "support/suite.h"
#include "ui/mainwindow/windowfixture.h"

#include "model/wipereport.h"
#include "platform/anchoredfolder.h"
#include "platform/folders.h"
#include "support/fakedevices.h"
#include "support/loopmount.h"
#include "support/onlythisdrive.h"
#include "support/testfiles.h"
#include "ui/home/featurecard.h"
#include "ui/mainwindow/mainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

// Free space of a mounted file system, from the card on the home page to the stored report and its PDF.
class tst_FreeSpaceFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void freeSpaceIsErasedAndFilesStay();
    void theReserveIsNamedInTheQuestion();
    void aVolumeThatAnotherJobFillsIsRefused();
    void aVolumeThatIsGoneFailsTheJob();
    void theFileBelowADeviceIsRefused();
};

namespace {

// The machine with a single visible loop device and without a system disk.
class Machine : public platform::Platform
{
public:
    explicit Machine(const LoopMount &volume)
        : m_machine(platform::createPlatform({}))
        , m_devices(m_machine->devices(), volume)
    {}
    platform::Files &files() override { return m_machine->files(); }
    platform::Folders &folders() override { return m_machine->folders(); }
    platform::Devices &devices() override { return m_devices; }
    platform::Session &session() override { return m_session; }

private:
    std::unique_ptr<platform::Platform> m_machine;
    OnlyThisDrive m_devices;
    FakeSession m_session;
};

// Chooses the volume as a user does; it is the only one below the only drive.
void chooseVolume(const WindowFixture &fixture)
{
    const QList<FeatureCard *> cards = fixture.page()->findChildren<FeatureCard *>();
    for (FeatureCard *card : cards) {
        if (card->accessibleName() == u"Free Space Wipe")
            QTest::mouseClick(card, Qt::LeftButton);
    }
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::DiskSelect));
    auto *const tree = fixture.page()->findChild<QTreeWidget *>(u"diskTree"_s);
    QTRY_COMPARE_WITH_TIMEOUT(tree->topLevelItemCount(), 1, 60000);
    QCOMPARE(tree->topLevelItem(0)->childCount(), 1);
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QVERIFY(fixture.click(u"Next →"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
}

constexpr qint64 Size = qint64(192) << 20;

} // namespace

void tst_FreeSpaceFlow::initTestCase()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_FreeSpaceFlow::freeSpaceIsErasedAndFilesStay()
{
    const QTemporaryDir folder;
    const QTemporaryDir exports;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = Size});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString kept = volume.mountPoint() + u"/letters/kept.txt"_s;
    writeFile(kept, "stays");
    const QStringList before = QDir(volume.mountPoint()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);

    WindowFixture fixture(std::make_unique<Machine>(volume));
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, exports.path());
    chooseVolume(fixture);
    fixture.runJob();

    QCOMPARE(fixture.reports().size(), 1);
    const WipeReport report = fixture.reports().constFirst();
    QCOMPARE(report.operationType, FreeSpaceWipe);
    QCOMPARE(report.status, WipeStatus::Completed);
    QCOMPARE(report.disk.sizeBytes, quint64(Size));
    QVERIFY2(report.bytesWritten > quint64(Size) / 4, qPrintable(QString::number(report.bytesWritten)));
    QCOMPARE(contentOf(kept), QByteArray("stays"));
    QCOMPARE(QDir(volume.mountPoint()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    const QString pdf = exports.filePath(report.certificateId + u".pdf"_s);
    QVERIFY(contentOf(pdf).startsWith("%PDF-"));
}

void tst_FreeSpaceFlow::theReserveIsNamedInTheQuestion()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = Size});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WindowFixture fixture(std::make_unique<Machine>(volume));
    chooseVolume(fixture);
    QString notice;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        const auto *label = dialog.findChild<QLabel *>(u"dialogNotice"_s);
        notice = label ? label->text() : QString();
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(fixture.dialogs.answers.isEmpty(), 60000);
    QVERIFY2(notice.contains(u"left as a reserve: %1 (100.00 MB)"_s.arg(volume.mountPoint())),
             qPrintable(notice));
    QVERIFY(fixture.reports().isEmpty());
}

void tst_FreeSpaceFlow::theFileBelowADeviceIsRefused()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = Size});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WindowFixture fixture(std::make_unique<Machine>(volume));
    fixture.window->onFileWipeClicked();
    fixture.prompts.filesToOpenAnswers = {{volume.image()}};
    QVERIFY(fixture.click(u"📄 Add Files"_s));
    QVERIFY(fixture.click(u"Next →"_s));
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"These Files Cannot Be Erased"_s);
    QVERIFY2(fixture.prompts.boxes.constFirst().text.contains(volume.device() + u" is attached to "_s),
             qPrintable(fixture.prompts.boxes.constFirst().text));
    QCOMPARE(fixture.dialogs.unexpected, 0);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
}

void tst_FreeSpaceFlow::aVolumeThatAnotherJobFillsIsRefused()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = Size});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WindowFixture fixture(std::make_unique<Machine>(volume));
    chooseVolume(fixture);
    const auto root = platform::Platform::current().folders().anchor(volume.mountPoint());
    QVERIFY(root);
    const auto other = root.value()->createFolder(u".quorvex_temp_01234567"_s);
    QVERIFY(other);
    const auto entries = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList before = QDir(volume.mountPoint()).entryList(entries);

    fixture.dialogs.answers = {WindowFixture::typeErase};
    fixture.prompts.buttons = {QMessageBox::Ok};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(fixture.dialogs.answers.isEmpty(), 60000);
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.first().title, u"This Volume Cannot Be Erased"_s);
    QVERIFY2(fixture.prompts.boxes.first().text.contains(u"Another job"_s),
             qPrintable(fixture.prompts.boxes.first().text));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QVERIFY(fixture.reports().isEmpty());
    QCOMPARE(QDir(volume.mountPoint()).entryList(entries), before);
}

void tst_FreeSpaceFlow::aVolumeThatIsGoneFailsTheJob()
{
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = Size});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WindowFixture fixture(std::make_unique<Machine>(volume));
    chooseVolume(fixture);
    QVERIFY2(volume.unmount(), qPrintable(volume.error()));
    fixture.runJob(u"Close"_s);
    QCOMPARE(fixture.reports().size(), 1);
    QCOMPARE(fixture.reports().constFirst().status, WipeStatus::Failed);
    // No file was written at the former mount point.
    QVERIFY(QDir(volume.mountPoint()).isEmpty());
}

QUORVEX_SUITE(tst_FreeSpaceFlow, QApplication)
#include "tst_freespaceflow.moc"
