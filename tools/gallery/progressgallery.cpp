#include "gallery.h"
#include "pageframe.h"

#include "ui/progress/logwidget.h"
#include "ui/progress/progresspage.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

void run(ProgressPage &page)
{
    page.reset();
    page.setMethod(u"DoD 5220.22-M"_s);
    page.setSpeed(157286400);
    page.setProgress(1.4);
    page.addLog(u"Disk 1 - Example SSD 970, 500 GB"_s, 0);
    page.addLog(u"Volume E: could not be locked, trying again"_s, 1);
    page.addLog(u"Write error at offset 1048576 (error 1117)"_s, 2);
    page.addLog(u"Pass 1 of 7"_s, 3);
    QMetaObject::invokeMethod(page.findChild<QTimer *>(), "timeout");
}

void paint(Gallery &gallery)
{
    auto *const fresh = new ProgressPage;
    fresh->reset();
    fresh->setMethod(u"NIST 800-88"_s);
    PageFrame start(fresh);
    gallery.picture(start, u"progress-start"_s);

    auto *const running = new ProgressPage;
    run(*running);
    PageFrame middle(running);
    gallery.picture(middle, u"progress-running"_s);
    running->findChild<QPushButton *>(u"secondaryBtn"_s)->click();
    running->setProgress(100);
    gallery.picture(middle, u"progress-paused"_s);

    auto *const log = new LogWidget;
    log->addInfo(u"Disk 1 - Example SSD 970, 500 GB"_s);
    log->addWarning(u"A name with <b>markup</b>"_s);
    log->addError(u"Write error at offset 1048576 (error 1117)"_s);
    PageFrame panel(log, QSize(600, 300));
    gallery.picture(panel, u"logwidget"_s);
}

const GalleryRoom room("progress", &paint);

} // namespace
