#include "markingtranslator.h"
#include "model/jsonwriter.h"
#include "model/wipereport.h"
#include "support/filledreport.h"
#include "support/scopedvariable.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTime>
#include <QTimeZone>

#include <limits>

using namespace Qt::StringLiterals;

namespace {
/// The report after it was written and read back.
WipeReport afterRoundTrip(const WipeReport &report)
{
    WipeReport expected = report;
    expected.wipeItems.clear();
    expected.disk = DiskInfo();
    expected.disk.model = report.disk.model;
    expected.disk.serialNumber = report.disk.serialNumber;
    expected.disk.sizeBytes = report.disk.sizeBytes;
    return expected;
}

/// The result of a document without any known key.
WipeReport allMissing()
{
    WipeReport report;
    report.certificateId.clear();
    report.operationType = DiskWipe;
    report.verificationSampleSize = 0;
    report.operatorName.clear();
    report.computerName.clear();
    return report;
}

/// The filled report's JSON with one top-level value replaced.
QByteArray withValue(const QString &key, const QJsonValue &value)
{
    QJsonObject object = QJsonDocument::fromJson(filledText).object();
    object.insert(key, value);
    return QJsonDocument(object).toJson();
}

/// Compares with a fresh report, except for the certificate id, which differs with every construction.
void compareFresh(const WipeReport &report)
{
    WipeReport fresh;
    QVERIFY(report.certificateId.startsWith(u"QVX-"));
    fresh.certificateId = report.certificateId;
    QCOMPARE(report, fresh);
}

WipeReport lasting(qint64 seconds)
{
    WipeReport report;
    report.startTime = QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
    report.endTime = report.startTime.addSecs(seconds);
    return report;
}
} // namespace

class tst_WipeReport : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void operatorAndComputerComeFromTheEnvironment();
    void emptyUserNameFallsBack();
    void withoutEnvironmentTheNamesAreEmpty();
    void itemDefaults();
    void numbersAreFixed();
    void certificateIdFormAndRange();
    void everyReportGetsItsOwnCertificateId();
    void statusNames_data();
    void statusNames();
    void operationTypeNames_data();
    void operationTypeNames();
    void durations_data();
    void durations();
    void durationWithoutStartIsEmpty();
    void durationWithoutEndRunsUpToNow();
    void durationDropsFractionsOfSeconds();
    void filledReportAsText();
    void freshReportHasEmptyTimesAndArrays();
    void keysOfAFreshReportInOrder();
    void utcTimesKeepTheirZone();
    void diskNamesAreInTheUsersLanguage();
    void writeJsonFollowsTheWritersLayout();
    void roundTripKeepsTheScalarFields();
    void roundTripOfAFreshReport();
    void largestTotalBytesRoundTrips();
    void gutmannReadsBackWithItsPasses();
    void unknownMethodReadsBackAsNistWithItsNumber();
    void methodNameAndPassCountAreNotRead();
    void unknownNumbersOfStatusAndOperationSurvive();
    void textThatIsNoJsonGivesAFreshReport_data();
    void textThatIsNoJsonGivesAFreshReport();
    void emptyObjectReadsAsMissing();
    void arrayAtTheTopReadsAsMissing();
    void wrongTypesReadAsMissing();
    void numbersOutOf32BitsReadAsZero_data();
    void numbersOutOf32BitsReadAsZero();
    void quantitiesGivenAsJsonNumbersReadAsZero();
    void badDecimalStringsReadAsZero_data();
    void badDecimalStringsReadAsZero();
    void badTimesReadAsInvalid();
    void diskInfoOfAnotherTypeIsIgnored();
    void truncatedTextNeverBreaksTheReader();
    void damagedTextNeverBreaksTheReader();
    void comparesByValue();
    void travelsInAVariant();
};

void tst_WipeReport::defaults()
{
    const WipeReport report;
    QCOMPARE(report.operationType, FileWipe);
    QCOMPARE(report.method, WipeMethod::fromType(0));
    QVERIFY(!report.startTime.isValid());
    QVERIFY(!report.endTime.isValid());
    QCOMPARE(report.status, WipeStatus::Pending);
    QCOMPARE(report.disk, DiskInfo());
    QVERIFY(report.wipeItems.isEmpty());
    QCOMPARE(report.totalSectors, quint64(0));
    QCOMPARE(report.wipedSectors, quint64(0));
    QCOMPARE(report.bytesWritten, quint64(0));
    QCOMPARE(report.badSectors, 0);
    QCOMPARE(report.fileCount, 0);
    QCOMPARE(report.totalBytes, quint64(0));
    QVERIFY(!report.verificationPassed);
    QCOMPARE(report.verificationMethod, QString());
    QCOMPARE(report.verificationSampleSize, 1000);
    QCOMPARE(report.dataHash, QString());
    QCOMPARE(report.errorMessage, QString());
}

