#include "support/suite.h"
#include "ui/methods/methodselectpage.h"

#include "ui/methods/methodcard.h"

#include <QApplication>
#include <QButtonGroup>
#include <QColor>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

class tst_MethodSelectPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_page.reset(); }
    void showsItsTexts();
    void showsAllMethodsInOrder();
    void scrollsWithoutAFrame();
    void firstMethodIsChosenAtFirst();
    void clickOnADescriptionChoosesThatMethod();
    void keepsExactlyOneChosen();
    void repaintsTheOthers();
    void arrowKeysChooseAndScroll();
    void tabReachesCardsThenButtons();
    void navigationBarHasItsLooks();
    void buttonsEmit();

private:
    QList<MethodCard *> cards() const { return m_page->findChildren<MethodCard *>(); }
    QPushButton *button(const QString &name) const { return m_page->findChild<QPushButton *>(name); }
    QList<bool> checked() const
    {
        QList<bool> states;
        for (const MethodCard *card : cards())
            states.append(card->radioButton()->isChecked());
        return states;
    }

    std::unique_ptr<MethodSelectPage> m_page;
};

void tst_MethodSelectPage::init()
{
    m_page = std::make_unique<MethodSelectPage>();
    m_page->resize(720, 600);
}

void tst_MethodSelectPage::showsItsTexts()
{
    QCOMPARE(m_page->findChild<QLabel *>(u"pageTitle"_s)->text(), u"选择擦除方法"_s);
    QCOMPARE(m_page->findChild<QLabel *>(u"pageSubtitle"_s)->text(),
             u"不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长"_s);
    QCOMPARE(m_page->layout()->contentsMargins(), QMargins(40, 30, 40, 30));
}

void tst_MethodSelectPage::showsAllMethodsInOrder()
{
    const QList<WipeMethod> methods = WipeMethod::allMethods();
    QCOMPARE(cards().size(), methods.size());
    const auto *const group = m_page->findChild<QButtonGroup *>();
    QVERIFY(group->exclusive());
    for (int i = 0; i < methods.size(); ++i) {
        QCOMPARE(cards().at(i)->findChild<QLabel *>(u"methodName"_s)->text(), methods.at(i).name);
        QCOMPARE(group->id(cards().at(i)->radioButton()), i);
    }
}

