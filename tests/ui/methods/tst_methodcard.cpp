#include "support/suite.h"
#include "ui/methods/methodcard.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

// The middle of the lower edge, where only face and border are painted.
constexpr QPoint OnFace(300, 72);
constexpr QPoint OnBorder(300, 1);

} // namespace

class tst_MethodCard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_card.reset(); }
    void showsTheMethod_data();
    void showsTheMethod();
    void hasItsMeasures();
    void badgeColourTellsTheLevel_data();
    void badgeColourTellsTheLevel();
    void pressAnywhereChecks_data();
    void pressAnywhereChecks();
    void keysCheck_data();
    void keysCheck();
    void facesTellTheState();
    void focusFrameFollowsTheKeyboard();
    void speaksOfTheMethod();

private:
    QString textOf(const QString &name) const { return m_card->findChild<QLabel *>(name)->text(); }
    QColor colourAt(const QPoint &place) const { return m_card->grab().toImage().pixelColor(place); }
    void setHovered(bool isHovered) const
    {
        QEnterEvent enter(QPointF(10, 10), QPointF(10, 10), QPointF(10, 10));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_card.get(), isHovered ? static_cast<QEvent *>(&enter) : &leave);
    }

    std::unique_ptr<MethodCard> m_card;
};

void tst_MethodCard::init()
{
    m_card = std::make_unique<MethodCard>(WipeMethod::fromType(WipeMethod::Gutmann));
    m_card->resize(630, 80);
}

void tst_MethodCard::showsTheMethod_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("passes");
    QTest::addColumn<QString>("level");
    QTest::newRow("NIST") << 0 << u"1 次覆写"_s << u"基础"_s;
    QTest::newRow("HMG") << 1 << u"2 次覆写"_s << u"标准"_s;
    QTest::newRow("DoD") << 2 << u"7 次覆写"_s << u"高级"_s;
    QTest::newRow("VSITR") << 3 << u"7 次覆写"_s << u"高级"_s;
    QTest::newRow("Gutmann") << 4 << u"35 次覆写"_s << u"最高"_s;
}

void tst_MethodCard::showsTheMethod()
{
    QFETCH(const int, type);
    QFETCH(const QString, passes);
    QFETCH(const QString, level);
    const WipeMethod method = WipeMethod::fromType(type);
    m_card = std::make_unique<MethodCard>(method);
    QCOMPARE(textOf(u"methodName"_s), method.name);
    QCOMPARE(textOf(u"methodPass"_s), passes);
    QCOMPARE(textOf(u"methodDesc"_s), method.description);
    QCOMPARE(textOf(u"methodLevel"_s), level);
    QVERIFY(m_card->findChild<QLabel *>(u"methodDesc"_s)->wordWrap());
    QVERIFY(!m_card->radioButton()->isChecked());
}

void tst_MethodCard::hasItsMeasures()
{
    QCOMPARE(m_card->minimumHeight(), 80);
    QCOMPARE(m_card->maximumHeight(), 80);
    QCOMPARE(m_card->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(m_card->layout()->contentsMargins(), QMargins(20, 12, 20, 12));
    QCOMPARE(m_card->radioButton()->objectName(), u"methodRadio"_s);
    m_card->grab();
    const auto *const name = m_card->findChild<QLabel *>(u"methodName"_s);
    const auto *const passes = m_card->findChild<QLabel *>(u"methodPass"_s);
    const auto *const description = m_card->findChild<QLabel *>(u"methodDesc"_s);
    const auto *const badge = m_card->findChild<QLabel *>(u"methodLevel"_s);
    QVERIFY(name->x() > m_card->radioButton()->geometry().right());
    QVERIFY(passes->x() > name->geometry().right());
    QVERIFY(description->y() > name->geometry().bottom());
    QVERIFY(badge->x() > description->geometry().right());
    QCOMPARE(badge->height(), 26);
    QCOMPARE(badge->alignment(), Qt::AlignCenter);
}

void tst_MethodCard::badgeColourTellsTheLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("colour");
    QTest::newRow("0") << 0 << u"#6b7280"_s;
    QTest::newRow("1") << 1 << u"#22c55e"_s;
    QTest::newRow("2") << 2 << u"#84cc16"_s;
    QTest::newRow("3") << 3 << u"#eab308"_s;
    QTest::newRow("4") << 4 << u"#f97316"_s;
    QTest::newRow("5") << 5 << u"#ef4444"_s;
    QTest::newRow("6") << 6 << u"#6b7280"_s;
}

