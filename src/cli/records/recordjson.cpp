#include "cli/records/recordjson.h"

#include "cli/io/machinenames.h"
#include "model/jsonwriter.h"
#include "services/trash/binitemtext.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

void writePartition(JsonWriter &writer, const PartitionInfo &partition)
{
    writer.beginObject()
        .member(u"driveLetter", partition.driveLetter)
        .member(u"label", partition.label)
        .member(u"fileSystem", partition.fileSystem)
        .decimalMember(u"totalBytes", partition.totalBytes)
        .decimalMember(u"freeBytes", partition.freeBytes)
        .member(u"isSystem", partition.isSystem)
        .member(u"partitionIndex", partition.partitionIndex)
        .endObject();
}

void writeItem(JsonWriter &writer, const RecycleBinItem &item)
{
    writer.beginObject()
        .member(u"fileName", BinItemText::fileName(item))
        .member(u"originalPath", BinItemText::originalPath(item))
        .member(u"recyclePath", item.recyclePath)
        .member(u"infoPath", item.infoPath)
        .decimalMember(u"size", item.size)
        .member(u"isDirectory", item.isDirectory)
        .endObject();
}

void writeItems(JsonWriter &writer, QStringView key, const QList<RecycleBinItem> &items)
{
    writer.key(key).beginArray();
    for (const RecycleBinItem &item : items)
        writeItem(writer, item);
    writer.endArray();
}

QString reasonName(UnscannedBin::Reason reason)
{
    switch (reason) {
    case UnscannedBin::Reason::Link:
        return u"link"_s;
    case UnscannedBin::Reason::NotOwn:
        return u"not-own"_s;
    case UnscannedBin::Reason::Unreadable:
        return u"unreadable"_s;
    }
    Q_UNREACHABLE();
}

void writeUnscanned(JsonWriter &writer, const QList<UnscannedBin> &bins)
{
    writer.key(u"unscanned").beginArray();
    for (const UnscannedBin &bin : bins) {
        writer.beginObject().member(u"path", bin.path).member(u"reason", reasonName(bin.reason));
        if (bin.reason == UnscannedBin::Reason::Unreadable)
            writer.member(u"error", static_cast<int>(bin.error));
        writer.endObject();
    }
    writer.endArray();
}

void writeTexts(JsonWriter &writer, QStringView key, const QStringList &texts)
{
    writer.key(key).beginArray();
    for (const QString &text : texts)
        writer.value(text);
    writer.endArray();
}

} // namespace

void writeDisk(JsonWriter &writer, const DiskInfo &disk)
{
    writer.beginObject()
        .member(u"diskNumber", disk.diskNumber)
        .member(u"devicePath", disk.devicePath)
        .member(u"model", disk.model)
        .member(u"serialNumber", disk.serialNumber)
        .decimalMember(u"sizeBytes", disk.sizeBytes)
        .member(u"bytesPerSector", disk.bytesPerSector)
        .member(u"diskType", machineName(disk.diskType))
        .member(u"busType", machineName(disk.busType))
        .member(u"isSystemDisk", disk.isSystemDisk)
        .member(u"isRemovable", disk.isRemovable)
        .key(u"partitions")
        .beginArray();
    for (const PartitionInfo &partition : disk.partitions)
        writePartition(writer, partition);
    writer.endArray().endObject();
}

void writeMethod(JsonWriter &writer, const WipeMethod &method)
{
    writer.beginObject()
        .member(u"type", method.type)
        .member(u"name", method.name)
        .member(u"description", method.description)
        .member(u"level", method.level)
        .member(u"levelName", method.levelName())
        .key(u"passes")
        .beginArray();
    for (const PassPattern &pass : method.passes) {
        writer.beginObject()
            .member(u"type", machineName(pass.type))
            .member(u"value", static_cast<int>(pass.value))
            .member(u"verify", pass.verify)
            .endObject();
    }
    writer.endArray().endObject();
}

void writeTrash(JsonWriter &writer, const RecycleBinInfo &trash)
{
    writer.beginObject();
    writeItems(writer, u"items", trash.items);
    writeTexts(writer, u"filePaths", trash.filePaths);
    writer.decimalMember(u"totalSize", trash.totalSize).member(u"fileCount", trash.fileCount);
    writeTexts(writer, u"drives", trash.drives);
    writeItems(writer, u"unrecorded", trash.unrecorded);
    writeUnscanned(writer, trash.unscanned);
    if (!trash.account.isEmpty())
        writer.member(u"account", trash.account);
    writer.endObject();
}

bool writeStoredReport(JsonWriter &writer, const QByteArray &json,
                       const std::optional<OutcomeRecord> &outcome)
{
    JsonWriter report(JsonWriter::Layout::Compact);
    if (!report.raw(json))
        return false;
    QByteArray text = report.text();
    if (outcome && text.endsWith('}')) {
        text.chop(1);
        text += (text.endsWith('{') ? "" : ",") + QByteArrayLiteral("\"annex\":") + outcome->toJson() + '}';
    }
    return writer.raw(text);
}

} // namespace cli
