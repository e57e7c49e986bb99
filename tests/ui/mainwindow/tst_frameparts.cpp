#include "support/suite.h"
#include "ui/mainwindow/frameparts.h"

#include <QCoreApplication>
#include <QTest>

using platform::FramePart;
using namespace frameparts;

// The edges and corners by which a window that draws its own frame is resized.
class tst_FrameParts : public QObject
{
    Q_OBJECT

private slots:
    void everyPlaceHasItsPart_data();
    void everyPlaceHasItsPart();
};

void tst_FrameParts::everyPlaceHasItsPart_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<Under>("under");
    QTest::addColumn<FramePart>("part");
    QTest::addColumn<FramePart>("whenMaximized");
    const auto add = [](const char *name, QPoint place, Under under, FramePart part,
                        FramePart whenMaximized) {
        QTest::newRow(name) << place << under << part << whenMaximized;
    };
    using enum FramePart;
    add("top left", {9, 9}, Under::Nothing, TopLeft, Caption);
    add("top", {10, 9}, Under::Nothing, Top, Caption);
    add("top right", {970, 0}, Under::Nothing, TopRight, Caption);
    add("left", {0, 100}, Under::Nothing, Left, Content);
    add("right", {979, 100}, Under::Nothing, Right, Content);
    add("bottom left", {9, 650}, Under::Nothing, BottomLeft, Content);
    add("bottom", {10, 650}, Under::Nothing, Bottom, Content);
    add("bottom right", {970, 659}, Under::Nothing, BottomRight, Content);
    add("caption begins", {10, 10}, Under::Nothing, Caption, Caption);
    add("caption ends", {969, 79}, Under::Nothing, Caption, Caption);
    add("below the caption", {500, 80}, Under::Nothing, Content, Content);
    add("control in the caption", {500, 30}, Under::Control, Content, Content);
    add("maximise button", {900, 30}, Under::MaximizeButton, MaximizeButton, MaximizeButton);
    add("edge over the maximise button", {900, 9}, Under::MaximizeButton, Top, MaximizeButton);
    add("above the screen's corner", {-1, -1}, Under::Nothing, TopLeft, Caption);
}

void tst_FrameParts::everyPlaceHasItsPart()
{
    QFETCH(const QPoint, place);
    QFETCH(const Under, under);
    QFETCH(const FramePart, part);
    QFETCH(const FramePart, whenMaximized);
    constexpr QSize Window(980, 660);
    QCOMPARE(partAt(place, Window, false, under), part);
    QCOMPARE(partAt(place, Window, true, under), whenMaximized);
}

QUORVEX_SUITE(tst_FrameParts, QCoreApplication)
#include "tst_frameparts.moc"