void tst_MethodSelectPage::scrollsWithoutAFrame()
{
    const auto *const scroll = m_page->findChild<QScrollArea *>(u"methodScroll"_s);
    QVERIFY(scroll != nullptr);
    QCOMPARE(scroll->frameShape(), QFrame::NoFrame);
    QVERIFY(scroll->widgetResizable());
    QCOMPARE(scroll->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(scroll->styleSheet(), u"QScrollArea { background: transparent; }"_s);
    QCOMPARE(scroll->widget()->styleSheet(), u"background: transparent;"_s);
    QCOMPARE(scroll->widget()->layout()->contentsMargins(), QMargins(0, 0, 10, 0));
}

void tst_MethodSelectPage::firstMethodIsChosenAtFirst()
{
    QCOMPARE(m_page->selectedMethod(), WipeMethod::allMethods().constFirst());
    QCOMPARE(checked().indexOf(true), 0);
    QCOMPARE(checked().count(true), 1);
}

void tst_MethodSelectPage::clickOnADescriptionChoosesThatMethod()
{
    m_page->show();
    QTest::mouseClick(cards().at(2)->findChild<QLabel *>(u"methodDesc"_s), Qt::LeftButton);
    QCOMPARE(m_page->selectedMethod().name, u"DoD 5220.22-M"_s);
    QCOMPARE(checked().indexOf(true), 2);
    QCOMPARE(checked().count(true), 1);
}

void tst_MethodSelectPage::keepsExactlyOneChosen()
{
    m_page->show();
    for (const int index : {4, 1, 1, 3, 0}) {
        QTest::mouseClick(cards().at(index), Qt::LeftButton, {}, QPoint(6, 6));
        QCOMPARE(m_page->selectedMethod(), WipeMethod::allMethods().at(index));
        QCOMPARE(checked().count(true), 1);
        QVERIFY(checked().at(index));
    }
    m_page->hide();
    m_page->show();
    QTest::mouseClick(cards().at(1)->radioButton(), Qt::LeftButton);
    QCOMPARE(m_page->selectedMethod().name, u"British HMG IS5"_s);
}

void tst_MethodSelectPage::repaintsTheOthers()
{
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    constexpr QPoint onFace(300, 72);
    const auto face = [this, onFace](int index) {
        return cards().at(index)->grab().toImage().pixelColor(onFace);
    };
    QCOMPARE(face(0), QColor(u"#f0f7ff"_s));
    QTest::mouseClick(cards().at(2)->findChild<QLabel *>(u"methodDesc"_s), Qt::LeftButton);
    QVERIFY(face(0) != QColor(u"#f0f7ff"_s));
    QCOMPARE(face(2), QColor(u"#f0f7ff"_s));
}

void tst_MethodSelectPage::arrowKeysChooseAndScroll()
{
    m_page->resize(720, 400);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    cards().first()->radioButton()->setFocus(Qt::TabFocusReason);
    for (int i = 1; i < cards().size(); ++i) {
        QTest::keyClick(cards().at(i - 1)->radioButton(), Qt::Key_Down);
        QCOMPARE(m_page->selectedMethod(), WipeMethod::allMethods().at(i));
        QVERIFY(cards().at(i)->radioButton()->hasFocus());
    }
    const auto *const viewport = m_page->findChild<QScrollArea *>()->viewport();
    const QPoint top = cards().at(4)->mapTo(viewport, QPoint(0, 0));
    QVERIFY(viewport->rect().contains(QRect(top, cards().at(4)->size())));
}

void tst_MethodSelectPage::tabReachesCardsThenButtons()
{
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    QWidget *const chosen = cards().first()->radioButton();
    chosen->setFocus(Qt::TabFocusReason);
    QTest::keyClick(chosen, Qt::Key_Tab);
    QVERIFY(button(u"secondaryBtn"_s)->hasFocus());
    QTest::keyClick(button(u"secondaryBtn"_s), Qt::Key_Tab);
    QVERIFY(button(u"dangerBtn"_s)->hasFocus());
    QTest::keyClick(button(u"dangerBtn"_s), Qt::Key_Tab);
    QVERIFY(chosen->hasFocus());
}

void tst_MethodSelectPage::navigationBarHasItsLooks()
{
    const auto *const bar = m_page->findChild<QWidget *>(u"navBar"_s);
    QCOMPARE(bar->minimumHeight(), 70);
    QCOMPARE(bar->maximumHeight(), 70);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(20, 15, 20, 15));
    QCOMPARE(bar->styleSheet(),
             u"#navBar { background-color: #ffffff; border-radius: 10px; border: 1px solid #e2e8f0; }"_s);
    QCOMPARE(button(u"secondaryBtn"_s)->text(), u"← 返回"_s);
    QCOMPARE(button(u"dangerBtn"_s)->text(), u"Start"_s);
    for (const QString &name : {u"secondaryBtn"_s, u"dangerBtn"_s}) {
        QCOMPARE(button(name)->minimumWidth(), 120);
        QCOMPARE(button(name)->maximumWidth(), 120);
        QVERIFY(button(name)->isEnabled());
    }
}

void tst_MethodSelectPage::buttonsEmit()
{
    const QSignalSpy back(m_page.get(), &MethodSelectPage::backClicked);
    const QSignalSpy start(m_page.get(), &MethodSelectPage::startClicked);
    m_page->show();
    QTest::mouseClick(button(u"secondaryBtn"_s), Qt::LeftButton);
    QCOMPARE(back.count(), 1);
    QCOMPARE(start.count(), 0);
    QTest::mouseClick(button(u"dangerBtn"_s), Qt::LeftButton);
    QCOMPARE(back.count(), 1);
    QCOMPARE(start.count(), 1);
}

QUORVEX_SUITE(tst_MethodSelectPage, QApplication)
#include "tst_methodselectpage.moc"