void tst_WipeReport::operatorAndComputerComeFromTheEnvironment()
{
    const ScopedVariable userName("USERNAME", "安娜");
    const ScopedVariable user("USER", "other");
    const ScopedVariable computer("COMPUTERNAME", "BENCH-7");
    const WipeReport report;
    QCOMPARE(report.operatorName, u"安娜"_s);
    QCOMPARE(report.computerName, u"BENCH-7"_s);
}

void tst_WipeReport::emptyUserNameFallsBack()
{
    const ScopedVariable user("USER", "anna");
    {
        const ScopedVariable userName("USERNAME", "");
        QCOMPARE(WipeReport().operatorName, u"anna"_s);
    }
    const ScopedVariable userName("USERNAME", QByteArray());
    QCOMPARE(WipeReport().operatorName, u"anna"_s);
}

void tst_WipeReport::withoutEnvironmentTheNamesAreEmpty()
{
    const ScopedVariable userName("USERNAME", QByteArray());
    const ScopedVariable user("USER", QByteArray());
    const ScopedVariable computer("COMPUTERNAME", QByteArray());
    const WipeReport report;
    QCOMPARE(report.operatorName, QString());
    QCOMPARE(report.computerName, QString());
}

void tst_WipeReport::itemDefaults()
{
    const WipeItem item;
    QCOMPARE(item.path, QString());
    QVERIFY(!item.isDirectory);
    QCOMPARE(item.size, quint64(0));
    QVERIFY(!item.wiped);
}

void tst_WipeReport::numbersAreFixed()
{
    QCOMPARE(qint32(WipeStatus::Pending), 0);
    QCOMPARE(qint32(WipeStatus::Running), 1);
    QCOMPARE(qint32(WipeStatus::Paused), 2);
    QCOMPARE(qint32(WipeStatus::Completed), 3);
    QCOMPARE(qint32(WipeStatus::Failed), 4);
    QCOMPARE(qint32(WipeStatus::Cancelled), 5);
    QCOMPARE(qint32(DiskWipe), 0);
    QCOMPARE(qint32(PartitionWipe), 1);
    QCOMPARE(qint32(FreeSpaceWipe), 2);
    QCOMPARE(qint32(FileWipe), 3);
}

void tst_WipeReport::certificateIdFormAndRange()
{
    static const QRegularExpression form(u"\\AQVX-(\\d{4})-(\\d{4})-(\\d{4})\\z"_s);
    int low = 9999;
    int high = 0;
    for (int draw = 0; draw < 100000; ++draw) {
        const QDate before = QDate::currentDate();
        const QString id = WipeReport::newCertificateId();
        const QDate after = QDate::currentDate();
        const QRegularExpressionMatch match = form.match(id);
        QVERIFY2(match.hasMatch(), qPrintable(id));
        const QString day = match.captured(1) + match.captured(2);
        QVERIFY(day == before.toString(u"yyyyMMdd") || day == after.toString(u"yyyyMMdd"));
        const int number = match.captured(3).toInt();
        QVERIFY2(number >= 1000 && number <= 9998, qPrintable(id));
        low = qMin(low, number);
        high = qMax(high, number);
    }
    // The chance that 100000 fair draws miss the two numbers at an end of the range is below 1 in 10^9.
    QVERIFY2(low <= 1001, qPrintable(QString::number(low)));
    QVERIFY2(high >= 9997, qPrintable(QString::number(high)));
}

void tst_WipeReport::everyReportGetsItsOwnCertificateId()
{
    QSet<QString> ids;
    for (int i = 0; i < 100; ++i)
        ids.insert(WipeReport().certificateId);
    QVERIFY2(ids.size() > 80, qPrintable(QString::number(ids.size()))); // a few may coincide by chance
    const WipeReport report;
    const WipeReport copy = report;
    QCOMPARE(copy.certificateId, report.certificateId);
}

