#include "support/suite.h"
#include "ui/mainwindow/shadowcanvas.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

// The shadow behind the window's box.
class tst_ShadowCanvas : public QObject
{
    Q_OBJECT

private slots:
    void fadesAroundTheBox();
    void fallsDownwards();
    void leavesTheBoxItself();
    void followsTheSizeOfTheBox();
    void isSharpOnEveryScreen();
};

namespace {

constexpr int Margin = 40;

// A box that paints nothing, on a canvas with room for all of its shadow.
struct Shown
{
    QWidget *box = new QWidget;
    ShadowCanvas canvas{{.cornerRadius = 12, .blurRadius = 20, .offset = 5, .colour = {0, 0, 0, 60}}, box};

    explicit Shown(const QSize &size = {300, 200})
    {
        auto *const layout = new QVBoxLayout(&canvas);
        layout->setContentsMargins(Margin, Margin, Margin, Margin);
        layout->addWidget(box);
        canvas.resize(size + QSize(2 * Margin, 2 * Margin));
    }
    QImage picture(qreal ratio = 1)
    {
        QImage image(canvas.size() * ratio, QImage::Format_ARGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        canvas.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }
};

int alpha(const QImage &picture, int x, int y)
{
    return qAlpha(picture.pixel(x, y));
}

} // namespace

void tst_ShadowCanvas::fadesAroundTheBox()
{
    Shown shown;
    const QImage picture = shown.picture();
    const int middle = picture.width() / 2;
    const int bottom = Margin + 200;
    int last = 61; // no darker than its colour
    for (int distance = 0; distance <= 15; distance += 5) {
        const int here = alpha(picture, middle, bottom + distance);
        QVERIFY2(here < last, qPrintable(QString::number(distance)));
        last = here;
    }
    QCOMPARE(alpha(picture, middle, bottom + 30), 0);
    QCOMPARE(alpha(picture, 2, 2), 0);
    QCOMPARE(QColor(picture.pixel(middle, bottom)).rgb(), QColor(Qt::black).rgb());
}

void tst_ShadowCanvas::fallsDownwards()
{
    Shown shown;
    const QImage picture = shown.picture();
    const int middle = picture.height() / 2;
    QVERIFY(alpha(picture, picture.width() / 2, Margin + 200 + 3) >
            alpha(picture, picture.width() / 2, Margin - 4) + 10);
    QVERIFY(qAbs(alpha(picture, Margin - 4, middle) - alpha(picture, Margin + 300 + 3, middle)) <= 1);
    QVERIFY(alpha(picture, Margin - 4, middle) > 0);
}

// The shadow does not show through a translucent box.
void tst_ShadowCanvas::leavesTheBoxItself()
{
    Shown shown;
    const QImage picture = shown.picture();
    for (const QPoint &inside : {QPoint(Margin + 150, Margin + 100), QPoint(Margin + 150, Margin + 1),
                                 QPoint(Margin + 1, Margin + 100), QPoint(Margin + 150, Margin + 198)})
        QCOMPARE(alpha(picture, inside.x(), inside.y()), 0);
    QVERIFY(alpha(picture, Margin + 1, Margin + 198) > 0); // beyond the round corner
}

void tst_ShadowCanvas::followsTheSizeOfTheBox()
{
    Shown shown;
    const int below = alpha(shown.picture(), 100, Margin + 200 + 2);
    shown.canvas.resize(600 + 2 * Margin, 500 + 2 * Margin);
    const QImage picture = shown.picture();
    QCOMPARE(alpha(picture, 500, Margin + 500 + 2), below);
    QCOMPARE(alpha(picture, 100, Margin + 200 + 2), 0);
}

void tst_ShadowCanvas::isSharpOnEveryScreen()
{
    Shown shown;
    const QImage one = shown.picture();
    const QImage two = shown.picture(2);
    for (int distance = 0; distance < 25; distance += 4) {
        const int y = Margin + 200 + distance;
        QVERIFY(qAbs(alpha(one, 190, y) - alpha(two, 380, 2 * y)) <= 3);
    }
}

QUORVEX_SUITE(tst_ShadowCanvas, QApplication)
#include "tst_shadowcanvas.moc"
