#include "gallery.h"
#include "pageframe.h"

#include "ui/dialogs/completedialog.h"
#include "ui/dialogs/confirmdialog.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

// Dialogs wear the style sheet of the window they belong to.
void paint(Gallery &gallery)
{
    const QString id = u"QV-20260203-0A1B2C3D"_s;
    PageFrame window(new QWidget);
    ConfirmDialog empty(&window);
    gallery.picture(empty, u"confirm-empty"_s);
    ConfirmDialog typed(&window);
    typed.findChild<QLineEdit *>()->setText(u"erase"_s);
    gallery.picture(typed, u"confirm-typed"_s);

    CompleteDialog certified(true, id, &window);
    gallery.picture(certified, u"complete-certificate"_s);
    CompleteDialog plain(true, QString(), &window);
    gallery.picture(plain, u"complete-plain"_s);
    CompleteDialog failed(false, id, &window);
    gallery.picture(failed, u"complete-failed"_s);
}

const GalleryRoom room("dialogs", &paint);

} // namespace
