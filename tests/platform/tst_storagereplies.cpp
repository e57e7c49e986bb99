#include "platform/storagereplies.h"
#include "support/suite.h"

#include <QByteArrayList>
#include <QDebug>
#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using platform::DeviceDescriptor;
using platform::Extent;

namespace {
// The answer of a SATA drive behind a Windows storage stack: product and serial number with the padding of
// their ATA fields, a vendor offset of 0, and a revision in between.
const QByteArray sataReply =
    QByteArray::fromHex("28000000" // Version
                        "66000000" // Size: 102
                        "00000001" // DeviceType, modifier, RemovableMedia, CommandQueueing
                        "00000000" // VendorIdOffset
                        "24000000" // ProductIdOffset: 36
                        "4D000000" // ProductRevisionOffset: 77
                        "52000000" // SerialNumberOffset: 82
                        "0B000000" // BusType: SATA
                        "00000000") +
    "ST500LM021-1KJ152                       " + QByteArray(1, '\0') + "0002" + QByteArray(1, '\0') +
    "            W621ABCD";

// One extent on drive 3 from 1 MiB, and one on drive 1. The padding is deliberately not zero.
const QByteArray twoExtents = QByteArray::fromHex("02000000AAAAAAAA"
                                                  "03000000BBBBBBBB00001000000000000000004000000000"
                                                  "01000000CCCCCCCC0000100000000000000000A0E8000000");

// Four designators of an SSD: the port's NAA name, the maker's text, the unit's EUI-64, the unit's NAA name.
const QByteArray fourIdentifiers = QByteArray::fromHex("88000000" // Version
                                                       "8C000000" // Size: 140
                                                       "04000000" // NumberOfIdentifiers
                                                       "01000000"
                                                       "03000000" // binary, NAA
                                                       "0800"
                                                       "1800"
                                                       "01000000" // 8 bytes, port
                                                       "50000000000000AA"
                                                       "02000000"
                                                       "01000000" // ASCII, maker's
                                                       "0400"
                                                       "1400"
                                                       "00000000" // 4 bytes, unit
                                                       "41434D45"
                                                       "01000000"
                                                       "02000000" // binary, EUI-64
                                                       "0800"
                                                       "1800"
                                                       "00000000" // 8 bytes, unit
                                                       "0025385B71B0A1C2"
                                                       "01000000"
                                                       "03000000" // binary, NAA
                                                       "0800"
                                                       "0000"
                                                       "00000000" // 8 bytes, unit, the last
                                                       "5000C500A1B2C3D4");
constexpr int FirstIdentifier = 12;
constexpr int EuiIdentifier = 12 + 24 + 20;
constexpr int NaaIdentifier = EuiIdentifier + 24;

// The GUIDs of partition types in the byte order of a GPT.
constexpr const char *EfiSystem = "28732AC11FF8D211BA4B00A0C93EC93B";
constexpr const char *Reserved = "16E3C9E35C0BB84D817DF92DF00215AE";
constexpr const char *BasicData = "A2A0D0EBE5B9334487C068B6B72699C7";
constexpr const char *StorageSpaces = "8FAF5CE780F6EE4CAFA3B001E56EFC2D";
constexpr const char *LdmMetadata = "AAC808588F7EE04285D2E1E90434CFB3";
constexpr const char *LdmData = "A0609BAF3114624FBC683311714A69AD";

// An entry of a partition table in a reply; the remaining fields hold arbitrary values.
QByteArray gpt(const QByteArray &type)
{
    return QByteArray(32, '\x42') + QByteArray::fromHex(type) + QByteArray(96, '\x42');
}

QByteArray mbr(quint8 type)
{
    return QByteArray(32, '\x42') + char(type) + QByteArray(111, '\x42');
}

constexpr int ProductIdOffset = 16;
constexpr int SerialNumberOffset = 24;
constexpr int FixedPart = 36;

void putOffset(QByteArray &reply, int field, quint32 offset)
{
    for (int i = 0; i < 4; ++i)
        reply[field + i] = char(uchar(offset >> (8 * i)));
}

QByteArray layout(quint32 style, quint32 count, const QByteArrayList &partitions)
{
    QByteArray reply(48, '\x42');
    putOffset(reply, 0, style);
    putOffset(reply, 4, count);
    return reply + partitions.join();
}

// A reply whose product string extends to the end of the reply.
QByteArray replyWithProduct(const QByteArray &product)
{
    QByteArray reply(FixedPart, '\0');
    putOffset(reply, ProductIdOffset, FixedPart);
    return reply + product;
}

// The decoders get memory of exactly the reply's length, so that the address sanitizer reports an overrun of
// a single byte.
template <typename Decoder>
auto decodeExactly(Decoder decoder, const QByteArray &reply)
{
    const std::vector<char> memory(reply.begin(), reply.end());
    return decoder(QByteArray::fromRawData(memory.data(), qsizetype(memory.size())));
}

bool isClean(const QString &text)
{
    return text == text.trimmed() && std::ranges::all_of(text, [](QChar character) {
               return character.isPrint() && character.unicode() <= 0xFF;
           });
}
} // namespace