void tst_WipeReport::statusNames_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0 << u"Pending"_s;
    QTest::newRow("1") << 1 << u"Running"_s;
    QTest::newRow("2") << 2 << u"Paused"_s;
    QTest::newRow("3") << 3 << u"Completed"_s;
    QTest::newRow("4") << 4 << u"Failed"_s;
    QTest::newRow("5") << 5 << u"Cancelled"_s;
    QTest::newRow("6") << 6 << u"Unknown"_s;
    QTest::newRow("7") << 7 << u"Unknown"_s;
    QTest::newRow("negative") << -1 << u"Unknown"_s;
}

void tst_WipeReport::statusNames()
{
    QFETCH(int, status);
    QFETCH(QString, name);
    WipeReport report;
    report.status = WipeStatus(status);
    QCOMPARE(report.statusName(), name);
    const MarkingTranslator translator;
    QCOMPARE(report.statusName(), u"<WipeReport>"_s + name);
}

void tst_WipeReport::operationTypeNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0 << u"Disk Wipe"_s;
    QTest::newRow("1") << 1 << u"Partition Wipe"_s;
    QTest::newRow("2") << 2 << u"Free Space Wipe"_s;
    QTest::newRow("3") << 3 << u"File Wipe"_s;
    QTest::newRow("4") << 4 << u"Unknown"_s;
    QTest::newRow("negative") << -1 << u"Unknown"_s;
}

void tst_WipeReport::operationTypeNames()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    WipeReport report;
    report.operationType = OperationType(type);
    QCOMPARE(report.operationTypeName(), name);
    const MarkingTranslator translator;
    QCOMPARE(report.operationTypeName(), u"<WipeReport>"_s + name);
}

void tst_WipeReport::durations_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << qint64(0) << u"0s"_s;
    QTest::newRow("under a minute") << qint64(59) << u"59s"_s;
    QTest::newRow("a minute") << qint64(60) << u"1m 0s"_s;
    QTest::newRow("a minute and a second") << qint64(61) << u"1m 1s"_s;
    QTest::newRow("under an hour") << qint64(3599) << u"59m 59s"_s;
    QTest::newRow("an hour") << qint64(3600) << u"1h 0m 0s"_s;
    QTest::newRow("all parts") << qint64(3600 * 2 + 60 * 3 + 4) << u"2h 3m 4s"_s;
    QTest::newRow("days stay hours") << qint64(100 * 3600 + 59) << u"100h 0m 59s"_s;
    QTest::newRow("an end before the start") << qint64(-5) << u"-5s"_s;
}

void tst_WipeReport::durations()
{
    QFETCH(qint64, seconds);
    QTEST(lasting(seconds).duration(), "text");
    const MarkingTranslator translator; // the formats are not translated
    QTEST(lasting(seconds).duration(), "text");
}

void tst_WipeReport::durationWithoutStartIsEmpty()
{
    WipeReport report = lasting(5);
    report.startTime = QDateTime();
    QCOMPARE(report.duration(), QString());
    QCOMPARE(WipeReport().duration(), QString());
}

void tst_WipeReport::durationWithoutEndRunsUpToNow()
{
    WipeReport report;
    report.startTime = QDateTime::currentDateTime().addSecs(-2 * 3600);
    const QString text = report.duration();
    static const QRegularExpression form(u"\\A2h \\d+m \\d+s\\z"_s);
    QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
}

void tst_WipeReport::durationDropsFractionsOfSeconds()
{
    WipeReport report = lasting(0);
    report.endTime = report.startTime.addMSecs(59999);
    QCOMPARE(report.duration(), u"59s"_s);
}

void tst_WipeReport::filledReportAsText()
{
    QCOMPARE(QString::fromUtf8(filledReport().toJson()), QString::fromUtf8(filledText));
    QCOMPARE(filledReport().toJson(), filledText);
}

void tst_WipeReport::freshReportHasEmptyTimesAndArrays()
{
    const QByteArray json = WipeReport().toJson();
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    QCOMPARE(object.value(u"startTime"_s), QJsonValue(QString()));
    QCOMPARE(object.value(u"endTime"_s), QJsonValue(QString()));
    QCOMPARE(object.value(u"wipeItems"_s), QJsonValue(QJsonArray()));
    QVERIFY(json.contains("        \"partitions\": [\n        ]\n    },\n    \"wipeItems\": [\n    ],\n"));
}

