#include "support/suite.h"
#include "ui/mainwindow/drivewindow.h"

#include "engine/wipeengine.h"
#include "model/wipereport.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Size = DriveMachine::Size;

DriveWindow drivesWithVolumes()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, Size / 4);
    drives.memory.addVolume(u"F:"_s, 0, Size / 2, Size / 4);
    return drives;
}

// Checks the box, if it is there, and types the word.
void confirmWhole(QDialog &dialog)
{
    if (auto *const box = dialog.findChild<QCheckBox *>(u"wholeDriveBox"_s))
        box->click();
    WindowFixture::typeErase(dialog);
}

std::optional<QString> offerOf(WindowFixture &fixture)
{
    std::optional<QString> text;
    fixture.dialogs.answers = {[&text](QDialog &dialog) {
        if (const auto *const box = dialog.findChild<QCheckBox *>(u"wholeDriveBox"_s))
            text = box->text();
        dialog.reject();
    }};
    if (!fixture.click(u"Start"_s))
        return u"(no start)"_s;
    return text;
}

} // namespace

// A job on all of a drive, from the confirmation to its end.
class tst_WholeDriveFlow : public QObject
{
    Q_OBJECT

private slots:
    void theBoxSaysWhatStaysOtherwise();
    void onlyADiskWithARestHasTheBox_data();
    void onlyADiskWithARestHasTheBox();
    void withTheBoxEverySectorIsErased();
    void withoutTheBoxTheVolumesAreErased();
    void theBoxIsForgottenWithItsConfirmation();
    void aVolumeInUseIsToldAndNothingStarts();
    void aFailedJobSaysWhatItLeftUnmounted_data();
    void aFailedJobSaysWhatItLeftUnmounted();
    void aStoppedJobSaysWhatItLeftUnmounted();
};

void tst_WholeDriveFlow::theBoxSaysWhatStaysOtherwise()
{
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QCOMPARE(offerOf(fixture), u"Erase the whole disk\n(otherwise 2.00 MB outside its volumes stay)"_s);
}

void tst_WholeDriveFlow::onlyADiskWithARestHasTheBox_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("a disk without volumes") << u"bare"_s;
    QTest::newRow("a disk that is all volume") << u"full"_s;
    QTest::newRow("a partition") << u"partition"_s;
    QTest::newRow("free space") << u"free"_s;
}

void tst_WholeDriveFlow::onlyADiskWithARestHasTheBox()
{
    QFETCH(const QString, target);
    DriveWindow drives = drivesWithVolumes();
    if (target == u"full"_s)
        drives.memory.addVolume(u"G:"_s, 1, 0, Size);
    WindowFixture fixture(std::move(drives.owned));
    if (target == u"free"_s)
        fixture.window->onFreeSpaceWipeClicked();
    else
        fixture.window->onDiskWipeClicked();
    const bool isSecond = target == u"bare"_s || target == u"full"_s;
    QTreeWidgetItem *const row = diskRow(fixture, isSecond ? 1 : 0);
    choose(fixture, target == u"partition"_s ? row->child(0) : row);
    QCOMPARE(offerOf(fixture), std::nullopt);
}

void tst_WholeDriveFlow::withTheBoxEverySectorIsErased()
{
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    fixture.dialogs.answers = {confirmWhole, WindowFixture::pressButton(u"Done"_s)};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(
        fixture.dialogs.answers.isEmpty() && fixture.window->currentPage() == MainWindow::Home, 60000);
    QCOMPARE(drives.memory.medium(0), QByteArray(Size, '\0'));
    QCOMPARE(fixture.reports().size(), 1);
    QCOMPARE(fixture.reports().constFirst().wipedSectors, quint64(Size / 512));
    QCOMPARE(drives.memory.keeps(), 1);
}

void tst_WholeDriveFlow::withoutTheBoxTheVolumesAreErased()
{
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    fixture.runJob();
    QCOMPARE(fixture.reports().constFirst().wipedSectors, quint64(Size / 2 / 512));
    QCOMPARE(drives.memory.keeps(), 0);
}

void tst_WholeDriveFlow::theBoxIsForgottenWithItsConfirmation()
{
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    drives.memory.volume(u"F:"_s).releaseError = platform::SharingViolation;
    fixture.dialogs.answers = {confirmWhole};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    // Repeats the job without the box.
    QCOMPARE(offerOf(fixture), u"Erase the whole disk\n(otherwise 2.00 MB outside its volumes stay)"_s);
    fixture.runJob();
    QCOMPARE(fixture.reports().constFirst().wipedSectors, quint64(Size / 2 / 512));
}

void tst_WholeDriveFlow::aVolumeInUseIsToldAndNothingStarts()
{
    DriveWindow drives = drivesWithVolumes();
    drives.memory.volume(u"F:"_s).releaseError = platform::SharingViolation;
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    fixture.dialogs.answers = {confirmWhole};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"This Disk Cannot Be Erased"_s);
    QCOMPARE(fixture.prompts.boxes.constFirst().text,
             u"Volume F: is in use and cannot be unmounted. Nothing was written."_s);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QVERIFY(!fixture.window->findChild<WipeEngine *>()->isRunning());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QCOMPARE(drives.memory.openings(), 0);
    QCOMPARE(fixture.reports().size(), 0);
}

void tst_WholeDriveFlow::aFailedJobSaysWhatItLeftUnmounted_data()
{
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("whole") << true;
    QTest::newRow("through its volumes") << false;
}

void tst_WholeDriveFlow::aFailedJobSaysWhatItLeftUnmounted()
{
    QFETCH(const bool, isWhole);
    DriveWindow drives = drivesWithVolumes();
    drives.memory.drive(0).endError = platform::IoDevice;
    drives.memory.drive(0).medium.truncate(Size / 2 + 4096);
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QString left;
    const auto end = [&left](QDialog &dialog) {
        const auto *const label = dialog.findChild<QLabel *>(u"leftUnmountedLabel"_s);
        left = label ? label->text() : u"(none)"_s;
        dialog.accept();
    };
    if (isWhole)
        fixture.dialogs.answers = {confirmWhole, end};
    else
        fixture.dialogs.answers = {WindowFixture::typeErase, end};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!left.isEmpty(), 60000);
    QCOMPARE(fixture.dialogs.titles.constLast(), u"Erase Failed"_s);
    QCOMPARE(left, u"Left unmounted: E:, F:"_s);
}

void tst_WholeDriveFlow::aStoppedJobSaysWhatItLeftUnmounted()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, Size);
    // The job cannot end before it is stopped.
    std::atomic<bool> isWriting{false};
    QSemaphore stopAsked;
    drives.memory.beforeWrite = [&isWriting, &stopAsked] {
        isWriting = true;
        stopAsked.tryAcquire(1, 60000);
        stopAsked.release();
    };
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QString left;
    fixture.dialogs.answers = {confirmWhole, [&left](QDialog &dialog) {
                                   const auto *const label =
                                       dialog.findChild<QLabel *>(u"leftUnmountedLabel"_s);
                                   left = label ? label->text() : u"(none)"_s;
                                   dialog.accept();
                               }};
    fixture.prompts.buttons = {QMessageBox::Ok};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(isWriting, 60000);
    fixture.window->onStopClicked();
    stopAsked.release();
    QTRY_VERIFY_WITH_TIMEOUT(!left.isEmpty(), 60000);
    QCOMPARE(left, u"Left unmounted: E:"_s);
}

QUORVEX_SUITE(tst_WholeDriveFlow, QApplication)
#include "tst_wholedriveflow.moc"