class tst_StorageReplies : public QObject
{
    Q_OBJECT

private slots:
    void volumeOnOneDriveOnly();
    void aSataReplyGivesTrimmedTexts();
    void everyShorterReplyIsSafe();
    void anOffsetOf0MeansNoText();
    void anOffsetOutsideTheReplyMeansNoText_data();
    void anOffsetOutsideTheReplyMeansNoText();
    void anOffsetAtTheLastByteReadsOneCharacter();
    void aTextWithoutTerminatorEndsWithTheReply();
    void aTextEndsAtItsTerminator();
    void nonPrintingCharactersAreRemoved_data();
    void nonPrintingCharactersAreRemoved();
    void bytesAreLatin1();
    void anyValueButZeroMeansRemovable();
    void everyBusNumberIsCarried();
    void whatIsEncodedDecodesToTheSame_data();
    void whatIsEncodedDecodesToTheSame();
    void encodingReplacesWhatLatin1DoesNotHave();
    void anEncodedReplyHasTheLayoutOfTheStorageStack();

    void extentsAreReadPastThePadding();
    void everyShorterExtentReplyIsSafe();
    void aCountBeyondTheReplyIsCut();
    void aCountOf0LeavesRoomUnread();
    void aDriveNumberTooLargeIsNoDrive();
    void encodedExtentsDecodeToTheSame();
    void encodedExtentsHaveTheLayoutOfTheStorageStack();

    void theNaaNameOfTheUnitComesFirst();
    void theEuiNameServesWithoutANaaName();
    void onlyABinaryNameOfTheUnitCounts_data();
    void onlyABinaryNameOfTheUnitCounts();
    void everyShorterIdentifierReplyIsSafe();
    void identifiersBehindTheCountOrTheLastAreNotRead();

    void partitionsNameWhatIsBuiltOnTheDrive_data();
    void partitionsNameWhatIsBuiltOnTheDrive();
    void aLayoutThatCountsMoreThanItHoldsIsNotWhole();
    void everyShorterLayoutReplyIsSafe();
    void theSameDriveHasSerialNumberAndSize_data();
    void theSameDriveHasSerialNumberAndSize();

    void randomRepliesAreSafe();
};

void tst_StorageReplies::aSataReplyGivesTrimmedTexts()
{
    const DeviceDescriptor descriptor = platform::decodeDeviceDescriptor(sataReply);
    QCOMPARE(sataReply.size(), 102);
    QCOMPARE(descriptor.productId, u"ST500LM021-1KJ152"_s);
    QCOMPARE(descriptor.serialNumber, u"W621ABCD"_s);
    QCOMPARE(descriptor.removableMedia, false);
    QCOMPARE(descriptor.busType, 11u);
}

void tst_StorageReplies::everyShorterReplyIsSafe()
{
    for (qsizetype length = 0; length < sataReply.size(); ++length) {
        const DeviceDescriptor descriptor =
            decodeExactly(platform::decodeDeviceDescriptor, sataReply.first(length));
        if (length < FixedPart) {
            QCOMPARE(descriptor.busType, 0u);
            QVERIFY(descriptor.productId.isEmpty());
        } else {
            QCOMPARE(descriptor.busType, 11u);
            QVERIFY(u"ST500LM021-1KJ152"_s.startsWith(descriptor.productId));
        }
        QVERIFY(u"W621ABCD"_s.startsWith(descriptor.serialNumber));
        QVERIFY(descriptor.serialNumber.size() < 8);
    }
}