void tst_WipeReport::keysOfAFreshReportInOrder()
{
    static const QRegularExpression topLevelKey(u"^    \"(\\w+)\":"_s, QRegularExpression::MultilineOption);
    QStringList keys;
    auto matches = topLevelKey.globalMatch(QString::fromUtf8(WipeReport().toJson()));
    while (matches.hasNext())
        keys.append(matches.next().captured(1));
    QCOMPARE(keys, QStringList({u"certificateId"_s,
                                u"operationType"_s,
                                u"methodName"_s,
                                u"methodType"_s,
                                u"passCount"_s,
                                u"startTime"_s,
                                u"endTime"_s,
                                u"status"_s,
                                u"diskInfo"_s,
                                u"wipeItems"_s,
                                u"totalSectors"_s,
                                u"wipedSectors"_s,
                                u"bytesWritten"_s,
                                u"totalBytes"_s,
                                u"badSectors"_s,
                                u"fileCount"_s,
                                u"verificationPassed"_s,
                                u"verificationMethod"_s,
                                u"verificationSampleSize"_s,
                                u"dataHash"_s,
                                u"operatorName"_s,
                                u"computerName"_s,
                                u"errorMessage"_s}));
}

void tst_WipeReport::utcTimesKeepTheirZone()
{
    WipeReport report = lasting(1);
    QVERIFY(report.toJson().contains("\"startTime\": \"2026-01-01T00:00:00Z\""));
    const WipeReport read = WipeReport::fromJson(report.toJson());
    QCOMPARE(read.startTime, report.startTime);
    QCOMPARE(read.endTime, report.endTime);
}

void tst_WipeReport::diskNamesAreInTheUsersLanguage()
{
    WipeReport report;
    report.disk.diskType = DiskType::HDD;
    report.disk.busType = BusType::USB;
    const MarkingTranslator translator;
    const QJsonObject disk =
        QJsonDocument::fromJson(report.toJson()).object().value(u"diskInfo"_s).toObject();
    QCOMPARE(disk.value(u"diskType"_s).toString(), u"<QObject>机械硬盘"_s);
    QCOMPARE(disk.value(u"busType"_s).toString(), u"USB"_s);
}

void tst_WipeReport::writeJsonFollowsTheWritersLayout()
{
    JsonWriter writer(JsonWriter::Layout::Compact);
    writer.beginObject().key(u"report");
    filledReport().writeJson(writer);
    writer.endObject();
    const QByteArray line = writer.text();
    QVERIFY(!line.contains('\n'));
    QVERIFY(line.startsWith(R"({"report":{"certificateId":"QVX-2026-0305-4821","operationType":0,)"));
    QCOMPARE(QJsonDocument::fromJson(line).object().value(u"report"_s).toObject(),
             QJsonDocument::fromJson(filledText).object());
}

void tst_WipeReport::roundTripKeepsTheScalarFields()
{
    const WipeReport report = filledReport();
    const WipeReport read = WipeReport::fromJson(report.toJson());
    QCOMPARE(read, afterRoundTrip(report));
    QCOMPARE(read.disk.model, report.disk.model);
    QCOMPARE(read.disk.diskNumber, -1);
    QCOMPARE(read.disk.bytesPerSector, 512);
    QCOMPARE(read.disk.diskType, DiskType::Unknown);
    QCOMPARE(read.disk.busType, BusType::Unknown);
    QVERIFY(read.disk.partitions.isEmpty());
    QVERIFY(read.wipeItems.isEmpty());
}

void tst_WipeReport::roundTripOfAFreshReport()
{
    const WipeReport report;
    QCOMPARE(WipeReport::fromJson(report.toJson()), report);
}

void tst_WipeReport::largestTotalBytesRoundTrips()
{
    WipeReport report;
    report.totalBytes = std::numeric_limits<quint64>::max();
    QVERIFY(report.toJson().contains("\"totalBytes\": \"18446744073709551615\""));
    QCOMPARE(WipeReport::fromJson(report.toJson()).totalBytes, std::numeric_limits<quint64>::max());
}

