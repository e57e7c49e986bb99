#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/drivewindow.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

// The target named in the confirmation of a job.
class tst_TargetQuestion : public QObject
{
    Q_OBJECT

private slots:
    void aDriveIsNamedWithItsVolumes_data();
    void aDriveIsNamedWithItsVolumes();
    void freeSpaceIsNamedByItsVolume();
    void filesAreCountedAndNamed();

private:
    // Rejects the dialog.
    static QStringList targetOf(WindowFixture &fixture);
    static DriveWindow drivesWithVolumes();
};

QStringList tst_TargetQuestion::targetOf(WindowFixture &fixture)
{
    QString target;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        const auto *text = dialog.findChild<QTextEdit *>(u"dialogTarget"_s);
        target = text ? text->toPlainText() : QString();
        fixture.photograph(QString::fromLatin1(QTest::currentTestFunction()));
        dialog.reject();
    }};
    [&] { QVERIFY(fixture.click(u"Start"_s)); }();
    [&] { QTRY_VERIFY(fixture.dialogs.answers.isEmpty()); }();
    return target.split(u'\n');
}

DriveWindow tst_TargetQuestion::drivesWithVolumes()
{
    DriveWindow drives;
    drives.memory.addVolume(u"E:"_s, 0, 0, DriveMachine::Size / 4);
    drives.memory.addVolume(u"F:"_s, 0, DriveMachine::Size / 2, DriveMachine::Size / 4);
    drives.memory.volume(u"E:"_s).label = u"Letters"_s;
    drives.memory.volume(u"E:"_s).freeBytes = 4096;
    return drives;
}

void tst_TargetQuestion::aDriveIsNamedWithItsVolumes_data()
{
    QTest::addColumn<bool>("isPartition");
    QTest::newRow("a disk") << false;
    QTest::newRow("a partition, with which the others go") << true;
}

void tst_TargetQuestion::aDriveIsNamedWithItsVolumes()
{
    QFETCH(const bool, isPartition);
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onDiskWipeClicked();
    QTreeWidgetItem *const row = diskRow(fixture, 0);
    choose(fixture, isPartition ? row->child(1) : row);
    const QStringList target = targetOf(fixture);
    QCOMPARE(target.size(), 3);
    QVERIFY2(target.at(0).startsWith(u"drive 0: model Memory drive, serial number SERIAL-0, 4.00 MB, "_s),
             qPrintable(target.at(0)));
    QCOMPARE(target.at(1), u"  volume E:, ext4, 1.00 MB, 4.00 KB free, label Letters"_s);
    QCOMPARE(target.at(2), u"  volume F:, ext4, 1.00 MB, 0 B free"_s);
}

void tst_TargetQuestion::freeSpaceIsNamedByItsVolume()
{
    DriveWindow drives = drivesWithVolumes();
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onFreeSpaceWipeClicked();
    choose(fixture, diskRow(fixture, 0)->child(0));
    const QStringList target = targetOf(fixture);
    QCOMPARE(target.size(), 2);
    QVERIFY2(target.at(0).startsWith(u"drive 0: model Memory drive"_s), qPrintable(target.at(0)));
    QCOMPARE(target.at(1), u"  volume E:, ext4, 1.00 MB, 4.00 KB free, label Letters"_s);
}

void tst_TargetQuestion::filesAreCountedAndNamed()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"old/a"_s), QByteArray(1000, 'a'));
    writeFile(folder.filePath(u"old/below/b"_s), QByteArray(1048, 'b'));
    const QString file = writeFile(folder.filePath(u"c"_s), QByteArray(1024, 'c'));
    WindowFixture fixture;
    fixture.window->onFileWipeClicked();
    fixture.prompts.filesToOpenAnswers = {{file}};
    QVERIFY(fixture.click(u"📄 Add Files"_s));
    fixture.prompts.folderAnswers = {folder.filePath(u"old"_s)};
    QVERIFY(fixture.click(u"📁 Add Folder"_s));
    QVERIFY(fixture.click(u"Next →"_s));
    QCOMPARE(targetOf(fixture), QStringList({u"3 files, 3.00 KB"_s, file, folder.filePath(u"old"_s)}));
}

QUORVEX_SUITE(tst_TargetQuestion, QApplication)
#include "tst_targetquestion.moc"
