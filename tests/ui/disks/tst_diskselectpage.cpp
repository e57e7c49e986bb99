#include "support/suite.h"
#include "ui/disks/diskselectpage.h"

#include "support/fakedevices.h"
#include "support/testfiles.h"
#include "ui/style/uiresources.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTreeWidget>
#include <QTreeWidgetItem>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

FakeVolume volumeOn(int drive, const QString &name, const QString &label = {})
{
    FakeVolume volume = FakeVolume::onDrives(name, {drive});
    volume.mounted.label = label;
    volume.mounted.fileSystem = "NTFS";
    volume.mounted.totalBytes = 2048;
    volume.mounted.freeBytes = 1024;
    return volume;
}

// The system on drive 0 with a data partition beside it, a data drive, and a stick without partitions.
struct UsualMachine
{
    enum Disk { SystemDrive, DataDrive, Stick };

    FakeMachine machine;
    platform::ScopedPlatform scope{machine};

    UsualMachine()
    {
        machine.fakeDevices.drives = {{SystemDrive, FakeDrive::nvme()},
                                      {DataDrive, FakeDrive::rotating()},
                                      {Stick, FakeDrive::usbStick()}};
        machine.fakeDevices.mount(volumeOn(SystemDrive, u"C:"_s, u"Windows"_s));
        machine.fakeDevices.mount(volumeOn(SystemDrive, u"D:"_s));
        machine.fakeDevices.mount(volumeOn(DataDrive, u"E:"_s, u"Data"_s));
        machine.fakeSession.systemVolumeNames = {u"C:"_s};
        machine.fakeSession.systemRoots = {u"C:/"_s};
    }
};

// A visible page and its parts.
struct Shown
{
    DiskSelectPage page;
    QTreeWidget &tree = *page.findChild<QTreeWidget *>(u"diskTree"_s);
    QLabel &title = *page.findChild<QLabel *>(u"pageTitle"_s);
    QLabel &subtitle = *page.findChild<QLabel *>(u"pageSubtitle"_s);
    QLabel &notice = *page.findChild<QLabel *>(u"warningLabel"_s);
    QPushButton &back = *page.findChild<QPushButton *>(u"secondaryBtn"_s);
    QPushButton &next = *page.findChild<QPushButton *>(u"primaryBtn"_s);

    explicit Shown(int mode = DiskSelectPage::WipeDisk)
    {
        page.setMode(mode);
        page.resize(720, 600);
        page.show();
    }

    QTreeWidgetItem *row(int disk, int partition = -1) const
    {
        QTreeWidgetItem *item = tree.topLevelItem(disk);
        return item && partition >= 0 ? item->child(partition) : item;
    }
    QPoint centreOf(QTreeWidgetItem *item) const { return tree.visualItemRect(item).center(); }
    void click(int disk, int partition = -1) const
    {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, centreOf(row(disk, partition)));
    }
    void doubleClick(QTreeWidgetItem *item) const
    {
        const QPoint centre = centreOf(item);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, centre);
    }
    bool showsNoSelection() const
    {
        return page.selectionType() == DiskSelectPage::NoSelection && !next.isEnabled() &&
               notice.isHidden() && page.selectedDisk() == DiskInfo() &&
               page.selectedPartition() == PartitionInfo() && tree.selectedItems().isEmpty();
    }
};

QStringList texts(const QTreeWidgetItem *item)
{
    QStringList texts;
    for (int column = 0; column < item->columnCount(); ++column)
        texts.append(item->text(column));
    return texts;
}

QStringList colors(const QTreeWidgetItem *item)
{
    QStringList names;
    for (int column = 0; column < 5; ++column) {
        const QBrush brush = item->foreground(column);
        names.append(brush.style() == Qt::NoBrush ? QString() : brush.color().name());
    }
    return names;
}

const QString warningLook =
    u"QLabel {  background-color: #fef3c7;  border: 1px solid #f59e0b;"
    "  border-radius: 8px;  padding: 12px 16px;  color: #92400e;  font-size: 13px;}"_s;
const QString informationLook = u"QLabel {  background-color: #dbeafe;  border: 1px solid #3b82f6;"
                                "  border-radius: 8px;  padding: 12px 16px;  color: #1e40af;"
                                "  font-size: 13px;}"_s;

} // namespace

