#include "support/suite.h"
#include "ui/dialogs/confirmdialog.h"
#include "ui/mainwindow/drivewindow.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QSize>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 Size = DriveMachine::Size;
} // namespace

// The warnings before a drive is confirmed.
class tst_DiskObstacles : public QObject
{
    Q_OBJECT

private slots:
    void aDiskWithASpanningVolumeIsNotConfirmed();
    void aHeldDiskIsNotConfirmed();
    void aReadOnlyDiskIsNotConfirmed();
    void freeSpaceIsNotHindered();
    void theRowTellsOfASpanningVolume();
    void aPartitionJobListsEveryVolume();
    void aDiskJobHasTheGivenDialog();
    void aLonePartitionHasTheGivenDialog();

private:
    static QSize sizeWithoutTarget(const QDialog &dialog);
};

void tst_DiskObstacles::aDiskWithASpanningVolumeIsNotConfirmed()
{
    DriveWindow drives;
    drives.memory.addVolume(drives.mirror());
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 1));
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.first().title, u"This Disk Cannot Be Erased"_s);
    QCOMPARE(fixture.prompts.boxes.first().text, u"Volume M: lies on this disk and also on disk 0.\n\n"
                                                 "These commands release it:\numount M:"_s);
    QCOMPARE(fixture.dialogs.unexpected, 0);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QCOMPARE(drives.memory.openings(), 0);
}

void tst_DiskObstacles::aHeldDiskIsNotConfirmed()
{
    DriveWindow drives;
    drives.memory.drive(0).use.holders = QStringList{u"RAID md0"_s, u"LVM a-b"_s};
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.first().text, u"The disk is held by: RAID md0, LVM a-b"_s);
    QCOMPARE(drives.memory.openings(), 0);
}

void tst_DiskObstacles::aReadOnlyDiskIsNotConfirmed()
{
    DriveWindow drives;
    drives.memory.drive(0).use = {true, {}, {u"unused"_s}};
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.first().text, u"The disk is read-only."_s);
}

void tst_DiskObstacles::freeSpaceIsNotHindered()
{
    DriveWindow drives;
    drives.memory.addVolume(drives.mirror());
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onFreeSpaceWipeClicked();
    choose(fixture, diskRow(fixture, 1));
    bool asked = false;
    fixture.dialogs.answers = {[&asked](QDialog &dialog) {
        asked = qobject_cast<ConfirmDialog *>(&dialog) != nullptr;
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QVERIFY(asked);
    QVERIFY(fixture.prompts.boxes.isEmpty());
}

void tst_DiskObstacles::theRowTellsOfASpanningVolume()
{
    DriveWindow drives;
    drives.memory.addDrive(MemoryDrive(2, Size));
    drives.memory.addVolume(drives.mirror());
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    QCOMPARE(diskRow(fixture, 0)->toolTip(0), u"Volume M: lies on this disk and also on disk 1."_s);
    QCOMPARE(diskRow(fixture, 1)->toolTip(0), u"Volume M: lies on this disk and also on disk 0."_s);
    QCOMPARE(diskRow(fixture, 2)->toolTip(0), QString());
}

void tst_DiskObstacles::aPartitionJobListsEveryVolume()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, Size / 2);
    drives.memory.addVolume(u"F:"_s, 0, Size / 2, Size / 2);
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0)->child(0));
    QString notice;
    QSize size;
    bool fits = false;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        const auto *label = dialog.findChild<QLabel *>(u"dialogNotice"_s);
        notice = label ? label->text() : QString();
        fits = label && label->height() >= label->heightForWidth(label->width());
        size = dialog.size();
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(notice, u"All of these will be erased, not only E:\nE:, F:"_s);
    QCOMPARE(size.width(), 400);
    QVERIFY(size.height() > 320);
    QVERIFY(fits);
}

// The size of the dialog without its target and the gap below it.
QSize tst_DiskObstacles::sizeWithoutTarget(const QDialog &dialog)
{
    const auto *const target = dialog.findChild<QTextEdit *>(u"dialogTarget"_s);
    return target ? dialog.size() - QSize(0, target->height() + dialog.layout()->spacing()) : QSize();
}

void tst_DiskObstacles::aDiskJobHasTheGivenDialog()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, Size / 2);
    drives.memory.addVolume(u"F:"_s, 0, Size / 2, Size / 2);
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    QSize size;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        size = dialog.findChild<QLabel *>(u"dialogNotice"_s) ? QSize() : sizeWithoutTarget(dialog);
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(size, QSize(400, 320));
}

void tst_DiskObstacles::aLonePartitionHasTheGivenDialog()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, Size / 2);
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0)->child(0));
    QSize size;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        size = dialog.findChild<QLabel *>(u"dialogNotice"_s) ? QSize() : sizeWithoutTarget(dialog);
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(size, QSize(400, 320));
}

QUORVEX_SUITE(tst_DiskObstacles, QApplication)
#include "tst_diskobstacles.moc"
