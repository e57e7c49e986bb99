#include "support/filledreport.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <limits>

DiskInfo filledDisk()
{
    using namespace Qt::StringLiterals;

    DiskInfo disk;
    disk.diskNumber = 2;
    disk.devicePath = u"/dev/sdc"_s;
    disk.model = u"Contoso \"Fast\" SSD"_s;
    disk.serialNumber = u"S\\1\t2"_s;
    disk.sizeBytes = 1000204886016;
    disk.totalSectors = 1953525168;
    disk.diskType = DiskType::SSD;
    disk.busType = BusType::SATA;
    PartitionInfo first;
    first.driveLetter = u"E:"_s;
    first.label = u"not written"_s;
    first.fileSystem = u"NTFS"_s;
    first.totalBytes = 500000000000;
    first.freeBytes = 123456789012;
    disk.addPartition(first);
    PartitionInfo second;
    second.driveLetter = u"/media/数据"_s;
    second.fileSystem = u"ext4"_s;
    disk.addPartition(second);
    return disk;
}

WipeReport filledReport()
{
    using namespace Qt::StringLiterals;

    WipeReport report;
    report.certificateId = u"QVX-2026-0305-4821"_s;
    report.operationType = DiskWipe;
    report.method = WipeMethod::fromType(WipeMethod::Dod522022M);
    report.startTime = QDateTime(QDate(2026, 3, 5), QTime(14, 7, 9));
    report.endTime = QDateTime(QDate(2026, 3, 5), QTime(16, 0, 0));
    report.status = WipeStatus::Completed;
    report.disk = filledDisk();
    report.wipeItems = {{u"/tmp/a b"_s, true, 0, true},
                        {u"/tmp/\U0001F4BE"_s, false, std::numeric_limits<quint64>::max(), false}};
    report.totalSectors = 1953525168;
    report.wipedSectors = 1953525160;
    report.bytesWritten = 7001434202112;
    report.badSectors = 8;
    report.fileCount = 2;
    report.totalBytes = std::numeric_limits<quint64>::max();
    report.verificationPassed = true;
    report.verificationMethod = u"random sampling, 1000 sectors"_s;
    report.verificationSampleSize = 999;
    report.dataHash = u"e3b0c442"_s;
    report.operatorName = u"anna"_s;
    report.computerName = u"BENCH-7"_s;
    report.errorMessage = u"line 1\nline 2"_s;
    return report;
}

const QByteArray filledText = R"({
    "certificateId": "QVX-2026-0305-4821",
    "operationType": 0,
    "methodName": "DoD 5220.22-M",
    "methodType": 2,
    "passCount": 7,
    "startTime": "2026-03-05T14:07:09",
    "endTime": "2026-03-05T16:00:00",
    "status": 3,
    "diskInfo": {
        "model": "Contoso \"Fast\" SSD",
        "serialNumber": "S\\1\t2",
        "totalSize": "1000204886016",
        "diskType": "固态硬盘",
        "busType": "SATA",
        "partitions": [
            {
                "driveLetter": "E:",
                "fileSystem": "NTFS",
                "totalSize": "500000000000",
                "freeSpace": "123456789012"
            },
            {
                "driveLetter": "/media/数据",
                "fileSystem": "ext4",
                "totalSize": "0",
                "freeSpace": "0"
            }
        ]
    },
    "wipeItems": [
        {
            "path": "/tmp/a b",
            "isDirectory": true,
            "size": "0",
            "wiped": true
        },
        {
            "path": "/tmp/💾",
            "isDirectory": false,
            "size": "18446744073709551615",
            "wiped": false
        }
    ],
    "totalSectors": "1953525168",
    "wipedSectors": "1953525160",
    "bytesWritten": "7001434202112",
    "totalBytes": "18446744073709551615",
    "badSectors": 8,
    "fileCount": 2,
    "verificationPassed": true,
    "verificationMethod": "random sampling, 1000 sectors",
    "verificationSampleSize": 999,
    "dataHash": "e3b0c442",
    "operatorName": "anna",
    "computerName": "BENCH-7",
    "errorMessage": "line 1\nline 2"
}
)";