void tst_WipeReport::gutmannReadsBackWithItsPasses()
{
    WipeReport report;
    report.method = WipeMethod::fromType(4);
    const WipeReport read = WipeReport::fromJson(report.toJson());
    QCOMPARE(read.method.passCount(), 35);
    QCOMPARE(read.method, WipeMethod::fromType(4));
}

void tst_WipeReport::unknownMethodReadsBackAsNistWithItsNumber()
{
    WipeReport report;
    report.method = WipeMethod::fromType(9);
    const WipeReport read = WipeReport::fromJson(report.toJson());
    QCOMPARE(read.method.name, u"NIST 800-88"_s);
    QCOMPARE(read.method.passCount(), 1);
    QCOMPARE(read.method.type, 9);
}

void tst_WipeReport::methodNameAndPassCountAreNotRead()
{
    WipeReport report;
    report.method.name = u"invented"_s;
    report.method.passes.clear();
    QVERIFY(report.toJson().contains("\"methodName\": \"invented\""));
    QVERIFY(report.toJson().contains("\"passCount\": 0"));
    QCOMPARE(WipeReport::fromJson(report.toJson()).method, WipeMethod::fromType(0));
}

void tst_WipeReport::unknownNumbersOfStatusAndOperationSurvive()
{
    WipeReport report;
    report.status = WipeStatus(7);
    report.operationType = OperationType(9);
    const WipeReport read = WipeReport::fromJson(report.toJson());
    QCOMPARE(qint32(read.status), 7);
    QCOMPARE(qint32(read.operationType), 9);
}

void tst_WipeReport::textThatIsNoJsonGivesAFreshReport_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("words") << QByteArray("this is not JSON");
    QTest::newRow("scalar") << QByteArray("42");
    QTest::newRow("cut off") << filledText.first(filledText.size() - 3);
    QTest::newRow("rubbish behind it") << filledText + "}";
    QTest::newRow("single quotes") << QByteArray("{'certificateId': 'x'}");
    QTest::newRow("binary") << QByteArray("\x00\xFF\x80\x7F{", 5);
    QTest::newRow("no UTF-8") << QByteArray("{\"certificateId\": \"\xFF\"}");
    QTest::newRow("nested too deep") << QByteArray(100000, '[');
}

void tst_WipeReport::textThatIsNoJsonGivesAFreshReport()
{
    QFETCH(QByteArray, text);
    const QString before = WipeReport().certificateId;
    const WipeReport report = WipeReport::fromJson(text);
    compareFresh(report);
    QCOMPARE(report.status, WipeStatus::Pending);
    QCOMPARE(report.operationType, FileWipe);
    QVERIFY(!before.isEmpty() && report.certificateId.size() == before.size());
}

void tst_WipeReport::emptyObjectReadsAsMissing()
{
    QCOMPARE(WipeReport::fromJson("{}"), allMissing());
}

void tst_WipeReport::arrayAtTheTopReadsAsMissing()
{
    QCOMPARE(WipeReport::fromJson("[]"), allMissing());
    QCOMPARE(WipeReport::fromJson("[" + filledText + "]"), allMissing());
}

void tst_WipeReport::wrongTypesReadAsMissing()
{
    const QJsonObject good = QJsonDocument::fromJson(filledText).object();
    const QList<QJsonValue> values{QJsonValue(), true, 5, u"text"_s, QJsonArray{1}, QJsonObject{{u"a"_s, 1}}};
    for (const QJsonValue &value : values) {
        QJsonObject bad;
        for (const QString &key : good.keys()) {
            if (good.value(key).type() != value.type())
                bad.insert(key, value);
        }
        QCOMPARE(WipeReport::fromJson(QJsonDocument(bad).toJson()), allMissing());
    }
}

void tst_WipeReport::numbersOutOf32BitsReadAsZero_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("above") << 2147483648.0;
    QTest::newRow("below") << -2147483649.0;
    QTest::newRow("64 bits") << 9007199254740993.0;
    QTest::newRow("huge") << 1e300;
    QTest::newRow("not whole") << 1.5;
}

void tst_WipeReport::numbersOutOf32BitsReadAsZero()
{
    QFETCH(double, number);
    const auto read = [number](const QString &key) { return WipeReport::fromJson(withValue(key, number)); };
    QCOMPARE(qint32(read(u"operationType"_s).operationType), 0);
    QCOMPARE(read(u"methodType"_s).method, WipeMethod::fromType(0));
    QCOMPARE(qint32(read(u"status"_s).status), 0);
    QCOMPARE(read(u"badSectors"_s).badSectors, 0);
    QCOMPARE(read(u"fileCount"_s).fileCount, 0);
    QCOMPARE(read(u"verificationSampleSize"_s).verificationSampleSize, 0);
}

