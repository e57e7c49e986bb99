#include "gallery.h"

#include "platform/platform.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/style/uiresources.h"

#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

// The whole window on an empty data folder and without drives.
void paint(Gallery &gallery)
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    QStandardPaths::setTestModeEnabled(true);
    const auto none = platform::createPlatform({{}, true});
    const platform::ScopedPlatform scope(*none);
    addUiResources();
    MainWindow window;
    for (const auto &[name, page] :
         {std::pair(u"home"_s, MainWindow::Home), std::pair(u"methods"_s, MainWindow::MethodSelect),
          std::pair(u"history"_s, MainWindow::History), std::pair(u"settings"_s, MainWindow::Settings)}) {
        window.onNavigateToPage(page);
        gallery.picture(window, u"window-"_s + name);
    }
}

const GalleryRoom room("mainwindow", &paint);

} // namespace
