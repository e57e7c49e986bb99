#include "gallery.h"
#include "pageframe.h"

#include "support/temporarysettings.h"
#include "ui/settings/settingspage.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

void paint(Gallery &gallery)
{
    const TemporarySettings settings;
    {
        PageFrame frame(new SettingsPage);
        gallery.picture(frame, u"settings-first-run"_s);
    }
    settings.set(usersettings::ExportPath, u"/media/anna/Documents/Certificates of erased drives/2026"_s);
    settings.set(usersettings::AutoExport, true);
    settings.set(usersettings::VerifyAfterWipe, false);
    auto *page = new SettingsPage;
    PageFrame frame(page);
    frame.show();
    page->findChild<QLineEdit *>()->setFocus();
    gallery.picture(frame, u"settings-filled"_s);
}

const GalleryRoom room("settings", &paint);

} // namespace
