#include "support/suite.h"
#include "ui/home/homepage.h"

#include "ui/home/featurecard.h"
#include "ui/style/palette.h"
#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(void (HomePage::*)())

class tst_HomePage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void init();
    void showsTheHeadline();
    void showsTheStandards();
    void showsFourCards_data();
    void showsFourCards();
    void tallCardStandsBesideTheOthers();
    void fitsIntoTheWindow();
    void cardsLeadToTheirFlows_data();
    void cardsLeadToTheirFlows();
    void tabGoesFromCardToCard();

private:
    static QList<FeatureCard *> cards(const QWidget &page) { return page.findChildren<FeatureCard *>(); }
    static FeatureCard *card(const QWidget &page, const QString &title)
    {
        for (FeatureCard *const candidate : cards(page)) {
            if (candidate->accessibleName() == title)
                return candidate;
        }
        return nullptr;
    }
    static QRect placeOf(const QWidget &page, const QString &title)
    {
        const FeatureCard *const widget = card(page, title);
        return {widget->mapTo(&page, QPoint()), widget->size()};
    }

    std::unique_ptr<HomePage> m_page;
};

void tst_HomePage::init()
{
    m_page = std::make_unique<HomePage>();
    // The page size in the smallest main window.
    m_page->resize(720, 600);
}

void tst_HomePage::showsTheHeadline()
{
    const auto *const title = m_page->findChild<QLabel *>(u"pageTitle"_s);
    QCOMPARE(title->text(), u"Destroy Data Permanently. No Leaks."_s);
    m_page->setStyleSheet(programSheet());
    title->ensurePolished();
    QCOMPARE(title->font().pixelSize(), 23);
    QVERIFY(title->font().bold());
    QCOMPARE(title->palette().color(QPalette::WindowText), palette::Text);
    QCOMPARE(m_page->layout()->contentsMargins(), QMargins(30, 30, 30, 30));
    m_page->grab();
    QCOMPARE(title->y(), 30);
    QCOMPARE(placeOf(*m_page, u"Disk Wipe"_s).top() - title->geometry().bottom() - 1, 30);
}

void tst_HomePage::showsTheStandards()
{
    QStringList names;
    for (const QLabel *label : m_page->findChildren<QLabel *>(u"standardLabel"_s))
        names.append(label->text());
    QCOMPARE(names, QStringList({u"DoD 5220.22-M"_s, u"NIST 800-88"_s, u"Gutmann 35-Pass"_s}));
}

void tst_HomePage::showsFourCards_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("compact");
    QTest::newRow("disk") << 0 << u"Disk Wipe"_s
                          << u"Completely erase all data on the disk, including partitions and boot records"_s
                          << QSize(300, 390) << false;
    QTest::newRow("free space") << 1 << u"Free Space Wipe"_s << u"Remove remnants of deleted files"_s
                                << QSize(300, 120) << true;
    QTest::newRow("file") << 2 << u"File Wipe"_s << u"Permanently shred files and folders"_s
                          << QSize(300, 120) << true;
    QTest::newRow("recycle bin") << 3 << u"Recycle Bin Wipe"_s << u"Wipe deleted files in Recycle Bin"_s
                                 << QSize(300, 120) << true;
}

void tst_HomePage::showsFourCards()
{
    QFETCH(const int, index);
    QFETCH(const QString, title);
    QFETCH(const QString, description);
    QFETCH(const QSize, size);
    QFETCH(const bool, compact);
    QCOMPARE(cards(*m_page).size(), 4);
    m_page->grab();
    const FeatureCard *const shown = card(*m_page, title);
    QVERIFY(shown != nullptr);
    QCOMPARE(cards(*m_page).indexOf(shown), index);
    QCOMPARE(shown->findChild<QLabel *>(u"cardTitle"_s)->text(), title);
    QCOMPARE(shown->findChild<QLabel *>(u"cardDescription"_s)->text(), description);
    QCOMPARE(shown->accessibleDescription(), description);
    QCOMPARE(shown->size(), size);
    QCOMPARE(shown->isCompact(), compact);
    QVERIFY(!shown->findChild<QLabel *>(u"cardIcon"_s)->pixmap().isNull());
}

void tst_HomePage::tallCardStandsBesideTheOthers()
{
    m_page->grab();
    const QRect disk = placeOf(*m_page, u"Disk Wipe"_s);
    const QRect freeSpace = placeOf(*m_page, u"Free Space Wipe"_s);
    const QRect file = placeOf(*m_page, u"File Wipe"_s);
    const QRect bin = placeOf(*m_page, u"Recycle Bin Wipe"_s);
    QVERIFY(freeSpace.left() > disk.right());
    QCOMPARE(freeSpace.top(), disk.top());
    QCOMPARE(file.left(), freeSpace.left());
    QVERIFY(file.top() > freeSpace.bottom());
    QCOMPARE(bin.left(), freeSpace.left());
    QVERIFY(bin.top() > file.bottom());
    QCOMPARE(bin.bottom(), disk.bottom());
}

void tst_HomePage::fitsIntoTheWindow()
{
    QVERIFY(m_page->minimumSizeHint().width() <= 720);
    QVERIFY(m_page->minimumSizeHint().height() <= 600);
}

void tst_HomePage::cardsLeadToTheirFlows_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<void (HomePage::*)()>("signal");
    QTest::newRow("disk") << u"Disk Wipe"_s << &HomePage::diskWipeClicked;
    QTest::newRow("free space") << u"Free Space Wipe"_s << &HomePage::freeSpaceWipeClicked;
    QTest::newRow("file") << u"File Wipe"_s << &HomePage::fileWipeClicked;
    QTest::newRow("recycle bin") << u"Recycle Bin Wipe"_s << &HomePage::recycleBinWipeClicked;
}

void tst_HomePage::cardsLeadToTheirFlows()
{
    using Signal = void (HomePage::*)();
    QFETCH(const QString, title);
    QFETCH(const Signal, signal);
    const QSignalSpy wanted(m_page.get(), signal);
    int all = 0;
    for (const Signal each : {&HomePage::diskWipeClicked, &HomePage::freeSpaceWipeClicked,
                              &HomePage::fileWipeClicked, &HomePage::recycleBinWipeClicked})
        connect(m_page.get(), each, this, [&all] { ++all; });
    m_page->show();
    QTest::mouseClick(card(*m_page, title), Qt::LeftButton);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(all, 1);
    QTest::keyClick(card(*m_page, title), Qt::Key_Return);
    QCOMPARE(wanted.count(), 2);
    QCOMPARE(all, 2);
}

void tst_HomePage::tabGoesFromCardToCard()
{
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    const QList<FeatureCard *> order = cards(*m_page);
    order.first()->setFocus();
    for (int i = 1; i < order.size(); ++i) {
        QTest::keyClick(order.at(i - 1), Qt::Key_Tab);
        QVERIFY(order.at(i)->hasFocus());
    }
}

QUORVEX_SUITE(tst_HomePage, QApplication)
#include "tst_homepage.moc"