class tst_DiskSelectPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }

    void theLayoutIsAsDrawn();
    void theTreeIsAsDrawn();
    void eachModeHasItsTexts();
    void beforeAModeIsSetThePageExplainsTheTree();

    void aDiskRowTellsItsDisk();
    void aSystemDiskIsGreyAndRed();
    void aRemovableDiskIsAmber();
    void aPartitionRowTellsItsVolume();
    void aPartitionWithoutLabelHasNoBrackets();
    void aPartitionWithoutDriveLetterHasItsNumber();
    void aSystemPartitionIsGreyAndRed();
    void rowsCarryTheirData();
    void namesAreShownCleaned();
    void nothingIsReadAloudWithItsPicture();
    void percentSignsInNamesStayAsTheyAre();
    void tipsShowMarkupAsText();
    void onlyDisksWithPartitionsAreExpanded();

    void judgement_data();
    void judgement();
    void aRefusedDiskThenADataPartition();
    void aDataPartitionOfTheSystemDiskMayBeWiped();
    void theSelectedPartitionIsFoundByItsNumber();
    void deselectingClearsEverything();

    void noDrivesLeaveAnEmptyTree();
    void everyVisitReadsTheDrivesAnew();
    void comingBackFromAnIconKeepsTheSelection();
    void aRefreshDropsTheSelection();
    void aVanishedDiskIsNoLongerOffered();
    void imageFilesAppearAsDrives();

    void doubleClickFoldsADisk();
    void doubleClickOnAPartitionDoesNothing();
    void theKeyboardFoldsAndSelects();
    void expandingBringsThePartitionsIntoView();
    void buttonsTellTheWindow();
    void tabGoesFromTheTreeToTheButtons();
    void everyControlHasAName();
};

void tst_DiskSelectPage::theLayoutIsAsDrawn()
{
    const UsualMachine usual;
    const Shown shown;
    QCOMPARE(shown.page.layout()->contentsMargins(), QMargins(40, 30, 40, 30));
    QCOMPARE(shown.title.styleSheet(), u"font-size: 24px;font-weight: bold;color: #1e293b;"_s);
    QCOMPARE(shown.subtitle.styleSheet(), u"font-size: 14px;color: #64748b;"_s);
    QCOMPARE(shown.back.text(), u"← Back"_s);
    QCOMPARE(shown.next.text(), u"Next →"_s);
    for (const QPushButton *button : {&shown.back, &shown.next})
        QCOMPARE(button->size(), QSize(140, 45));
    QVERIFY(shown.back.geometry().right() < shown.next.geometry().left());
    QVERIFY(shown.title.geometry().bottom() < shown.subtitle.geometry().top());
    QVERIFY(shown.subtitle.geometry().bottom() < shown.tree.geometry().top());
    QVERIFY(shown.tree.geometry().bottom() < shown.next.geometry().top());
    QVERIFY(shown.notice.wordWrap());
    QVERIFY(shown.showsNoSelection());
}

