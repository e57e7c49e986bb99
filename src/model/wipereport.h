#pragma once

#include "model/diskinfo.h"
#include "model/operationtype.h"
#include "model/wipemethod.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>

class JsonWriter;

/// The state of a job. Reports store the number; any other number is kept and named "Unknown".
enum class WipeStatus : qint32 {
    Pending = 0,
    Running = 1,
    Paused = 2,
    Completed = 3,
    Failed = 4,
    Cancelled = 5,
};

/// One wiped file or folder.
struct WipeItem
{
    QString path;
    bool isDirectory = false;
    quint64 size = 0; ///< bytes
    bool wiped = false;

    bool operator==(const WipeItem &) const = default;
};

/// The permanent record of one job. A plain value.
struct WipeReport
{
    Q_DECLARE_TR_FUNCTIONS(WipeReport)

public:
    QString certificateId; ///< fresh for every constructed report
    OperationType operationType = FileWipe;
    WipeMethod method;
    QDateTime startTime;
    QDateTime endTime;
    WipeStatus status = WipeStatus::Pending;
    DiskInfo disk;
    QList<WipeItem> wipeItems;
    quint64 totalSectors = 0;
    quint64 wipedSectors = 0;
    quint64 bytesWritten = 0;
    qint32 badSectors = 0;
    qint32 fileCount = 0;
    quint64 totalBytes = 0;
    bool verificationPassed = false;
    QString verificationMethod;
    qint32 verificationSampleSize = 1000;
    QString dataHash;
    QString operatorName; ///< from the environment
    QString computerName; ///< from the environment
    QString errorMessage;

    /// A new report with its own certificate id.
    WipeReport();

    /// "QVX-yyyy-MMdd-n" with today's local date and a random n from 1000 to 9998, new for every call.
    static QString newCertificateId();

    /// Indented UTF-8 text of one JSON object. 64-bit numbers are decimal strings.
    QByteArray toJson() const;

    /// Writes the same object as the next value of `writer`, in the writer's layout.
    void writeJson(JsonWriter &writer) const;

    /// Reads the scalar fields and the disk's model, serial number and size; the items and the rest of the
    /// disk keep their defaults. A missing key, or one of another type, reads as empty, 0 or false. Text that
    /// is no JSON document gives a new report.
    static WipeReport fromJson(const QByteArray &json);

    QString operationTypeName() const; ///< translated
    QString statusName() const;        ///< translated

    /// Time from start to end, or to now without an end, as in "1h 0m 5s"; empty without a start.
    QString duration() const;

    bool operator==(const WipeReport &) const = default;
};

Q_DECLARE_METATYPE(WipeStatus)
Q_DECLARE_METATYPE(WipeItem)
Q_DECLARE_METATYPE(WipeReport)
