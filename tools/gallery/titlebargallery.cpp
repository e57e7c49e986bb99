#include "gallery.h"
#include "pageframe.h"

#include "support/temporarysettings.h"
#include "ui/titlebar/titlebar.h"
#include "ui/titlebar/winbutton.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

void hover(WinButton &button)
{
    button.setAttribute(Qt::WA_UnderMouse);
    button.update();
}

void paint(Gallery &gallery)
{
    const TemporarySettings settings;
    settings.set(usersettings::Language, u"de"_s);
    auto *const bar = new TitleBar;
    PageFrame frame(bar, QSize(720, 40));
    gallery.picture(frame, u"titlebar"_s);

    const QList<WinButton *> buttons = bar->findChildren<WinButton *>();
    bar->setMaximized(true);
    hover(*buttons.at(0));
    hover(*buttons.at(3));
    gallery.picture(frame, u"titlebar-maximized-hovered"_s);

    for (const QString &name : {u"applicationMenu"_s, u"languageMenu"_s}) {
        auto *const menu = bar->findChild<QMenu *>(name);
        menu->popup(QPoint(0, 0));
        menu->setActiveAction(menu->actions().constFirst());
        gallery.picture(*menu, u"titlebar-%1"_s.arg(name));
    }
}

const GalleryRoom room("titlebar", &paint);

} // namespace