void tst_WipeReport::quantitiesGivenAsJsonNumbersReadAsZero()
{
    const auto read = [](const QString &key) { return WipeReport::fromJson(withValue(key, 4096)); };
    QCOMPARE(read(u"totalSectors"_s).totalSectors, quint64(0));
    QCOMPARE(read(u"wipedSectors"_s).wipedSectors, quint64(0));
    QCOMPARE(read(u"bytesWritten"_s).bytesWritten, quint64(0));
    QCOMPARE(read(u"totalBytes"_s).totalBytes, quint64(0));
    QCOMPARE(WipeReport::fromJson(R"({"diskInfo": {"totalSize": 4096}})").disk.sizeBytes, qint64(0));
}

void tst_WipeReport::badDecimalStringsReadAsZero_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("words") << u"many"_s;
    QTest::newRow("negative") << u"-1"_s;
    QTest::newRow("one more than fits") << u"18446744073709551616"_s;
    QTest::newRow("hexadecimal") << u"0x10"_s;
    QTest::newRow("fraction") << u"1.5"_s;
    QTest::newRow("exponent") << u"1e3"_s;
    QTest::newRow("something behind it") << u"12 B"_s;
}

void tst_WipeReport::badDecimalStringsReadAsZero()
{
    QFETCH(QString, text);
    const auto read = [&text](const QString &key) { return WipeReport::fromJson(withValue(key, text)); };
    QCOMPARE(read(u"totalSectors"_s).totalSectors, quint64(0));
    QCOMPARE(read(u"wipedSectors"_s).wipedSectors, quint64(0));
    QCOMPARE(read(u"bytesWritten"_s).bytesWritten, quint64(0));
    QCOMPARE(read(u"totalBytes"_s).totalBytes, quint64(0));
}

void tst_WipeReport::badTimesReadAsInvalid()
{
    for (const QString &text : {u""_s, u"yesterday"_s, u"2026-13-05T14:07:09"_s, u"05.03.2026 14:07"_s}) {
        QVERIFY(!WipeReport::fromJson(withValue(u"startTime"_s, text)).startTime.isValid());
        QVERIFY(!WipeReport::fromJson(withValue(u"endTime"_s, text)).endTime.isValid());
    }
}

void tst_WipeReport::diskInfoOfAnotherTypeIsIgnored()
{
    WipeReport expected = afterRoundTrip(filledReport());
    expected.disk = DiskInfo();
    for (const QJsonValue &value : QList<QJsonValue>{QJsonArray{1}, u"disk"_s, 3, QJsonValue()})
        QCOMPARE(WipeReport::fromJson(withValue(u"diskInfo"_s, value)), expected);
}

void tst_WipeReport::truncatedTextNeverBreaksTheReader()
{
    const QByteArray complete = filledText.trimmed();
    for (qsizetype size = 0; size < complete.size(); ++size)
        compareFresh(WipeReport::fromJson(complete.first(size)));
}

void tst_WipeReport::damagedTextNeverBreaksTheReader()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        QByteArray text = filledText;
        for (int hit = 0; hit < 3; ++hit)
            text[random.bounded(int(text.size()))] = char(random.bounded(256));
        const WipeReport report = WipeReport::fromJson(text);
        // Everything read can be written and read again without change.
        QCOMPARE(WipeReport::fromJson(report.toJson()), report);
    }
}

void tst_WipeReport::comparesByValue()
{
    QCOMPARE(filledReport(), filledReport());
    WipeReport other = filledReport();
    other.wipeItems[1].wiped = true;
    QVERIFY(other != filledReport());
    other = filledReport();
    other.disk.partitions[0].freeBytes = 0;
    QVERIFY(other != filledReport());
}

void tst_WipeReport::travelsInAVariant()
{
    QCOMPARE(QVariant::fromValue(filledReport()).value<WipeReport>(), filledReport());
    QVERIFY(QMetaType::fromType<WipeReport>().isEqualityComparable());
}

QUORVEX_SUITE(tst_WipeReport, QCoreApplication)
#include "tst_wipereport.moc"
