#include "gallery.h"
#include "pageframe.h"

#include "support/fakedevices.h"
#include "ui/disks/diskselectpage.h"

#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

FakeDrive namedDrive(const QString &model, quint32 bus, bool removable = false)
{
    FakeDrive drive = FakeDrive::solidState();
    drive.descriptor = platform::encodeDeviceDescriptor(
        {.productId = model, .serialNumber = u"S1"_s, .removableMedia = removable, .busType = bus});
    return drive;
}

void mount(FakeMachine &machine, const QString &name, const QString &label, int drive)
{
    FakeVolume volume = FakeVolume::onDrives(name, {drive});
    volume.mounted.label = label;
    volume.mounted.fileSystem = "NTFS";
    volume.mounted.totalBytes = 400'000'000'000;
    volume.mounted.freeBytes = 123'456'789'012;
    machine.fakeDevices.mount(volume);
}

void fewDrives(FakeMachine &machine)
{
    machine.fakeDevices.drives = {
        {0, namedDrive(u"Contoso Fast 990 NVMe"_s, platform::BusNvme)},
        {1, namedDrive(u"Fabrikam Enterprise Capacity 3.5 HDD v7 SAS 12Gb/s 512e ISE rev. 0004"_s,
                       platform::BusSas)},
        {2, namedDrive(u"Stick"_s, platform::BusUsb, true)}};
    mount(machine, u"C:"_s, u"Windows"_s, 0);
    mount(machine, u"D:"_s, QString(), 0);
    mount(machine, u"E:"_s, u"A label that is as long as the file system lets it be"_s, 1);
    machine.fakeSession.systemVolumeNames = {u"C:"_s};
    machine.fakeSession.systemRoots = {u"C:/"_s};
}

void select(DiskSelectPage &page, int disk, int partition = -1)
{
    auto *tree = page.findChild<QTreeWidget *>(u"diskTree"_s);
    QTreeWidgetItem *row = tree->topLevelItem(disk);
    tree->setCurrentItem(partition < 0 ? row : row->child(partition));
}

void pictureOf(Gallery &gallery, const QString &name, int mode, int disk, int partition)
{
    FakeMachine machine;
    fewDrives(machine);
    const platform::ScopedPlatform scope(machine);
    auto *page = new DiskSelectPage;
    PageFrame frame(page);
    page->setMode(mode);
    frame.show();
    select(*page, disk, partition);
    gallery.picture(frame, name);
}

void paintMany(Gallery &gallery)
{
    FakeMachine machine;
    for (int number = 0; number < 12; ++number)
        machine.fakeDevices.drives.insert(number, namedDrive(u"Drive %1"_s.arg(number), platform::BusSata));
    mount(machine, u"/media/anna/Photographs of the summer"_s, u"Photos"_s, 3);
    const platform::ScopedPlatform scope(machine);
    PageFrame frame(new DiskSelectPage);
    gallery.picture(frame, u"disks-many"_s);
}

void paintNone(Gallery &gallery)
{
    FakeMachine machine;
    const platform::ScopedPlatform scope(machine);
    PageFrame frame(new DiskSelectPage);
    gallery.picture(frame, u"disks-none"_s);
}

void paint(Gallery &gallery)
{
    pictureOf(gallery, u"disks-wipe-system"_s, DiskSelectPage::WipeDisk, 0, -1);
    pictureOf(gallery, u"disks-wipe-chosen"_s, DiskSelectPage::WipeDisk, 1, 0);
    pictureOf(gallery, u"disks-free-system"_s, DiskSelectPage::WipeFreeSpace, 0, 0);
    paintMany(gallery);
    paintNone(gallery);
}

const GalleryRoom room("disks", &paint);

} // namespace