void tst_DiskSelectPage::theTreeIsAsDrawn()
{
    const UsualMachine usual;
    const Shown shown;
    QCOMPARE(texts(shown.tree.headerItem()),
             (QStringList{u"Disk/Partition"_s, u"Size"_s, u"Type"_s, u"Interface"_s, u"Status"_s}));
    QCOMPARE(shown.tree.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(shown.tree.alternatingRowColors());
    QVERIFY(shown.tree.rootIsDecorated());
    QVERIFY(shown.tree.isAnimated());
    QCOMPARE(shown.tree.minimumHeight(), 350);
    const QHeaderView &header = *shown.tree.header();
    // The names get the width that the other columns leave.
    QCOMPARE(header.length(), shown.tree.viewport()->width());
    QVERIFY(header.sectionSize(0) > header.sectionSize(4));
    for (int column = 1; column < 5; ++column)
        QCOMPARE(header.sectionResizeMode(column), QHeaderView::ResizeToContents);
    QVERIFY(header.stretchLastSection());
}

void tst_DiskSelectPage::eachModeHasItsTexts()
{
    const FakeMachine machine;
    DiskSelectPage page;
    const auto *title = page.findChild<QLabel *>(u"pageTitle"_s);
    const auto *subtitle = page.findChild<QLabel *>(u"pageSubtitle"_s);
    page.setMode(1);
    QCOMPARE(title->text(), u"Wipe Free Space"_s);
    QCOMPARE(subtitle->text(), u"Select a partition to securely wipe free space."_s);
    page.setMode(0);
    QCOMPARE(title->text(), u"Wipe Disk and Partition"_s);
    QCOMPARE(subtitle->text(), u"Select a disk or partition to completely wipe."
                               " All data will be permanently deleted."_s);
}

void tst_DiskSelectPage::beforeAModeIsSetThePageExplainsTheTree()
{
    const DiskSelectPage page;
    QCOMPARE(page.findChild<QLabel *>(u"pageTitle"_s)->text(), u"Wipe Disk and Partition"_s);
    QCOMPARE(page.findChild<QLabel *>(u"pageSubtitle"_s)->text(),
             u"Select a disk or partition to wipe. Expand disks to see partitions."_s);
}

void tst_DiskSelectPage::aDiskRowTellsItsDisk()
{
    const UsualMachine usual;
    const Shown shown;
    const QTreeWidgetItem *row = shown.row(UsualMachine::DataDrive);
    QCOMPARE(texts(row),
             (QStringList{u"💿 Disk 1 - Drive"_s, u"465.76 GB"_s, u"机械硬盘"_s, u"SATA"_s, u"Available"_s}));
    QCOMPARE(colors(row), (QStringList{QString(), QString(), QString(), QString(), u"#22c55e"_s}));
    QVERIFY(row->font(0).bold());
    QVERIFY(!row->icon(0).pixmap(16).isNull());
}

void tst_DiskSelectPage::aSystemDiskIsGreyAndRed()
{
    const UsualMachine usual;
    const Shown shown;
    const QTreeWidgetItem *row = shown.row(UsualMachine::SystemDrive);
    QCOMPARE(row->text(4), u"⚠️ System Disk"_s);
    QCOMPARE(colors(row),
             (QStringList{u"#9ca3af"_s, u"#9ca3af"_s, u"#9ca3af"_s, u"#9ca3af"_s, u"#ef4444"_s}));
    QVERIFY(!row->font(0).bold());
}

void tst_DiskSelectPage::aRemovableDiskIsAmber()
{
    UsualMachine usual;
    {
        const Shown shown;
        const QTreeWidgetItem *row = shown.row(UsualMachine::Stick);
        QCOMPARE(row->text(4), u"Removable"_s);
        QCOMPARE(row->foreground(4).color().name(), u"#f59e0b"_s);
        QVERIFY(row->font(0).bold());
    }
    // The mark of a system drive has priority.
    usual.machine.fakeDevices.mount(volumeOn(UsualMachine::Stick, u"S:"_s));
    usual.machine.fakeSession.systemVolumeNames = {u"S:"_s};
    const Shown shown;
    QCOMPARE(shown.row(UsualMachine::Stick)->text(4), u"⚠️ System Disk"_s);
}

void tst_DiskSelectPage::aPartitionRowTellsItsVolume()
{
    const UsualMachine usual;
    const Shown shown;
    const QTreeWidgetItem *row = shown.row(UsualMachine::DataDrive, 0);
    QCOMPARE(texts(row),
             (QStringList{u"📁 E: (Data)"_s, u"2.00 KB"_s, u"NTFS"_s, u"1.00 KB free"_s, u"Available"_s}));
    QCOMPARE(colors(row), (QStringList{QString(), QString(), QString(), QString(), u"#22c55e"_s}));
}

void tst_DiskSelectPage::aPartitionWithoutLabelHasNoBrackets()
{
    const UsualMachine usual;
    const Shown shown;
    QCOMPARE(shown.row(UsualMachine::SystemDrive, 1)->text(0), u"📁 D:"_s);
}

void tst_DiskSelectPage::aPartitionWithoutDriveLetterHasItsNumber()
{
    UsualMachine usual;
    for (int i = 0; i < 3; ++i)
        usual.machine.fakeDevices.mount(volumeOn(UsualMachine::Stick, u"S%1"_s.arg(i)));
    FakeVolume unnamed = volumeOn(UsualMachine::Stick, QString(), u"label of no interest"_s);
    unnamed.mounted.rootPath = u"somewhere"_s;
    usual.machine.fakeDevices.mount(unnamed);
    const Shown shown;
    QCOMPARE(shown.row(UsualMachine::Stick)->childCount(), 4);
    QCOMPARE(shown.row(UsualMachine::Stick, 3)->text(0), u"📁 Partition 3"_s);
}

void tst_DiskSelectPage::aSystemPartitionIsGreyAndRed()
{
    const UsualMachine usual;
    const Shown shown;
    const QTreeWidgetItem *row = shown.row(UsualMachine::SystemDrive, 0);
    QCOMPARE(row->text(4), u"⚠️ System"_s);
    QCOMPARE(colors(row),
             (QStringList{u"#9ca3af"_s, u"#9ca3af"_s, u"#9ca3af"_s, u"#9ca3af"_s, u"#ef4444"_s}));
}

void tst_DiskSelectPage::rowsCarryTheirData()
{
    const UsualMachine usual;
    const Shown shown;
    const auto carried = [](const QTreeWidgetItem *row) {
        QVariantList values;
        for (int role = Qt::UserRole; role < Qt::UserRole + 5; ++role)
            values.append(row->data(0, role));
        return values;
    };
    QCOMPARE(carried(shown.row(0)), (QVariantList{0, 0, QVariant(), true, QVariant()}));
    QCOMPARE(carried(shown.row(1)), (QVariantList{0, 1, QVariant(), false, QVariant()}));
    QCOMPARE(carried(shown.row(0, 0)), (QVariantList{1, 0, 0, QVariant(), true}));
    QCOMPARE(carried(shown.row(0, 1)), (QVariantList{1, 0, 1, QVariant(), false}));
    QCOMPARE(carried(shown.row(1, 0)), (QVariantList{1, 1, 0, QVariant(), false}));
}

void tst_DiskSelectPage::nothingIsReadAloudWithItsPicture()
{
    UsualMachine usual;
    const Shown shown;
    for (const int disk : {UsualMachine::SystemDrive, UsualMachine::Stick}) {
        QList<const QTreeWidgetItem *> rows{shown.row(disk)};
        for (int i = 0; i < rows.constFirst()->childCount(); ++i)
            rows.append(rows.constFirst()->child(i));
        for (const QTreeWidgetItem *row : std::as_const(rows)) {
            for (const int column : {0, 4}) {
                const QString spoken = row->data(column, Qt::AccessibleTextRole).toString();
                QVERIFY2(!spoken.isEmpty() && spoken.at(0).isLetter(), qPrintable(spoken));
                QVERIFY2(row->text(column).endsWith(spoken), qPrintable(spoken));
            }
        }
    }
    shown.click(UsualMachine::SystemDrive);
    QVERIFY(shown.notice.isVisible());
    QCOMPARE(shown.notice.accessibleName(), u"Cannot select system disk for wiping."_s);
    QCOMPARE(shown.back.accessibleName(), u"Back"_s);
}

void tst_DiskSelectPage::namesAreShownCleaned()
{
    UsualMachine usual;
    FakeDrive drive = FakeDrive::rotating();
    drive.descriptor = platform::encodeDeviceDescriptor(
        {.productId = u"Mo\x01del"_s, .serialNumber = u"1"_s, .busType = platform::BusSata});
    usual.machine.fakeDevices.drives[UsualMachine::Stick] = drive;
    FakeVolume volume = volumeOn(UsualMachine::Stick, u"/media/\u202Etxt.exe"_s, u"a\u2066b"_s);
    volume.mounted.fileSystem = "ex\x1bt4";
    usual.machine.fakeDevices.mount(volume);
    const Shown shown;
    QVERIFY(!shown.row(UsualMachine::Stick)->text(0).contains(QChar(1)));
    const QTreeWidgetItem *row = shown.row(UsualMachine::Stick, 0);
    QCOMPARE(row->text(0), u"📁 /media/[U+202E]txt.exe (a[U+2066]b)"_s);
    QCOMPARE(row->text(2), u"ex[U+001B]t4"_s);
    // The record keeps the name under which the volume is opened.
    shown.click(UsualMachine::Stick, 0);
    QCOMPARE(shown.page.selectedPartition().driveLetter, u"/media/\u202Etxt.exe"_s);
}

void tst_DiskSelectPage::percentSignsInNamesStayAsTheyAre()
{
    UsualMachine usual;
    usual.machine.fakeDevices.mount(volumeOn(UsualMachine::Stick, u"/media/%1"_s, u"%1 %2"_s));
    const Shown shown;
    QCOMPARE(shown.row(UsualMachine::Stick, 0)->text(0), u"📁 /media/%1 (%1 %2)"_s);
}

void tst_DiskSelectPage::tipsShowMarkupAsText()
{
    UsualMachine usual;
    usual.machine.fakeDevices.mount(volumeOn(UsualMachine::Stick, u"<b>bold</b>"_s));
    const Shown shown;
    QCOMPARE(shown.row(UsualMachine::Stick, 0)->text(0), u"📁 <b>bold</b>"_s);
    const QString tip = shown.row(UsualMachine::Stick, 0)->toolTip(0);
    QCOMPARE(QTextDocumentFragment::fromHtml(tip).toPlainText(), u"📁 <b>bold</b>"_s);
}

void tst_DiskSelectPage::onlyDisksWithPartitionsAreExpanded()
{
    const UsualMachine usual;
    const Shown shown;
    QVERIFY(shown.row(UsualMachine::SystemDrive)->isExpanded());
    QVERIFY(shown.row(UsualMachine::DataDrive)->isExpanded());
    QVERIFY(!shown.row(UsualMachine::Stick)->isExpanded());
}

void tst_DiskSelectPage::judgement_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("disk");
    QTest::addColumn<int>("partition");
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<QString>("notice");
    const QString none;
    QTest::newRow("wipe, system disk")
        << 0 << 0 << -1 << false << u"⚠️ Cannot select system disk for wiping."_s;
    QTest::newRow("wipe, system partition")
        << 0 << 0 << 0 << false << u"⚠️ Cannot select system partition for wiping."_s;
    QTest::newRow("wipe, data partition") << 0 << 1 << 0 << true << none;
    QTest::newRow("wipe, data disk") << 0 << 1 << -1 << true << none;
    QTest::newRow("wipe, removable disk") << 0 << 2 << -1 << true << none;
    QTest::newRow("free space, system disk")
        << 1 << 0 << -1 << true
        << u"ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation."_s;
    QTest::newRow("free space, system partition")
        << 1 << 0 << 0 << true
        << u"ℹ️ Free space wipe is safe for system partition."
           " It will not affect existing files or system operation."_s;
    QTest::newRow("free space, data partition") << 1 << 1 << 0 << true << none;
    QTest::newRow("free space, data disk") << 1 << 1 << -1 << true << none;
    QTest::newRow("free space, removable disk") << 1 << 2 << -1 << true << none;
}