void tst_StorageReplies::anOffsetOf0MeansNoText()
{
    QByteArray reply = sataReply;
    putOffset(reply, ProductIdOffset, 0);
    putOffset(reply, SerialNumberOffset, 0);
    const DeviceDescriptor descriptor = platform::decodeDeviceDescriptor(reply);
    QVERIFY(descriptor.productId.isEmpty());
    QVERIFY(descriptor.serialNumber.isEmpty());
    QCOMPARE(descriptor.busType, 11u);
}

void tst_StorageReplies::anOffsetOutsideTheReplyMeansNoText_data()
{
    QTest::addColumn<quint32>("offset");
    QTest::newRow("the end") << 102u;
    QTest::newRow("one beyond the end") << 103u;
    QTest::newRow("2 GiB - 1") << 0x7FFFFFFFu;
    QTest::newRow("2 GiB") << 0x80000000u;
    QTest::newRow("wraps to the start with the fixed part") << 0xFFFFFFDCu;
    QTest::newRow("all ones") << 0xFFFFFFFFu;
}

void tst_StorageReplies::anOffsetOutsideTheReplyMeansNoText()
{
    QFETCH(quint32, offset);
    QByteArray reply = sataReply;
    putOffset(reply, ProductIdOffset, offset);
    putOffset(reply, SerialNumberOffset, offset);
    const DeviceDescriptor descriptor = decodeExactly(platform::decodeDeviceDescriptor, reply);
    QCOMPARE(descriptor.productId, QString());
    QCOMPARE(descriptor.serialNumber, QString());
}

void tst_StorageReplies::anOffsetAtTheLastByteReadsOneCharacter()
{
    QByteArray reply = sataReply;
    putOffset(reply, ProductIdOffset, 101);
    QCOMPARE(decodeExactly(platform::decodeDeviceDescriptor, reply).productId, u"D"_s);
}

void tst_StorageReplies::aTextWithoutTerminatorEndsWithTheReply()
{
    QCOMPARE(decodeExactly(platform::decodeDeviceDescriptor, replyWithProduct("Disk")).productId, u"Disk"_s);
}

void tst_StorageReplies::aTextEndsAtItsTerminator()
{
    const QByteArray product = QByteArray("Disk") + '\0' + "rest";
    QCOMPARE(platform::decodeDeviceDescriptor(replyWithProduct(product)).productId, u"Disk"_s);
}

void tst_StorageReplies::nonPrintingCharactersAreRemoved_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("escape sequence") << QByteArray("Di\x1b[2Jsk") << u"Di[2Jsk"_s;
    QTest::newRow("line feed and tab") << QByteArray("A\n\tB") << u"AB"_s;
    QTest::newRow("DEL") << QByteArray("A\x7f"
                                       "B")
                         << u"AB"_s;
    QTest::newRow("first and last C1") << QByteArray("A\x80\x9f"
                                                     "B")
                                       << u"AB"_s;
    QTest::newRow("soft hyphen") << QByteArray("A\xad"
                                               "B")
                                 << u"AB"_s;
    QTest::newRow("blanks beyond a control") << QByteArray(" \x01 A B \x01 ") << u"A B"_s;
    QTest::newRow("no-break spaces around") << QByteArray("\xa0"
                                                          "A\xa0")
                                            << u"A"_s;
    QTest::newRow("nothing else") << QByteArray("\x01\x02\x1f \xad") << QString();
}

void tst_StorageReplies::nonPrintingCharactersAreRemoved()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(platform::decodeDeviceDescriptor(replyWithProduct(bytes)).productId, text);
}

void tst_StorageReplies::bytesAreLatin1()
{
    // Not UTF-8: 0xC3 0xBC are two characters.
    QCOMPARE(platform::decodeDeviceDescriptor(replyWithProduct("\xc3\xbc\xff~")).productId,
             u"\u00c3\u00bc\u00ff~"_s);
}

void tst_StorageReplies::anyValueButZeroMeansRemovable()
{
    QByteArray reply = sataReply;
    for (int value = 0; value <= 0xFF; ++value) {
        reply[10] = char(uchar(value));
        QCOMPARE(platform::decodeDeviceDescriptor(reply).removableMedia, value != 0);
    }
}

