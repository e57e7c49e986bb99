#include "model/jsonwriter.h"
#include "model/wipereport.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {
void writePartition(JsonWriter &writer, const PartitionInfo &partition)
{
    writer.beginObject()
        .member(u"driveLetter", partition.driveLetter)
        .member(u"fileSystem", partition.fileSystem)
        .decimalMember(u"totalSize", partition.totalBytes)
        .decimalMember(u"freeSpace", partition.freeBytes)
        .endObject();
}

void writeDisk(JsonWriter &writer, const DiskInfo &disk)
{
    writer.beginObject()
        .member(u"model", disk.model)
        .member(u"serialNumber", disk.serialNumber)
        .decimalMember(u"totalSize", disk.sizeBytes)
        .member(u"diskType", disk.diskTypeName())
        .member(u"busType", disk.busTypeName())
        .key(u"partitions")
        .beginArray();
    for (const PartitionInfo &partition : disk.partitions)
        writePartition(writer, partition);
    writer.endArray().endObject();
}

void writeItem(JsonWriter &writer, const WipeItem &item)
{
    writer.beginObject()
        .member(u"path", item.path)
        .member(u"isDirectory", item.isDirectory)
        .decimalMember(u"size", item.size)
        .member(u"wiped", item.wiped)
        .endObject();
}

/// Reads the fields of one object; a missing key or another type reads as empty, 0 or false.
class FieldReader
{
public:
    explicit FieldReader(const QJsonObject &object)
        : m_object(object)
    {}

    QString text(QStringView key) const { return m_object.value(key).toString(); }
    qint32 number(QStringView key) const { return m_object.value(key).toInt(); }
    bool truth(QStringView key) const { return m_object.value(key).toBool(); }
    quint64 decimal(QStringView key) const { return text(key).toULongLong(); }
    qint64 signedDecimal(QStringView key) const { return text(key).toLongLong(); }
    QDateTime time(QStringView key) const { return QDateTime::fromString(text(key), Qt::ISODate); }
    FieldReader object(QStringView key) const { return FieldReader(m_object.value(key).toObject()); }

private:
    QJsonObject m_object;
};
} // namespace

QByteArray WipeReport::toJson() const
{
    JsonWriter writer(JsonWriter::Layout::Indented);
    writeJson(writer);
    return writer.text();
}

void WipeReport::writeJson(JsonWriter &writer) const
{
    writer.beginObject()
        .member(u"certificateId", certificateId)
        .member(u"operationType", static_cast<qint32>(operationType))
        .member(u"methodName", method.name)
        .member(u"methodType", method.type)
        .member(u"passCount", method.passCount())
        .member(u"startTime", startTime.toString(Qt::ISODate))
        .member(u"endTime", endTime.toString(Qt::ISODate))
        .member(u"status", static_cast<qint32>(status));
    writer.key(u"diskInfo");
    writeDisk(writer, disk);
    writer.key(u"wipeItems").beginArray();
    for (const WipeItem &item : wipeItems)
        writeItem(writer, item);
    writer.endArray()
        .decimalMember(u"totalSectors", totalSectors)
        .decimalMember(u"wipedSectors", wipedSectors)
        .decimalMember(u"bytesWritten", bytesWritten)
        .decimalMember(u"totalBytes", totalBytes)
        .member(u"badSectors", badSectors)
        .member(u"fileCount", fileCount)
        .member(u"verificationPassed", verificationPassed)
        .member(u"verificationMethod", verificationMethod)
        .member(u"verificationSampleSize", verificationSampleSize)
        .member(u"dataHash", dataHash)
        .member(u"operatorName", operatorName)
        .member(u"computerName", computerName)
        .member(u"errorMessage", errorMessage)
        .endObject();
}

WipeReport WipeReport::fromJson(const QByteArray &json)
{
    WipeReport report;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (document.isNull())
        return report;

    // For an array the object is empty, so all fields read as missing.
    const FieldReader fields(document.object());
    report.certificateId = fields.text(u"certificateId");
    report.operationType = static_cast<OperationType>(fields.number(u"operationType"));
    report.method = WipeMethod::fromType(fields.number(u"methodType"));
    report.startTime = fields.time(u"startTime");
    report.endTime = fields.time(u"endTime");
    report.status = static_cast<WipeStatus>(fields.number(u"status"));
    const FieldReader diskFields = fields.object(u"diskInfo");
    report.disk.model = diskFields.text(u"model");
    report.disk.serialNumber = diskFields.text(u"serialNumber");
    report.disk.sizeBytes = diskFields.signedDecimal(u"totalSize");
    report.totalSectors = fields.decimal(u"totalSectors");
    report.wipedSectors = fields.decimal(u"wipedSectors");
    report.bytesWritten = fields.decimal(u"bytesWritten");
    report.totalBytes = fields.decimal(u"totalBytes");
    report.badSectors = fields.number(u"badSectors");
    report.fileCount = fields.number(u"fileCount");
    report.verificationPassed = fields.truth(u"verificationPassed");
    report.verificationMethod = fields.text(u"verificationMethod");
    report.verificationSampleSize = fields.number(u"verificationSampleSize");
    report.dataHash = fields.text(u"dataHash");
    report.operatorName = fields.text(u"operatorName");
    report.computerName = fields.text(u"computerName");
    report.errorMessage = fields.text(u"errorMessage");
    return report;
}