void tst_DiskSelectPage::judgement()
{
    QFETCH(int, mode);
    QFETCH(int, disk);
    QFETCH(int, partition);
    QFETCH(bool, allowed);
    QFETCH(QString, notice);
    const UsualMachine usual;
    const Shown shown(mode);
    shown.click(disk, partition);
    QCOMPARE(shown.page.selectionType(), partition < 0 ? 1 : 2);
    QCOMPARE(shown.page.selectedDisk().diskNumber, disk);
    QCOMPARE(shown.next.isEnabled(), allowed);
    QCOMPARE(shown.notice.isVisible(), !notice.isEmpty());
    if (!notice.isEmpty()) {
        QCOMPARE(shown.notice.text(), notice);
        QCOMPARE(shown.notice.styleSheet(), mode == 0 ? warningLook : informationLook);
    }
}

void tst_DiskSelectPage::aRefusedDiskThenADataPartition()
{
    const UsualMachine usual;
    const Shown shown;
    shown.click(UsualMachine::SystemDrive);
    QVERIFY(!shown.next.isEnabled());
    QVERIFY(shown.notice.isVisible());
    shown.click(UsualMachine::DataDrive, 0);
    QVERIFY(shown.next.isEnabled());
    QVERIFY(!shown.notice.isVisible());
}

