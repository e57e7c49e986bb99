#include "gallery.h"
#include "pageframe.h"

#include "support/scriptedprompts.h"
#include "ui/files/fileselectpage.h"
#include "ui/mainwindow/mainwindow.h"

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QStringList fortyFiles(const QTemporaryDir &folder)
{
    QStringList paths;
    for (int i = 0; i < 40; ++i) {
        const QString name =
            i == 1 ? u"Minutes of the meeting about the "_s + u"very "_s.repeated(30) + u"long name.txt"_s
                   : u"report %1.pdf"_s.arg(i);
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || !file.resize(1000 * i * i))
            qFatal("cannot write a file to show");
        paths.append(file.fileName());
    }
    if (!QDir(folder.path()).mkdir(u"Holidays"_s))
        qFatal("cannot make a folder to show");
    paths.insert(3, folder.filePath(u"Holidays"_s));
    return paths;
}

void paintEmpty(Gallery &gallery)
{
    auto *page = new FileSelectPage;
    PageFrame frame(page);
    gallery.picture(frame, u"files-empty"_s);
    page->findChild<QWidget *>(u"dropZone"_s)->setProperty("dragOver", true);
    page->style()->polish(page->findChild<QWidget *>(u"dropZone"_s));
    gallery.picture(frame, u"files-drag"_s);
}

void paintLoading(Gallery &gallery)
{
    auto *page = new FileSelectPage;
    PageFrame frame(page);
    page->setHeader(MainWindow::tr("Recycle Bin Wipe"),
                    MainWindow::tr("Scanning deleted files in Recycle Bin..."));
    page->showLoading(MainWindow::tr("Scanning Recycle Bin..."));
    gallery.picture(frame, u"files-scan-starts"_s);
    page->updateLoadingProgress(
        2, 5, MainWindow::tr("Scanning Recycle Bin on drive %1 (%2/%3)...").arg(u"D:"_s).arg(2).arg(5));
    gallery.picture(frame, u"files-scan"_s);
}

void paintList(Gallery &gallery)
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {fortyFiles(folder)};
    auto *page = new FileSelectPage;
    PageFrame frame(page);
    page->onAddFilesClicked();
    frame.show();
    page->list()->setCurrentRow(2);
    page->list()->setFocus();
    gallery.picture(frame, u"files-list"_s);
}

void paint(Gallery &gallery)
{
    paintEmpty(gallery);
    paintLoading(gallery);
    paintList(gallery);
}

const GalleryRoom room("files", &paint);

} // namespace
