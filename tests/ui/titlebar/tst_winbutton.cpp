#include "support/suite.h"
#include "ui/titlebar/winbutton.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

class tst_WinButton : public QObject
{
    Q_OBJECT

private slots:
    void glyphsDiffer();
    void glyphsAreThinAndGrey_data();
    void glyphsAreThinAndGrey();
    void maximizeGlyphFollowsTheState();
    void hoverFills_data();
    void hoverFills();
    void focusIsSeen();
    void clickKeepsTheFocusElsewhere();
    void keyPresses();

private:
    // On the title bar's colour.
    static QImage imageOf(QWidget &button)
    {
        QImage image(button.size(), QImage::Format_RGB32);
        image.fill(QColor(u"#1e293b"_s));
        button.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }
    static void enter(QWidget &button)
    {
        button.setAttribute(Qt::WA_UnderMouse);
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&button, &event);
    }
};

void tst_WinButton::glyphsDiffer()
{
    QList<QImage> images;
    for (const auto kind : {WinButton::Menu, WinButton::Minimize, WinButton::Maximize, WinButton::Close}) {
        WinButton button(kind);
        QCOMPARE(button.kind(), kind);
        const QImage image = imageOf(button);
        QVERIFY(!images.contains(image));
        images.append(image);
    }
}

void tst_WinButton::glyphsAreThinAndGrey_data()
{
    QTest::addColumn<WinButton::Kind>("kind");
    QTest::newRow("menu") << WinButton::Menu;
    QTest::newRow("minimize") << WinButton::Minimize;
    QTest::newRow("maximize") << WinButton::Maximize;
}

void tst_WinButton::glyphsAreThinAndGrey()
{
    QFETCH(const WinButton::Kind, kind);
    WinButton button(kind);
    const QImage image = imageOf(button);
    int exact = 0;
    int painted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            exact += image.pixelColor(x, y) == QColor(u"#94a3b8"_s) ? 1 : 0;
            painted += image.pixelColor(x, y) != QColor(u"#1e293b"_s) ? 1 : 0;
        }
    }
    // Straight lines one pixel wide align with whole pixels.
    QVERIFY2(exact >= 8, qPrintable(QString::number(exact)));
    QVERIFY2(painted < 60, qPrintable(QString::number(painted)));
}

void tst_WinButton::maximizeGlyphFollowsTheState()
{
    WinButton button(WinButton::Maximize);
    const QImage normal = imageOf(button);
    button.setMaximized(true);
    QVERIFY(imageOf(button) != normal);
    button.setMaximized(false);
    QCOMPARE(imageOf(button), normal);
}

void tst_WinButton::hoverFills_data()
{
    QTest::addColumn<WinButton::Kind>("kind");
    QTest::addColumn<QColor>("colour");
    // White at alpha 30 on the title bar.
    const QColor light(0x1e + (0xff - 0x1e) * 30 / 255, 0x29 + (0xff - 0x29) * 30 / 255,
                       0x3b + (0xff - 0x3b) * 30 / 255);
    QTest::newRow("menu") << WinButton::Menu << light;
    QTest::newRow("minimize") << WinButton::Minimize << light;
    QTest::newRow("maximize") << WinButton::Maximize << light;
    QTest::newRow("close") << WinButton::Close << QColor(u"#E81123"_s);
}

void tst_WinButton::hoverFills()
{
    QFETCH(const WinButton::Kind, kind);
    QFETCH(const QColor, colour);
    WinButton button(kind);
    QCOMPARE(imageOf(button).pixelColor(2, 2), QColor(u"#1e293b"_s));
    enter(button);
    const QColor filled = imageOf(button).pixelColor(2, 2);
    QVERIFY2(qAbs(filled.red() - colour.red()) <= 1 && qAbs(filled.green() - colour.green()) <= 1 &&
                 qAbs(filled.blue() - colour.blue()) <= 1,
             qPrintable(filled.name()));
}

void tst_WinButton::focusIsSeen()
{
    WinButton button(WinButton::Menu);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.clearFocus();
    const QImage plain = imageOf(button);
    button.setFocus(Qt::TabFocusReason);
    QVERIFY(imageOf(button) != plain);
}

void tst_WinButton::clickKeepsTheFocusElsewhere()
{
    WinButton button(WinButton::Close);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.clearFocus();
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button.hasFocus());
}

void tst_WinButton::keyPresses()
{
    WinButton button(WinButton::Menu);
    button.show();
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

QUORVEX_SUITE(tst_WinButton, QApplication)
#include "tst_winbutton.moc"
