#include "ui/mainwindow/drivewindow.h"

#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

DriveMachine::DriveMachine()
{
    for (const int number : {0, 1})
        memory.addDrive(MemoryDrive(number, Size));
}

MemoryDriveVolume DriveWindow::mirror()
{
    MemoryDriveVolume volume;
    volume.name = u"M:"_s;
    volume.extents = {{0, 0, DriveMachine::Size / 2}, {1, 0, DriveMachine::Size / 2}};
    return volume;
}

QTreeWidgetItem *diskRow(const WindowFixture &fixture, int index)
{
    return fixture.page()->findChild<QTreeWidget *>(u"diskTree"_s)->topLevelItem(index);
}

void choose(const WindowFixture &fixture, QTreeWidgetItem *row)
{
    row->treeWidget()->setCurrentItem(row);
    QVERIFY(fixture.click(u"Next →"_s));
}