void tst_StorageReplies::everyBusNumberIsCarried()
{
    for (const quint32 bus : {0u, 1u, 17u, 18u, 255u, 256u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        const DeviceDescriptor descriptor{.productId = {}, .serialNumber = {}, .busType = bus};
        QCOMPARE(platform::decodeDeviceDescriptor(platform::encodeDeviceDescriptor(descriptor)).busType, bus);
    }
}

void tst_StorageReplies::whatIsEncodedDecodesToTheSame_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<bool>("removable");
    QTest::newRow("both texts") << u"Stick 3.0"_s << u"0123456789"_s << true;
    QTest::newRow("no serial number") << u"Stick 3.0"_s << QString() << false;
    QTest::newRow("no product") << QString() << u"0123456789"_s << true;
    QTest::newRow("neither") << QString() << QString() << false;
    QTest::newRow("Latin-1") << u"\u00c4\u00ff"_s << u"\u00e9"_s << false;
    QTest::newRow("long") << QString(9000, u'x') << QString(500, u'y') << false;
}

void tst_StorageReplies::whatIsEncodedDecodesToTheSame()
{
    QFETCH(QString, product);
    QFETCH(QString, serial);
    QFETCH(bool, removable);
    const QByteArray reply = platform::encodeDeviceDescriptor(
        {.productId = product, .serialNumber = serial, .removableMedia = removable, .busType = 7});
    const DeviceDescriptor descriptor = decodeExactly(platform::decodeDeviceDescriptor, reply);
    QCOMPARE(descriptor.productId, product);
    QCOMPARE(descriptor.serialNumber, serial);
    QCOMPARE(descriptor.removableMedia, removable);
    QCOMPARE(descriptor.busType, 7u);
}

void tst_StorageReplies::encodingReplacesWhatLatin1DoesNotHave()
{
    const QByteArray reply = platform::encodeDeviceDescriptor(
        {.productId = u" \u78c1\u76d8 A\u0000B\U0001F4BE\u0007 "_s, .serialNumber = QString(QChar(0xD800))});
    const DeviceDescriptor descriptor = platform::decodeDeviceDescriptor(reply);
    QCOMPARE(descriptor.productId, u"?? AB?"_s);
    QCOMPARE(descriptor.serialNumber, u"?"_s);
}

void tst_StorageReplies::anEncodedReplyHasTheLayoutOfTheStorageStack()
{
    const QByteArray reply = platform::encodeDeviceDescriptor(
        {.productId = u"AB"_s, .serialNumber = u"C"_s, .removableMedia = true, .busType = 17});
    const QByteArray expected = QByteArray::fromHex("28000000"
                                                    "29000000"
                                                    "00000100"
                                                    "00000000"
                                                    "24000000"
                                                    "00000000"
                                                    "27000000"
                                                    "11000000"
                                                    "00000000"
                                                    "414200"
                                                    "4300");
    QCOMPARE(reply.toHex(), expected.toHex());
}

void tst_StorageReplies::extentsAreReadPastThePadding()
{
    const QList<Extent> extents = platform::decodeExtents(twoExtents);
    QCOMPARE(extents.size(), 2);
    QCOMPARE(extents[0], (Extent{.diskNumber = 3, .startingOffset = 1 << 20, .length = 1 << 30}));
    QCOMPARE(extents[1], (Extent{.diskNumber = 1, .startingOffset = 1 << 20, .length = 0xE8A0000000}));
}

void tst_StorageReplies::everyShorterExtentReplyIsSafe()
{
    for (qsizetype length = 0; length < twoExtents.size(); ++length) {
        const QList<Extent> extents = decodeExactly(platform::decodeExtents, twoExtents.first(length));
        QCOMPARE(extents.size(), length < 32 ? 0 : 1);
    }
}

