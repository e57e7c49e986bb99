#include "support/suite.h"
#include "ui/home/featurecard.h"

#include "ui/style/uiresources.h"

#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

class tst_FeatureCard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void init();
    void cleanup() { m_card.reset(); }
    void holdsItsPartsInTheFrame();
    void isTallAtFirst();
    void compactIsARow();
    void sameCompactnessKeepsTheLayout();
    void leftClickEmitsOnce();
    void otherButtonsDoNotClick();
    void pressDrawnAwayDoesNotClick();
    void releaseAloneDoesNotClick();
    void keysClick_data();
    void keysClick();
    void heldKeyClicksOnce();
    void otherKeysDoNotClick();
    void isReachedByTab();
    void hoverIsPaintedAndLeft();
    void accentsDiffer();
    void focusFrameFollowsTheKeyboard();
    void isAButtonToAssistiveTechnology();

private:
    static std::unique_ptr<FeatureCard> makeCard(int index)
    {
        auto card = std::make_unique<FeatureCard>(u":/icons/icon_disk_wipe.svg"_s, u"Disk Wipe"_s,
                                                  u"All of it"_s, index);
        card->setFixedSize(300, 120);
        return card;
    }
    static QImage imageOf(QWidget &widget) { return widget.grab().toImage(); }

    std::unique_ptr<FeatureCard> m_card;
};

void tst_FeatureCard::init()
{
    m_card = makeCard(0);
}

void tst_FeatureCard::holdsItsPartsInTheFrame()
{
    const auto *const frame = m_card->findChild<QFrame *>(u"featureCard"_s);
    QVERIFY(frame != nullptr);
    const auto *const box = frame->findChild<QWidget *>(u"cardIconWidget"_s);
    QVERIFY(box != nullptr);
    QCOMPARE(box->minimumSize(), QSize(60, 60));
    QCOMPARE(box->maximumSize(), QSize(60, 60));
    const auto *const icon = box->findChild<QLabel *>(u"cardIcon"_s);
    QVERIFY(icon != nullptr);
    QVERIFY(!icon->pixmap().isNull());
    QCOMPARE(frame->findChild<QLabel *>(u"cardTitle"_s)->text(), u"Disk Wipe"_s);
    QCOMPARE(frame->findChild<QLabel *>(u"cardDescription"_s)->text(), u"All of it"_s);
}

void tst_FeatureCard::isTallAtFirst()
{
    QVERIFY(!m_card->isCompact());
    const auto *const frame = m_card->findChild<QFrame *>(u"featureCard"_s);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(18, 22, 18, 18));
    m_card->setFixedSize(300, 390);
    m_card->grab();
    const auto *const box = frame->findChild<QWidget *>(u"cardIconWidget"_s);
    const auto *const title = frame->findChild<QLabel *>(u"cardTitle"_s);
    const auto *const description = frame->findChild<QLabel *>(u"cardDescription"_s);
    QCOMPARE(box->pos(), QPoint(18, 22));
    QVERIFY(title->y() >= box->geometry().bottom());
    QVERIFY(description->y() >= title->geometry().bottom());
}

void tst_FeatureCard::compactIsARow()
{
    m_card->setCompact(true);
    QVERIFY(m_card->isCompact());
    const auto *const frame = m_card->findChild<QFrame *>(u"featureCard"_s);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(24, 20, 24, 20));
    m_card->grab();
    const auto *const box = frame->findChild<QWidget *>(u"cardIconWidget"_s);
    const auto *const title = frame->findChild<QLabel *>(u"cardTitle"_s);
    const auto *const description = frame->findChild<QLabel *>(u"cardDescription"_s);
    QCOMPARE(box->x(), 24);
    QVERIFY(title->x() > box->geometry().right());
    QCOMPARE(description->x(), title->x());
    QVERIFY(description->y() > title->geometry().bottom());

    m_card->setCompact(false);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(18, 22, 18, 18));
    QCOMPARE(m_card->findChildren<QLabel *>().size(), 3);
}

void tst_FeatureCard::sameCompactnessKeepsTheLayout()
{
    const auto *const frame = m_card->findChild<QFrame *>(u"featureCard"_s);
    const QSignalSpy tallGone(frame->layout(), &QObject::destroyed);
    m_card->setCompact(false);
    QCOMPARE(tallGone.count(), 0);
    m_card->setCompact(true);
    QCOMPARE(tallGone.count(), 1);
    const QSignalSpy compactGone(frame->layout(), &QObject::destroyed);
    m_card->setCompact(true);
    QCOMPARE(compactGone.count(), 0);
}

