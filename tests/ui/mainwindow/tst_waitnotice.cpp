#include "support/suite.h"
#include "ui/mainwindow/drivewindow.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QLabel>
#include <QObject>
#include <QStringList>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

// Records when the notice is painted and how complete the page was then.
class Watcher : public QObject
{
public:
    explicit Watcher(const WindowFixture &fixture)
        : m_tree(fixture.child<QTreeWidget>("diskTree"))
    {
        qApp->installEventFilter(this);
    }

    QStringList painted; // the text and the number of listed drives
    bool wasBusy = false;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == u"waitNotice"_s) {
            const auto *const label = qobject_cast<QLabel *>(watched);
            painted.append(label->text() + u' ' + QString::number(m_tree->topLevelItemCount()));
            wasBusy =
                QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        }
        return false;
    }

private:
    const QTreeWidget *m_tree;
};

} // namespace

// The notice of the window while it queries the drives.
class tst_WaitNotice : public QObject
{
    Q_OBJECT

private slots:
    void itIsPaintedBeforeTheDrivesAreRead_data();
    void itIsPaintedBeforeTheDrivesAreRead();
    void backFromTheMethodsHasItToo();
};

void tst_WaitNotice::itIsPaintedBeforeTheDrivesAreRead_data()
{
    QTest::addColumn<bool>("isFreeSpace");
    QTest::newRow("disk") << false;
    QTest::newRow("free space") << true;
}

void tst_WaitNotice::itIsPaintedBeforeTheDrivesAreRead()
{
    QFETCH(const bool, isFreeSpace);
    DriveWindow drives;
    WindowFixture fixture(std::move(drives.owned));
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    const Watcher watcher(fixture);
    if (isFreeSpace)
        fixture.window->onFreeSpaceWipeClicked();
    else
        fixture.window->onDiskWipeClicked();
    QVERIFY(watcher.painted.contains(u"Reading drives... 0"_s));
    QVERIFY(watcher.wasBusy);
    QCOMPARE(fixture.child<QTreeWidget>("diskTree")->topLevelItemCount(), 2);
    QVERIFY(!fixture.child<QLabel>("waitNotice"));
    QVERIFY(!QApplication::overrideCursor());
}

void tst_WaitNotice::backFromTheMethodsHasItToo()
{
    DriveWindow drives;
    WindowFixture fixture(std::move(drives.owned));
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    fixture.window->onDiskWipeClicked();
    choose(fixture, diskRow(fixture, 0));
    const Watcher watcher(fixture);
    fixture.window->onBackClicked();
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::DiskSelect));
    QVERIFY(!watcher.painted.isEmpty());
    QVERIFY(!fixture.child<QLabel>("waitNotice"));
}

QUORVEX_SUITE(tst_WaitNotice, QApplication)
#include "tst_waitnotice.moc"