void tst_DiskSelectPage::aDataPartitionOfTheSystemDiskMayBeWiped()
{
    const UsualMachine usual;
    const Shown shown;
    shown.click(UsualMachine::SystemDrive, 1);
    QVERIFY(shown.next.isEnabled());
    QVERIFY(!shown.notice.isVisible());
}

void tst_DiskSelectPage::theSelectedPartitionIsFoundByItsNumber()
{
    const UsualMachine usual;
    const Shown shown;
    shown.click(UsualMachine::SystemDrive, 1);
    QCOMPARE(shown.page.selectedPartition().driveLetter, u"D:"_s);
    QCOMPARE(shown.page.selectedPartition().partitionIndex, 1);
    QCOMPARE(shown.page.selectedDisk().partitions.size(), 2);
    shown.click(UsualMachine::SystemDrive);
    QCOMPARE(shown.page.selectedPartition(), PartitionInfo());
}

void tst_DiskSelectPage::deselectingClearsEverything()
{
    const UsualMachine usual;
    const Shown shown;
    shown.click(UsualMachine::SystemDrive);
    shown.tree.clearSelection();
    QVERIFY(shown.showsNoSelection());
}

void tst_DiskSelectPage::noDrivesLeaveAnEmptyTree()
{
    UsualMachine usual;
    Shown shown;
    shown.click(UsualMachine::SystemDrive);
    usual.machine.fakeDevices.drives.clear();
    shown.page.refresh();
    QCOMPARE(shown.tree.topLevelItemCount(), 0);
    QVERIFY(shown.showsNoSelection());
}