void tst_MethodCard::badgeColourTellsTheLevel()
{
    QFETCH(const int, level);
    QFETCH(const QString, colour);
    WipeMethod method;
    method.level = level;
    const MethodCard card(method);
    QCOMPARE(card.findChild<QLabel *>(u"methodLevel"_s)->styleSheet(),
             u"background-color: %1;color: white;border-radius: 13px;font-weight: bold;font-size: 12px;"
             "padding: 0 12px;"_s.arg(colour));
}

void tst_MethodCard::pressAnywhereChecks_data()
{
    QTest::addColumn<QString>("child");
    QTest::newRow("card") << QString();
    QTest::newRow("name") << u"methodName"_s;
    QTest::newRow("description") << u"methodDesc"_s;
    QTest::newRow("badge") << u"methodLevel"_s;
}

void tst_MethodCard::pressAnywhereChecks()
{
    QFETCH(const QString, child);
    const QSignalSpy clicked(m_card.get(), &MethodCard::clicked);
    m_card->show();
    QWidget *const target = child.isEmpty() ? m_card.get() : m_card->findChild<QWidget *>(child);
    const QPoint place = child.isEmpty() ? QPoint(5, 5) : target->rect().center();
    QTest::mousePress(target, Qt::LeftButton, {}, place);
    QVERIFY(m_card->radioButton()->isChecked());
    QCOMPARE(clicked.count(), 1);
    QTest::mouseRelease(target, Qt::LeftButton, {}, place);
    QVERIFY(m_card->radioButton()->isChecked());
    QCOMPARE(clicked.count(), 1);
}

void tst_MethodCard::keysCheck_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void tst_MethodCard::keysCheck()
{
    QFETCH(const Qt::Key, key);
    QTest::keyClick(m_card->radioButton(), key);
    QVERIFY(m_card->radioButton()->isChecked());
}

void tst_MethodCard::facesTellTheState()
{
    QCOMPARE(colourAt(OnFace), QColor(u"#ffffff"_s));
    const QColor plainBorder = colourAt(OnBorder);
    setHovered(true);
    QCOMPARE(colourAt(OnFace), QColor(u"#fafbfc"_s));
    QVERIFY(colourAt(OnBorder).lightness() < plainBorder.lightness());
    setHovered(false);
    QCOMPARE(colourAt(OnFace), QColor(u"#ffffff"_s));
    QCOMPARE(colourAt(OnBorder), plainBorder);

    m_card->radioButton()->setChecked(true);
    QCOMPARE(colourAt(OnFace), QColor(u"#f0f7ff"_s));
    QCOMPARE(colourAt(OnBorder), QColor(u"#3b82f6"_s));
    // The checked state has priority over hovering.
    setHovered(true);
    QCOMPARE(colourAt(OnFace), QColor(u"#f0f7ff"_s));
}

void tst_MethodCard::focusFrameFollowsTheKeyboard()
{
    m_card->show();
    QVERIFY(QTest::qWaitForWindowActive(m_card.get()));
    m_card->radioButton()->clearFocus();
    constexpr QPoint onFrame(300, 4);
    const QColor plain = colourAt(onFrame);
    m_card->radioButton()->setFocus(Qt::MouseFocusReason);
    QCOMPARE(colourAt(onFrame), plain);
    m_card->radioButton()->clearFocus();
    m_card->radioButton()->setFocus(Qt::TabFocusReason);
    QVERIFY(colourAt(onFrame) != plain);
}

void tst_MethodCard::speaksOfTheMethod()
{
    QCOMPARE(m_card->radioButton()->accessibleName(), u"Gutmann"_s);
    QCOMPARE(m_card->radioButton()->accessibleDescription(),
             u"35 次覆写, 最高, Peter Gutmann提出的最高安全标准，35次覆写"_s);
    QCOMPARE(m_card->findChild<QLabel *>(u"methodLevel"_s)->accessibleName(), u"安全级别: 最高"_s);
}

QUORVEX_SUITE(tst_MethodCard, QApplication)
#include "tst_methodcard.moc"
