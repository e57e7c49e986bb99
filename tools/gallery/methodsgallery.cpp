#include "gallery.h"
#include "pageframe.h"

#include "ui/methods/methodcard.h"
#include "ui/methods/methodselectpage.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void paint(Gallery &gallery)
{
    PageFrame plain(new MethodSelectPage);
    gallery.picture(plain, u"methods"_s);

    auto *const page = new MethodSelectPage;
    PageFrame frame(page);
    const QList<MethodCard *> cards = page->findChildren<MethodCard *>();
    frame.show();
    if (!QTest::qWaitForWindowActive(&frame))
        qFatal("the window does not become active");
    cards.at(2)->radioButton()->setChecked(true);
    cards.at(2)->radioButton()->setFocus(Qt::TabFocusReason);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(cards.at(1), &enter);
    gallery.picture(frame, u"methods-hovered-and-focused"_s);

    PageFrame wide(new MethodSelectPage, QSize(1400, 900));
    gallery.picture(wide, u"methods-wide"_s);
}

const GalleryRoom room("methods", &paint);

} // namespace