void tst_FeatureCard::leftClickEmitsOnce()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    m_card->show();
    for (QWidget *const target :
         {static_cast<QWidget *>(m_card.get()), m_card->findChild<QWidget *>(u"cardDescription"_s),
          m_card->findChild<QWidget *>(u"cardIcon"_s)})
        QTest::mouseClick(m_card.get(), Qt::LeftButton, {},
                          target->mapTo(m_card.get(), target->rect().center()));
    QCOMPARE(clicked.count(), 3);
}

void tst_FeatureCard::otherButtonsDoNotClick()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    m_card->show();
    QTest::mouseClick(m_card.get(), Qt::RightButton);
    QTest::mouseClick(m_card.get(), Qt::MiddleButton);
    QCOMPARE(clicked.count(), 0);
}

void tst_FeatureCard::pressDrawnAwayDoesNotClick()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    m_card->show();
    QTest::mousePress(m_card.get(), Qt::LeftButton);
    QTest::mouseRelease(m_card.get(), Qt::LeftButton, {}, QPoint(-5, 10));
    QCOMPARE(clicked.count(), 0);
}

void tst_FeatureCard::releaseAloneDoesNotClick()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    m_card->show();
    QTest::mouseRelease(m_card.get(), Qt::LeftButton);
    QCOMPARE(clicked.count(), 0);
}

void tst_FeatureCard::keysClick_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void tst_FeatureCard::keysClick()
{
    QFETCH(const Qt::Key, key);
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    QTest::keyClick(m_card.get(), key);
    QCOMPARE(clicked.count(), 1);
}

void tst_FeatureCard::heldKeyClicksOnce()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    QTest::keyPress(m_card.get(), Qt::Key_Space);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QCoreApplication::sendEvent(m_card.get(), &repeated);
    QCOMPARE(clicked.count(), 1);
}

void tst_FeatureCard::otherKeysDoNotClick()
{
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    QTest::keyClick(m_card.get(), Qt::Key_A);
    QTest::keyClick(m_card.get(), Qt::Key_Escape);
    QCOMPARE(clicked.count(), 0);
}

void tst_FeatureCard::isReachedByTab()
{
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const before = new QPushButton(u"before"_s);
    layout->addWidget(before);
    FeatureCard *const card = m_card.release();
    layout->addWidget(card);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QVERIFY(card->hasFocus());
}

void tst_FeatureCard::hoverIsPaintedAndLeft()
{
    const QImage before = imageOf(*m_card);
    QEnterEvent enter(QPointF(10, 10), QPointF(10, 10), QPointF(10, 10));
    QCoreApplication::sendEvent(m_card.get(), &enter);
    const QImage hovered = imageOf(*m_card);
    QVERIFY(hovered != before);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_card.get(), &leave);
    QCOMPARE(imageOf(*m_card), before);
}

void tst_FeatureCard::accentsDiffer()
{
    QList<QRgb> colours;
    for (int index = 0; index < 4; ++index) {
        const std::unique_ptr<FeatureCard> card = makeCard(index);
        QEnterEvent enter(QPointF(10, 10), QPointF(10, 10), QPointF(10, 10));
        QCoreApplication::sendEvent(card.get(), &enter);
        const QRgb colour = imageOf(*card).pixel(250, 100);
        QVERIFY2(!colours.contains(colour), qPrintable(QString::number(index)));
        colours.append(colour);
    }
}

void tst_FeatureCard::focusFrameFollowsTheKeyboard()
{
    m_card->show();
    QVERIFY(QTest::qWaitForWindowActive(m_card.get()));
    m_card->clearFocus();
    const QImage plain = imageOf(*m_card);
    m_card->setFocus(Qt::MouseFocusReason);
    QCOMPARE(imageOf(*m_card), plain);
    m_card->clearFocus();
    m_card->setFocus(Qt::TabFocusReason);
    QVERIFY(imageOf(*m_card) != plain);
    m_card->clearFocus();
    QCOMPARE(imageOf(*m_card), plain);
}

void tst_FeatureCard::isAButtonToAssistiveTechnology()
{
    QAccessibleInterface *const card = QAccessible::queryAccessibleInterface(m_card.get());
    QVERIFY(card != nullptr);
    QCOMPARE(card->role(), QAccessible::Button);
    QCOMPARE(card->text(QAccessible::Name), u"Disk Wipe"_s);
    QCOMPARE(card->text(QAccessible::Description), u"All of it"_s);
    const QSignalSpy clicked(m_card.get(), &FeatureCard::clicked);
    QAccessibleActionInterface *const actions = card->actionInterface();
    QVERIFY(actions != nullptr);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
}

QUORVEX_SUITE(tst_FeatureCard, QApplication)
#include "tst_featurecard.moc"