void tst_StorageReplies::aCountBeyondTheReplyIsCut()
{
    for (const quint32 count : {3u, 0x0AAAAAABu, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        QByteArray reply = twoExtents;
        putOffset(reply, 0, count);
        QCOMPARE(decodeExactly(platform::decodeExtents, reply), platform::decodeExtents(twoExtents));
    }
}

void tst_StorageReplies::aCountOf0LeavesRoomUnread()
{
    QByteArray reply = twoExtents;
    putOffset(reply, 0, 0);
    QVERIFY(platform::decodeExtents(reply).isEmpty());
    putOffset(reply, 0, 1);
    QCOMPARE(platform::decodeExtents(reply).size(), 1);
}

void tst_StorageReplies::aDriveNumberTooLargeIsNoDrive()
{
    QByteArray reply = twoExtents;
    putOffset(reply, 8, 0xFFFFFFFF);
    QVERIFY(platform::decodeExtents(reply).first().diskNumber < 0);
}

void tst_StorageReplies::encodedExtentsDecodeToTheSame()
{
    QList<Extent> extents;
    for (qint32 i = 0; i <= platform::ManyExtents; ++i) {
        QCOMPARE(decodeExactly(platform::decodeExtents, platform::encodeExtents(extents)), extents);
        extents.append({.diskNumber = i, .startingOffset = i * Q_INT64_C(0x123456789AB), .length = -i});
    }
}

void tst_StorageReplies::encodedExtentsHaveTheLayoutOfTheStorageStack()
{
    const QByteArray reply =
        platform::encodeExtents({{.diskNumber = 3, .startingOffset = 1 << 20, .length = 1 << 30}});
    QCOMPARE(reply.toHex(), QByteArray("0100000000000000"
                                       "030000000000000000001000000000000000004000000000"));
    // The reply with room for one extent, and the one with room for many.
    QCOMPARE(platform::encodeExtents(QList<Extent>(platform::OneExtent)).size(), 32);
    QCOMPARE(platform::encodeExtents(QList<Extent>(platform::ManyExtents)).size(), 800);
}

void tst_StorageReplies::theNaaNameOfTheUnitComesFirst()
{
    QCOMPARE(fourIdentifiers.size(), NaaIdentifier + 24);
    QCOMPARE(decodeExactly(platform::decodeWorldWideName, fourIdentifiers), u"naa.5000c500a1b2c3d4"_s);
}

void tst_StorageReplies::theEuiNameServesWithoutANaaName()
{
    QByteArray reply = fourIdentifiers;
    putOffset(reply, 8, 3);
    QCOMPARE(decodeExactly(platform::decodeWorldWideName, reply), u"eui.0025385b71b0a1c2"_s);
}

void tst_StorageReplies::onlyABinaryNameOfTheUnitCounts_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<quint32>("value");
    QTest::newRow("text") << 0 << 2u;
    QTest::newRow("maker's own") << 4 << 1u;
    QTest::newRow("target port group") << 4 << 5u;
    QTest::newRow("of the port") << 12 << 1u;
    QTest::newRow("of the target device") << 12 << 2u;
}

void tst_StorageReplies::onlyABinaryNameOfTheUnitCounts()
{
    QFETCH(int, field);
    QFETCH(quint32, value);
    QByteArray reply = fourIdentifiers;
    putOffset(reply, NaaIdentifier + field, value);
    QCOMPARE(platform::decodeWorldWideName(reply), u"eui.0025385b71b0a1c2"_s);
    putOffset(reply, EuiIdentifier + field, value);
    QCOMPARE(platform::decodeWorldWideName(reply), QString());
}

void tst_StorageReplies::everyShorterIdentifierReplyIsSafe()
{
    for (qsizetype length = 0; length < fourIdentifiers.size(); ++length) {
        const QString name = decodeExactly(platform::decodeWorldWideName, fourIdentifiers.first(length));
        QCOMPARE(name, length < NaaIdentifier ? QString() : u"eui.0025385b71b0a1c2"_s);
    }
}

void tst_StorageReplies::identifiersBehindTheCountOrTheLastAreNotRead()
{
    QByteArray reply = fourIdentifiers;
    putOffset(reply, 8, 0);
    QCOMPARE(platform::decodeWorldWideName(reply), QString());
    reply = fourIdentifiers;
    reply[EuiIdentifier + 10] = 0; // the last, by its next offset
    QCOMPARE(platform::decodeWorldWideName(reply), u"eui.0025385b71b0a1c2"_s);
    // A chain that leads out of the reply ends.
    reply = fourIdentifiers;
    putOffset(reply, 8, 0xFFFFFFFF);
    reply[FirstIdentifier + 10] = 1;
    decodeExactly(platform::decodeWorldWideName, reply);
}