void tst_DiskSelectPage::everyVisitReadsTheDrivesAnew()
{
    UsualMachine usual;
    Shown shown;
    QCOMPARE(shown.tree.topLevelItemCount(), 3);
    shown.click(UsualMachine::DataDrive);
    shown.page.hide();
    usual.machine.fakeDevices.drives.insert(7, FakeDrive::rotating());
    shown.page.show();
    QCOMPARE(shown.tree.topLevelItemCount(), 4);
    QVERIFY(shown.row(3)->text(0).startsWith(u"💿 Disk 7"_s));
    QVERIFY(shown.showsNoSelection());
    QCOMPARE(usual.machine.fakeDevices.openHandles, 0);
}

void tst_DiskSelectPage::comingBackFromAnIconKeepsTheSelection()
{
    const UsualMachine usual;
    Shown shown;
    shown.click(UsualMachine::DataDrive);
    QShowEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&shown.page, &event);
    QCOMPARE(shown.page.selectionType(), 1);
    QVERIFY(shown.next.isEnabled());
}

void tst_DiskSelectPage::aRefreshDropsTheSelection()
{
    const UsualMachine usual;
    for (const int mode : {0, 1}) {
        Shown shown(mode);
        shown.click(UsualMachine::SystemDrive);
        QVERIFY(shown.notice.isVisible());
        shown.page.refresh();
        QVERIFY(shown.showsNoSelection());
        QCOMPARE(shown.tree.topLevelItemCount(), 3);
    }
}

void tst_DiskSelectPage::aVanishedDiskIsNoLongerOffered()
{
    UsualMachine usual;
    Shown shown;
    shown.click(UsualMachine::Stick);
    usual.machine.fakeDevices.drives.remove(UsualMachine::Stick);
    shown.page.refresh();
    QVERIFY(shown.showsNoSelection());
    QCOMPARE(shown.tree.topLevelItemCount(), 2);
}

void tst_DiskSelectPage::imageFilesAppearAsDrives()
{
    const QTemporaryDir folder;
    const QString image = writeZeros(folder.filePath(u"drive.img"_s), 1 << 20);
    const std::unique_ptr<platform::Platform> images = platform::createPlatform({{image}, true});
    const platform::ScopedPlatform scope(*images);
    const Shown shown;
    QCOMPARE(shown.tree.topLevelItemCount(), 1);
    QCOMPARE(shown.row(0)->text(1), u"1.00 MB"_s);
    shown.click(0);
    QCOMPARE(shown.page.selectedDisk().sizeBytes, 1 << 20);
    QVERIFY(shown.next.isEnabled());
}

void tst_DiskSelectPage::doubleClickFoldsADisk()
{
    const UsualMachine usual;
    const Shown shown;
    QTreeWidgetItem *row = shown.row(UsualMachine::DataDrive);
    shown.doubleClick(row);
    QVERIFY(!row->isExpanded());
    shown.doubleClick(row);
    QVERIFY(row->isExpanded());
}

