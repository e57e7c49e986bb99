#include "platform/linux/linuxdrivedescription.h"

#include "platform/linux/linuxudevdatabase.h"

#include <QFileInfo>

namespace platform {

namespace {

// Vital product data page 0x80 of a SCSI device: a 4-byte header, then the serial number.
QByteArray serialPage(const QString &deviceFolder)
{
    const QByteArray page = readAttribute(deviceFolder + QLatin1String("/vpd_pg80"));
    return page.size() > 4 ? page.mid(4, static_cast<quint8>(page[3])) : QByteArray();
}

// The serial number of the nearest USB device above, which has both a vendor id and a serial number.
QByteArray usbSerial(QString folder, const QString &top)
{
    while (folder.size() > top.size()) {
        if (QFileInfo::exists(folder + QLatin1String("/idVendor")))
            return readAttribute(folder + QLatin1String("/serial"));
        folder = QFileInfo(folder).path();
    }
    return {};
}

quint32 busOf(const QString &name, const QString &devicePath, const QString &deviceFolder,
              const UdevProperties &udev)
{
    if (name.startsWith(QLatin1String("nvme")))
        return BusNvme;
    if (name.startsWith(QLatin1String("mmcblk")))
        return readAttribute(deviceFolder + QLatin1String("/type")) == "SD" ? BusSd : BusMmc;
    if (name.startsWith(QLatin1String("loop")))
        return BusFileBackedVirtual;
    if (name.startsWith(QLatin1String("vd")) || name.startsWith(QLatin1String("xvd")))
        return BusVirtual;
    if (devicePath.contains(QLatin1String("/usb")))
        return BusUsb;
    if (devicePath.contains(QLatin1String("/ata")))
        return udev.contains("ID_ATA") && !udev.contains("ID_ATA_SATA") ? BusAta : BusSata;
    if (devicePath.contains(QLatin1String("/end_device-")))
        return BusSas;
    if (devicePath.contains(QLatin1String("/session")))
        return BusIscsi;
    if (devicePath.contains(QLatin1String("/fw")))
        return BusFirewire;
    return name.startsWith(QLatin1String("sd")) ? BusScsi : BusUnknown;
}

QString modelOf(const QString &name, const QString &folder)
{
    if (name.startsWith(QLatin1String("loop"))) {
        const QString file = QString::fromUtf8(readAttribute(folder + QLatin1String("/loop/backing_file")));
        return QStringLiteral("Loop ") + QFileInfo(file).fileName();
    }
    QString model = QString::fromUtf8(readAttribute(folder + QLatin1String("/device/model"))).trimmed();
    if (!model.isEmpty())
        return model;
    return QString::fromUtf8(readAttribute(folder + QLatin1String("/device/name"))).trimmed(); // cards
}

QString serialOf(const QString &sys, const QString &folder, const UdevProperties &udev)
{
    const QString deviceFolder = folder + QLatin1String("/device");
    const QString devicePath = QFileInfo(deviceFolder).canonicalFilePath();
    const QByteArray candidates[] = {
        udev.value("ID_SERIAL_SHORT"),
        readAttribute(deviceFolder + QLatin1String("/serial")), // NVMe, cards
        readAttribute(folder + QLatin1String("/serial")),       // virtio
        serialPage(deviceFolder),
        usbSerial(devicePath, sys),
    };
    for (const QByteArray &candidate : candidates) {
        if (!candidate.trimmed().isEmpty())
            return QString::fromUtf8(candidate).trimmed();
    }
    return {};
}

} // namespace

DeviceDescriptor describeDrive(const SystemTree &tree, const QString &kernelName)
{
    const QString folder = tree.sys + QLatin1String("/block/") + kernelName;
    const QString devicePath = QFileInfo(folder).canonicalFilePath();
    const UdevProperties udev = udevProperties(tree, readAttribute(folder + QLatin1String("/dev")));

    DeviceDescriptor descriptor;
    descriptor.productId = modelOf(kernelName, folder);
    descriptor.serialNumber = serialOf(tree.sys, folder, udev);
    descriptor.removableMedia = readNumber(folder + QLatin1String("/removable")) != 0;
    descriptor.busType = busOf(kernelName, devicePath, folder + QLatin1String("/device"), udev);
    return descriptor;
}

QString attachmentOf(const SystemTree &tree, const QString &kernelName)
{
    return QString::fromUtf8(
        readAttribute(tree.sys + QLatin1String("/block/") + kernelName + QLatin1String("/diskseq")));
}

QString worldWideName(const SystemTree &tree, const QString &kernelName)
{
    const QString folder = tree.sys + QLatin1String("/block/") + kernelName;
    for (const QLatin1String attribute : {QLatin1String("/wwid"), QLatin1String("/device/wwid")}) {
        const QString name = QString::fromUtf8(readAttribute(folder + attribute)).trimmed();
        if (name.startsWith(QLatin1String("naa.")) || name.startsWith(QLatin1String("eui.")) ||
            name.startsWith(QLatin1String("uuid.")))
            return name;
    }
    const QString attachment = attachmentOf(tree, kernelName);
    const bool hasSerial = !describeDrive(tree, kernelName).serialNumber.trimmed().isEmpty();
    return hasSerial || attachment.isEmpty() ? QString() : QLatin1String("attachment.") + attachment;
}

} // namespace platform