void tst_StorageReplies::partitionsNameWhatIsBuiltOnTheDrive_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("holders");
    const QStringList none;
    const QStringList spaces{u"Storage Spaces"_s};
    const QStringList ldm{u"LDM"_s};
    QTest::newRow("no table") << layout(2, 0, {}) << none;
    // Accepts arbitrary bytes in place of the partitions.
    QTest::newRow("no table, rest of one") << layout(2, 1, {gpt(StorageSpaces)}) << none;
    QTest::newRow("unknown style") << layout(3, 1, {gpt(StorageSpaces)}) << none;
    QTest::newRow("empty MBR") << layout(0, 0, {}) << none;
    QTest::newRow("empty GPT") << layout(1, 0, {}) << none;
    QTest::newRow("GPT, data") << layout(1, 2, {gpt(EfiSystem), gpt(BasicData)}) << none;
    QTest::newRow("GPT, Storage Spaces") << layout(1, 2, {gpt(Reserved), gpt(StorageSpaces)}) << spaces;
    QTest::newRow("GPT, first of three")
        << layout(1, 3, {gpt(StorageSpaces), gpt(BasicData), gpt(BasicData)}) << spaces;
    QTest::newRow("GPT, LDM metadata") << layout(1, 1, {gpt(LdmMetadata)}) << ldm;
    QTest::newRow("GPT, LDM data") << layout(1, 1, {gpt(LdmData)}) << ldm;
    QTest::newRow("GPT, once each") << layout(1, 4,
                                              {gpt(LdmMetadata), gpt(StorageSpaces), gpt(LdmData),
                                               gpt(StorageSpaces)})
                                    << ldm + spaces;
    QTest::newRow("GPT, not counted") << layout(1, 1, {gpt(BasicData), gpt(StorageSpaces)}) << none;
    QTest::newRow("GPT, one bit off")
        << layout(1, 1, {gpt(QByteArray(StorageSpaces).replace("8FAF", "8EAF"))}) << none;
    QTest::newRow("GPT, a type in an MBR's place") << layout(1, 1, {mbr(0x42)}) << none;
    QTest::newRow("MBR, data") << layout(0, 4, {mbr(0x07), mbr(0x0C), mbr(0), mbr(0)}) << none;
    QTest::newRow("MBR, LDM") << layout(0, 4, {mbr(0x42), mbr(0), mbr(0), mbr(0)}) << ldm;
    QTest::newRow("MBR, the last") << layout(0, 4, {mbr(0x07), mbr(0), mbr(0), mbr(0x42)}) << ldm;
    QTest::newRow("MBR, a GPT's type") << layout(0, 1, {gpt(LdmMetadata)}) << none;
}

void tst_StorageReplies::partitionsNameWhatIsBuiltOnTheDrive()
{
    QFETCH(QByteArray, reply);
    QFETCH(QStringList, holders);
    QCOMPARE(platform::decodeHolders(reply).value(), holders);
}

void tst_StorageReplies::aLayoutThatCountsMoreThanItHoldsIsNotWhole()
{
    for (const quint32 count : {2u, 5u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        QCOMPARE(decodeExactly(platform::decodeHolders, layout(1, count, {gpt(BasicData)})).code(),
                 quint32(platform::MoreData));
        // The entries that were found still count.
        QCOMPARE(decodeExactly(platform::decodeHolders, layout(1, count, {gpt(LdmData)})).value(),
                 QStringList{u"LDM"_s});
    }
}

void tst_StorageReplies::everyShorterLayoutReplyIsSafe()
{
    const QByteArray whole = layout(1, 2, {gpt(BasicData), gpt(StorageSpaces)});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const quint32 expected = length < 8 ? platform::GeneralFailure : platform::MoreData;
        QCOMPARE(decodeExactly(platform::decodeHolders, whole.first(length)).code(), expected);
    }
    QCOMPARE(decodeExactly(platform::decodeHolders, whole).value(), QStringList{u"Storage Spaces"_s});
}

