#include "gallery.h"
#include "pageframe.h"

#include "model/diskinfo.h"
#include "model/partitioninfo.h"
#include "model/targettext.h"
#include "ui/dialogs/completedialog.h"
#include "ui/dialogs/confirmdialog.h"

#include <QLineEdit>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

DiskInfo twoVolumes()
{
    DiskInfo disk;
    disk.diskNumber = 2;
    disk.model = u"Contoso Fast SSD 970"_s;
    disk.serialNumber = u"S4EWNX0M512345"_s;
    disk.sizeBytes = qint64(931) << 30;
    disk.devicePath = u"/dev/sdb"_s;
    for (const QString &name : {u"/media/data"_s, u"/media/backup of the old machine"_s}) {
        PartitionInfo volume;
        volume.driveLetter = name;
        volume.label = u"Data"_s;
        volume.fileSystem = u"ext4"_s;
        volume.totalBytes = qint64(400) << 30;
        volume.freeBytes = qint64(120) << 30;
        disk.addPartition(volume);
    }
    return disk;
}

void paint(Gallery &gallery)
{
    const QString id = u"QV-20260203-0A1B2C3D"_s;
    // Dialogs use the style sheet of their parent window.
    PageFrame window(new QWidget);
    ConfirmDialog empty(&window);
    gallery.picture(empty, u"confirm-empty"_s);
    ConfirmDialog typed(&window);
    typed.findChild<QLineEdit *>()->setText(u"erase"_s);
    gallery.picture(typed, u"confirm-typed"_s);
    ConfirmDialog ofDrive(&window);
    ofDrive.showTarget(TargetText::driveWithVolumes(twoVolumes()));
    ofDrive.offerWholeDrive(qint64(8) << 20);
    gallery.picture(ofDrive, u"confirm-drive"_s);
    ConfirmDialog ofFiles(&window);
    QStringList files{TargetText::amount(1234, quint64(5) << 30, true)};
    files += TargetText::beginningOf(30, [](qsizetype i) { return u"/media/data/letters/%1.odt"_s.arg(i); });
    ofFiles.showTarget(files);
    gallery.picture(ofFiles, u"confirm-files"_s);

    CompleteDialog certified(true, id, &window);
    gallery.picture(certified, u"complete-certificate"_s);
    CompleteDialog plain(true, QString(), &window);
    gallery.picture(plain, u"complete-plain"_s);
    CompleteDialog failed(false, id, &window);
    gallery.picture(failed, u"complete-failed"_s);
}

const GalleryRoom room("dialogs", &paint);

} // namespace
