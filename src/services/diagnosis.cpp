#include "services/diagnosis.h"

#include "platform/alignedbuffer.h"
#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "platform/storagereplies.h"
#include "services/diskmanager.h"
#include "services/limitedquestion.h"

#include <QLocale>
#include <QSysInfo>

#include <functional>
#include <optional>
#include <utility>

namespace diagnosis {

using namespace Qt::StringLiterals;

namespace {

using platform::Result;
using platform::Status;

platform::Devices &currentDevices()
{
    return platform::Platform::current().devices();
}

QString yesOrNo(bool value)
{
    return value ? u"yes"_s : u"no"_s;
}

QString orNone(const QStringList &list)
{
    return list.isEmpty() ? u"none"_s : list.join(u", "_s);
}

void say(Section &section, const QString &question, const QString &text)
{
    section.answers.append({question, text});
}

template <typename Value, typename ToText>
void note(Section &section, const QString &question, const Result<Value> &answer, const ToText &toText)
{
    if (answer)
        say(section, question, toText(answer.value()));
    else
        section.answers.append({question, {}, answer.status()});
}

QString geometryText(const platform::Geometry &geometry)
{
    return u"%1 bytes, sectors of %2"_s.arg(geometry.sizeBytes).arg(geometry.bytesPerSector);
}

QString descriptorText(const QByteArray &reply)
{
    const platform::DeviceDescriptor decoded = platform::decodeDeviceDescriptor(reply);
    return u"bus %1, removable %2, product \"%3\", serial number \"%4\""_s.arg(
        QString::number(decoded.busType), yesOrNo(decoded.removableMedia), decoded.productId,
        decoded.serialNumber);
}

QString rawText(const QByteArray &reply)
{
    return QString::fromLatin1(reply.toHex(' '));
}

QString extentsText(const QList<platform::Extent> &extents)
{
    QStringList texts;
    for (const platform::Extent &extent : extents) {
        texts.append(u"drive %1 from byte %2, %3 bytes"_s.arg(extent.diskNumber)
                         .arg(extent.startingOffset)
                         .arg(extent.length));
    }
    return orNone(texts);
}

void noteUse(Section &section, const Result<platform::DeviceUse> &use)
{
    note(section, u"read-only"_s, use, [](const auto &answer) { return yesOrNo(answer.isReadOnly); });
    if (!use)
        return;
    say(section, u"held by"_s, orNone(use.value().holders));
    say(section, u"released by"_s, orNone(use.value().releaseCommands));
}

// Whether the medium can be read at all: some drives and locked volumes open, but refuse to be read.
Result<qint64> readFirstSector(platform::RawDevice &drive)
{
    const Result<qint32> sector = drive.bytesPerSector();
    if (!sector)
        return sector.status();
    platform::AlignedBuffer buffer(sector.value());
    if (buffer.isNull())
        return Status{platform::NotEnoughMemory, 0, "read"};
    if (const Status there = drive.seek(0); !there)
        return there;
    return drive.read(buffer.data(), buffer.size());
}

void noteOpened(Section &section, const platform::DriveIdentity &identity)
{
    const auto drive = currentDevices().openDrive(identity, platform::DriveAccess::ReadOnly);
    note(section, u"opened for reading"_s, drive, [](const auto &) { return u"yes"_s; });
    if (!drive)
        return;
    const auto number = [](auto value) { return QString::number(value); };
    note(section, u"sector size"_s, drive.value()->bytesPerSector(), number);
    note(section, u"length"_s, drive.value()->length(), number);
    note(section, u"bytes read of the first sector"_s, readFirstSector(*drive.value()), number);
}

std::optional<Section> aboutDrive(int number)
{
    Section section{u"drive %1"_s.arg(number)};
    const auto query = currentDevices().queryDrive(number);
    if (query.status().isAbsent())
        return std::nullopt;
    say(section, u"path"_s, currentDevices().drivePath(number));
    if (!query) {
        section.answers.append({u"opened to be asked"_s, {}, query.status()});
        return section;
    }
    platform::DeviceQuery &drive = *query.value();
    note(section, u"geometry"_s, drive.geometry(), geometryText);
    const Result<QByteArray> descriptor = drive.descriptor();
    note(section, u"descriptor"_s, descriptor, descriptorText);
    note(section, u"descriptor, raw"_s, descriptor, rawText);
    note(section, u"world-wide name"_s, drive.worldWideName(), [](const QString &name) { return name; });
    note(section, u"seek penalty"_s, drive.seekPenalty(), yesOrNo);
    note(section, u"trim"_s, drive.trimEnabled(), yesOrNo);
    noteUse(section, drive.use());
    noteOpened(section, platform::identityOf(number, drive));
    return section;
}

std::optional<Section> aboutVolume(const QString &name)
{
    Section section{u"volume %1"_s.arg(name)};
    const auto query = currentDevices().queryVolume(name);
    if (query.status().isAbsent())
        return std::nullopt;
    if (!query) {
        section.answers.append({u"opened to be asked"_s, {}, query.status()});
        return section;
    }
    note(section, u"lies on"_s, query.value()->extents(platform::AllExtents), extentsText);
    noteUse(section, query.value()->use());
    return section;
}

Section aboutMounted(const platform::MountedVolume &volume)
{
    Section section{u"mounted at %1"_s.arg(volume.rootPath)};
    say(section, u"volume"_s, volume.name);
    say(section, u"ready"_s, yesOrNo(volume.isReady));
    say(section, u"on a local drive"_s, yesOrNo(volume.isLocal));
    if (!volume.isReady)
        return section;
    say(section, u"label"_s, volume.label);
    say(section, u"file system"_s, QString::fromUtf8(volume.fileSystem));
    say(section, u"bytes"_s, u"%1, free %2"_s.arg(volume.totalBytes).arg(volume.freeBytes));
    say(section, u"identity"_s, volume.identity);
    return section;
}

void add(QList<Section> &sections, const QString &subject, const QString &device,
         const std::function<std::optional<Section>()> &question)
{
    const auto answer = limitedquestion::answerOf<std::optional<Section>>(device, question);
    if (!answer)
        sections.append({subject, {{u"any question"_s, u"no answer in time"_s}}});
    else if (*answer)
        sections.append(**answer);
}

} // namespace

Section system()
{
    platform::Session &session = platform::Platform::current().session();
    Section section{u"system"_s};
    say(section, u"system"_s, QSysInfo::prettyProductName());
    say(section, u"kernel"_s, QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion());
    say(section, u"processor"_s, QSysInfo::currentCpuArchitecture());
    say(section, u"Qt"_s, QString::fromLatin1(qVersion()));
    say(section, u"locale"_s, QLocale::system().name());
    say(section, u"user"_s, session.userId());
    note(section, u"administrator rights"_s, session.isAdministrator(), yesOrNo);
    say(section, u"system volumes"_s, orNone(session.systemVolumes()));
    return section;
}

QList<Section> devices()
{
    QList<Section> sections;
    for (int number = DiskManager::FirstDrive; number <= DiskManager::LastDrive; ++number) {
        add(sections, u"drive %1"_s.arg(number), DiskManager::driveKey(number),
            [number] { return aboutDrive(number); });
    }
    QStringList volumes = currentDevices().volumeNames();
    const Result<QStringList> machineVolumes = currentDevices().machineVolumes();
    if (!machineVolumes && machineVolumes.code() != platform::NotSupported)
        sections.append({u"volumes of the machine"_s, {{u"listed"_s, {}, machineVolumes.status()}}});
    volumes += machineVolumes.valueOr({});
    for (const QString &name : std::as_const(volumes))
        add(sections, u"volume %1"_s.arg(name), name, [name] { return aboutVolume(name); });
    for (const platform::MountedVolume &volume : currentDevices().mountedVolumes())
        sections.append(aboutMounted(volume));
    return sections;
}

} // namespace diagnosis
