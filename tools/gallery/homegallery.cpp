#include "gallery.h"
#include "pageframe.h"

#include "ui/home/featurecard.h"
#include "ui/home/homepage.h"

#include <QCoreApplication>
#include <QDir>
#include <QEnterEvent>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Paints every drawing in its sizes on its backgrounds.
void paintIcons(Gallery &gallery)
{
    constexpr QSize Cell(150, 80);
    constexpr int Columns = 6;
    const QStringList names = QDir(u":/icons"_s).entryList({u"*.svg"_s});
    QImage sheet(Cell.width() * Columns, Cell.height() * ((static_cast<int>(names.size()) - 1) / Columns + 1),
                 QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (int i = 0; i < names.size(); ++i) {
        const QRect cell(QPoint(i % Columns * Cell.width(), i / Columns * Cell.height()), Cell);
        const bool isOnDark = names.at(i).contains(u"icon_menu") || names.at(i).startsWith(u"check");
        painter.fillRect(cell,
                         isOnDark ? QColor(u"#1e293b"_s) : QColor(i % 2 == 0 ? u"#ffffff"_s : u"#f0f5fe"_s));
        const QIcon drawing(u":/icons/"_s + names.at(i));
        drawing.paint(&painter, QRect(cell.topLeft() + QPoint(10, 30), QSize(20, 20)));
        drawing.paint(&painter, QRect(cell.topLeft() + QPoint(50, 10), QSize(60, 60)));
    }
    painter.end();
    gallery.save(sheet, u"icons"_s);
}

void paint(Gallery &gallery)
{
    PageFrame plain(new HomePage);
    gallery.picture(plain, u"home"_s);

    auto *const page = new HomePage;
    PageFrame frame(page);
    const QList<FeatureCard *> cards = page->findChildren<FeatureCard *>();
    frame.show();
    if (!QTest::qWaitForWindowActive(&frame))
        qFatal("the window does not become active");
    cards.at(1)->setFocus(Qt::TabFocusReason);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(cards.at(0), &enter);
    QCoreApplication::sendEvent(cards.at(2), &enter);
    gallery.picture(frame, u"home-hovered-and-focused"_s);

    PageFrame wide(new HomePage, QSize(1400, 900));
    gallery.picture(wide, u"home-wide"_s);
    paintIcons(gallery);
}

const GalleryRoom room("home", &paint);

} // namespace