void tst_DiskSelectPage::doubleClickOnAPartitionDoesNothing()
{
    const UsualMachine usual;
    const Shown shown;
    QSignalSpy next(&shown.page, &DiskSelectPage::nextClicked);
    shown.doubleClick(shown.row(UsualMachine::DataDrive, 0));
    QVERIFY(shown.row(UsualMachine::DataDrive)->isExpanded());
    QVERIFY(!shown.row(UsualMachine::DataDrive, 0)->isExpanded());
    QCOMPARE(next.count(), 0);
}

void tst_DiskSelectPage::theKeyboardFoldsAndSelects()
{
    const UsualMachine usual;
    const Shown shown;
    shown.tree.setFocus();
    // A view that gets the focus moves to its first row without selecting it.
    QTest::keyClick(&shown.tree, Qt::Key_End);
    QTest::keyClick(&shown.tree, Qt::Key_Home);
    QCOMPARE(shown.page.selectedDisk().diskNumber, int(UsualMachine::SystemDrive));
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(&shown.tree, Qt::Key_Down);
    QCOMPARE(shown.page.selectionType(), 1);
    QCOMPARE(shown.page.selectedDisk().diskNumber, int(UsualMachine::DataDrive));
    QTest::keyClick(&shown.tree, Qt::Key_Left);
    QVERIFY(!shown.row(UsualMachine::DataDrive)->isExpanded());
    QTest::keyClick(&shown.tree, Qt::Key_Right);
    QVERIFY(shown.row(UsualMachine::DataDrive)->isExpanded());
}

void tst_DiskSelectPage::expandingBringsThePartitionsIntoView()
{
    UsualMachine usual;
    for (int number = 3; number < 20; ++number)
        usual.machine.fakeDevices.drives.insert(number, FakeDrive::rotating());
    usual.machine.fakeDevices.mount(volumeOn(19, u"Z:"_s));
    const Shown shown;
    shown.tree.setAnimated(false);
    QCOMPARE(shown.tree.verticalScrollBar()->value(), 0);
    QTreeWidgetItem *last = shown.row(19);
    last->setExpanded(false);
    shown.tree.scrollToItem(last, QAbstractItemView::PositionAtBottom);
    last->setExpanded(true);
    QVERIFY(shown.tree.viewport()->rect().intersects(shown.tree.visualItemRect(last->child(0))));
}

void tst_DiskSelectPage::buttonsTellTheWindow()
{
    const UsualMachine usual;
    const Shown shown;
    QSignalSpy back(&shown.page, &DiskSelectPage::backClicked);
    QSignalSpy next(&shown.page, &DiskSelectPage::nextClicked);
    QTest::mouseClick(&shown.back, Qt::LeftButton);
    QTest::mouseClick(&shown.next, Qt::LeftButton);
    QCOMPARE(back.count(), 1);
    QCOMPARE(next.count(), 0);
    shown.click(UsualMachine::DataDrive);
    QTest::mouseClick(&shown.next, Qt::LeftButton);
    QCOMPARE(next.count(), 1);
}

void tst_DiskSelectPage::tabGoesFromTheTreeToTheButtons()
{
    const UsualMachine usual;
    const Shown shown;
    shown.click(UsualMachine::DataDrive);
    QVERIFY(QTest::qWaitForWindowActive(const_cast<DiskSelectPage *>(&shown.page)));
    shown.tree.setFocus();
    QTest::keyClick(&shown.tree, Qt::Key_Tab);
    QVERIFY(shown.back.hasFocus());
    QTest::keyClick(&shown.back, Qt::Key_Tab);
    QVERIFY(shown.next.hasFocus());
}

void tst_DiskSelectPage::everyControlHasAName()
{
    const UsualMachine usual;
    const Shown shown;
    for (QWidget *control : std::initializer_list<QWidget *>{&shown.tree, &shown.back, &shown.next}) {
        const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(control);
        QVERIFY(face && !face->text(QAccessible::Name).isEmpty());
    }
}

QUORVEX_SUITE(tst_DiskSelectPage, QApplication)
#include "tst_diskselectpage.moc"