void tst_StorageReplies::theSameDriveHasSerialNumberAndSize_data()
{
    QTest::addColumn<QString>("serial");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<qint64>("foundSize");
    QTest::addColumn<bool>("same");
    const qint64 size = 500'107'862'016;
    QTest::newRow("same") << u"W621ABCD"_s << size << sataReply << size << true;
    QTest::newRow("other serial number") << u"W621ABCE"_s << size << sataReply << size << false;
    QTest::newRow("other case") << u"w621abcd"_s << size << sataReply << size << false;
    QTest::newRow("one sector less") << u"W621ABCD"_s << size << sataReply << size - 512 << false;
    QTest::newRow("chosen while its size was not known")
        << u"W621ABCD"_s << qint64(0) << sataReply << size << false;
    QTest::newRow("neither describes itself") << QString() << size << QByteArray() << size << true;
    QTest::newRow("does not describe itself any more")
        << u"W621ABCD"_s << size << QByteArray() << size << false;
    QTest::newRow("describes itself only now") << QString() << size << sataReply << size << false;
    QTest::newRow("neither describes itself, other size")
        << QString() << size << QByteArray() << size + 1 << false;
}

void tst_StorageReplies::theSameDriveHasSerialNumberAndSize()
{
    QFETCH(QString, serial);
    QFETCH(qint64, size);
    QFETCH(QByteArray, reply);
    QFETCH(qint64, foundSize);
    QFETCH(bool, same);
    const platform::DriveIdentity chosen{.number = 1, .serialNumber = serial, .sizeBytes = size};
    platform::DriveIdentity present = platform::identityFrom(1, reply, foundSize, {});
    present.product.clear();
    QCOMPARE(present == chosen, same);
}

void tst_StorageReplies::randomRepliesAreSafe()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    qInfo() << "seed" << seed;
    QRandomGenerator random(seed);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray reply(random.bounded(400), '\0');
        for (char &byte : reply)
            byte = char(uchar(random.bounded(256)));
        // Half of the offsets and counts are close to the reply's length, where off-by-one errors show.
        const auto plausible = [&] { return random.bounded(2) ? random.generate() : random.bounded(170u); };
        if (reply.size() >= FixedPart) {
            putOffset(reply, 0, plausible());
            putOffset(reply, ProductIdOffset, plausible());
            putOffset(reply, SerialNumberOffset, plausible());
        }
        const DeviceDescriptor descriptor = decodeExactly(platform::decodeDeviceDescriptor, reply);
        QVERIFY(isClean(descriptor.productId));
        QVERIFY(isClean(descriptor.serialNumber));
        const DeviceDescriptor again =
            platform::decodeDeviceDescriptor(platform::encodeDeviceDescriptor(descriptor));
        QCOMPARE(again.productId, descriptor.productId);
        QCOMPARE(again.serialNumber, descriptor.serialNumber);
        const QString name = decodeExactly(platform::decodeWorldWideName, reply);
        QVERIFY(name.isEmpty() || name.startsWith(u"naa."_s) || name.startsWith(u"eui."_s));
        const QStringList holders = decodeExactly(platform::decodeHolders, reply).valueOr({});
        QVERIFY(holders.size() <= 2);
        const QList<Extent> extents = decodeExactly(platform::decodeExtents, reply);
        QVERIFY(extents.size() * 24 + 8 <= std::max<qsizetype>(reply.size(), 8));
        QCOMPARE(platform::decodeExtents(platform::encodeExtents(extents)), extents);
    }
}

void tst_StorageReplies::volumeOnOneDriveOnly()
{
    using platform::liesOnlyOn;
    QVERIFY(liesOnlyOn({{2, 0, 512}}, 2));
    QVERIFY(liesOnlyOn({{2, 0, 512}, {2, 4096, 512}}, 2));
    QVERIFY(!liesOnlyOn({{2, 0, 512}, {3, 0, 512}}, 2));
    QVERIFY(!liesOnlyOn({{3, 0, 512}, {2, 0, 512}}, 2));
    QVERIFY(!liesOnlyOn({{2, 0, 512}, {-1, 0, 512}}, 2));
    QVERIFY(!liesOnlyOn({}, 2));
}

QUORVEX_SUITE(tst_StorageReplies, suites::NoApplication)
#include "tst_storagereplies.moc"
