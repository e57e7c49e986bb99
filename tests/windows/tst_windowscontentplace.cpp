#include "support/suite.h"
#include "support/testfiles.h"
#include "windows/win32faults.h"

#include "platform/contentplace.h"
#include "platform/windows/windowsfiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QList>
#include <QTemporaryDir>
#include <QTest>

#include <cstddef>
#include <cstring>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr DWORD SupportsIntegrityStreams = 0x04000000;
constexpr DWORD SupportsBlockRefcounting = 0x08000000;
constexpr DWORD GetIntegrityInformation = 0x0009027C;
constexpr DWORD GetExternalBacking = 0x00090310;
constexpr DWORD NotExternallyBacked = 342;
constexpr DWORD Injected = ERROR_IO_DEVICE;

struct Stream
{
    QString name;
    qint64 size = 0;
};

// In the layout of the system: each entry holds the offset of the next one, the last holds 0.
QByteArray streamEntries(const QList<Stream> &streams)
{
    QByteArray all;
    for (const Stream &stream : streams) {
        FILE_STREAM_INFO entry = {};
        const DWORD nameBytes = DWORD(stream.name.size()) * sizeof(WCHAR);
        const qsizetype plain = qsizetype(offsetof(FILE_STREAM_INFO, StreamName)) + qsizetype(nameBytes);
        const qsizetype padded = (plain + 7) / 8 * 8;
        const bool isLast = &stream == &streams.last();
        entry.NextEntryOffset = isLast ? 0 : DWORD(padded);
        entry.StreamNameLength = nameBytes;
        entry.StreamSize.QuadPart = stream.size;
        all += QByteArray(reinterpret_cast<const char *>(&entry), offsetof(FILE_STREAM_INFO, StreamName));
        all += QByteArray(reinterpret_cast<const char *>(stream.name.utf16()), qsizetype(nameBytes));
        all += QByteArray(padded - plain, '\0');
    }
    return all;
}

// The answers of the system for every file.
struct Answers
{
    DWORD attributes = 0; // in addition to the file's own
    DWORD volume = FILE_NAMED_STREAMS;
    bool isRemote = false;
    QList<Stream> streams{{u"::$DATA"_s, 3}};
    DWORD streamsError = ERROR_SUCCESS;
    DWORD integrityError = ERROR_INVALID_FUNCTION;
    WORD checksumAlgorithm = 0;
    DWORD extentsError = ERROR_MORE_DATA; // more than one extent
    DWORD backingError = NotExternallyBacked;
};

Answers s_answers;

BOOL fail(DWORD error)
{
    ::SetLastError(error);
    return FALSE;
}

BOOL WINAPI answeredInformation(HANDLE file, LPBY_HANDLE_FILE_INFORMATION information)
{
    const BOOL found = ::GetFileInformationByHandle(file, information);
    information->dwFileAttributes |= s_answers.attributes;
    return found;
}

BOOL WINAPI answeredVolume(HANDLE, LPWSTR, DWORD, LPDWORD, LPDWORD, LPDWORD flags, LPWSTR, DWORD)
{
    *flags = s_answers.volume;
    return TRUE;
}

BOOL WINAPI answeredInformationEx(HANDLE, FILE_INFO_BY_HANDLE_CLASS what, LPVOID data, DWORD size)
{
    if (what == FileRemoteProtocolInfo)
        return s_answers.isRemote ? TRUE : fail(ERROR_INVALID_PARAMETER);
    if (s_answers.streamsError != ERROR_SUCCESS)
        return fail(s_answers.streamsError);
    const QByteArray entries = streamEntries(s_answers.streams);
    if (entries.isEmpty())
        return fail(ERROR_HANDLE_EOF);
    if (qsizetype(size) < entries.size())
        return fail(ERROR_MORE_DATA);
    std::memcpy(data, entries.constData(), std::size_t(entries.size()));
    return TRUE;
}

BOOL WINAPI answeredControl(HANDLE, DWORD code, LPVOID, DWORD, LPVOID output, DWORD, LPDWORD returned,
                            LPOVERLAPPED)
{
    if (code == GetExternalBacking) {
        *returned = 16;
        return s_answers.backingError == ERROR_SUCCESS ? TRUE : fail(s_answers.backingError);
    }
    if (code != GetIntegrityInformation)
        return fail(s_answers.extentsError);
    if (s_answers.integrityError != ERROR_SUCCESS)
        return fail(s_answers.integrityError);
    std::memcpy(output, &s_answers.checksumAlgorithm, sizeof s_answers.checksumAlgorithm);
    *returned = 16;
    return TRUE;
}

// A stream is a separate file here: "file%b" is the stream "b" of "file".
HANDLE WINAPI openedStream(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                           DWORD disposition, DWORD flags, HANDLE pattern)
{
    QString name = QString::fromWCharArray(path);
    if (name.endsWith(u":$DATA"_s)) {
        name.chop(6);
        name[name.lastIndexOf(u':')] = u'%';
    }
    return ::CreateFileW(name.toStdWString().c_str(), access, sharing, security, disposition, flags, pattern);
}

class AnsweredCalls
{
public:
    explicit AnsweredCalls(const Answers &answers)
    {
        s_answers = answers;
        Win32Calls &calls = faults.target();
        calls.getFileInformation = &answeredInformation;
        calls.getFileInformationEx = &answeredInformationEx;
        calls.getVolumeInformation = &answeredVolume;
        calls.deviceIoControl = &answeredControl;
        calls.createFile = &openedStream;
    }

    Win32Faults faults;
};

} // namespace

Q_DECLARE_METATYPE(Answers)
Q_DECLARE_METATYPE(ElsewhereReasons)

// The conclusions drawn from the answers of Windows about a file.
class tst_WindowsContentPlace : public QObject
{
    Q_OBJECT

private slots:
    void places_data();
    void places();
    void emptyFiles();
    void manyStreams();
    void streamsThatCanBeOpened();
    void streamsAreListed();
    void streamsAreOpenedAsFiles();
    void folders();
    void linksAreRefused();
    void whatFails_data();
    void whatFails();

private:
    QTemporaryDir m_folder;
    WindowsFiles m_files;
};

void tst_WindowsContentPlace::places_data()
{
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<ElsewhereReasons>("expected");
    QTest::addColumn<qint64>("bytes"); // of a file of three
    const auto row = [](const char *name, const Answers &answers, ElsewhereReasons expected, qint64 bytes) {
        QTest::newRow(name) << answers << expected << bytes;
    };
    const QList<Stream> named{{u"::$DATA"_s, 3}, {u":Zone.Identifier:$DATA"_s, 26}, {u":b:$DATA"_s, 4}};
    row("in place", {}, {}, 0);
    row("compressed", {.attributes = FILE_ATTRIBUTE_COMPRESSED}, Elsewhere::Encoded, 3);
    row("encrypted", {.attributes = FILE_ATTRIBUTE_ENCRYPTED}, Elsewhere::Encoded, 3);
    row("sparse", {.attributes = FILE_ATTRIBUTE_SPARSE_FILE}, Elsewhere::Sparse, 3);
    row("in its record", {.extentsError = ERROR_HANDLE_EOF}, Elsewhere::Inline, 3);
    row("compressed by the system", {.backingError = ERROR_SUCCESS}, Elsewhere::Encoded, 3);
    row("with a longer answer", {.backingError = ERROR_MORE_DATA}, Elsewhere::Encoded, 3);
    row("backing unknown", {.backingError = ERROR_ACCESS_DENIED}, Elsewhere::Encoded, 3);
    row("no backing known", {.backingError = ERROR_INVALID_FUNCTION}, {}, 0);
    row("no backing supported", {.backingError = ERROR_NOT_SUPPORTED}, {}, 0);
    row("extents unknown", {.extentsError = ERROR_NOT_SUPPORTED}, {}, 0);
    row("on a server", {.isRemote = true}, Elsewhere::Unknown, 3);
    row("no stream listed", {.streams = {}}, {}, 0);
    row("named streams", {.streams = named}, Elsewhere::NamedStreams, 30);
    row("no streams on this volume", {.volume = 0, .streams = named}, {}, 0);
    row("compressed with streams", {.attributes = FILE_ATTRIBUTE_COMPRESSED, .streams = named},
        Elsewhere::Encoded | Elsewhere::NamedStreams, 33);
    row("with checksums",
        {.volume = SupportsIntegrityStreams, .integrityError = ERROR_SUCCESS, .checksumAlgorithm = 2},
        Elsewhere::Relocating, 3);
    row("without checksums", {.volume = SupportsIntegrityStreams, .integrityError = ERROR_SUCCESS}, {}, 0);
    row("checksums unknown", {.volume = SupportsIntegrityStreams}, Elsewhere::Relocating, 3);
    row("shared clusters", {.volume = SupportsBlockRefcounting}, Elsewhere::Shared, 3);
}

void tst_WindowsContentPlace::places()
{
    QFETCH(Answers, answers);
    QFETCH(ElsewhereReasons, expected);
    QFETCH(qint64, bytes);
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    const AnsweredCalls calls(answers);
    QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{expected, bytes}));
    // A handle answers for the opened file or stream only.
    ContentPlace own{expected, bytes};
    if (expected & Elsewhere::NamedStreams)
        own = {expected & ~ElsewhereReasons(Elsewhere::NamedStreams), bytes - 30};
    QCOMPARE(m_files.open(file, OpenMode::Overwrite).value()->contentPlace().value(), own);
    QCOMPARE(calls.faults.openHandles(), 0);
    QCOMPARE(contentOf(file), QByteArray("abc"));
}

// The file itself is empty, but its streams have content.
void tst_WindowsContentPlace::emptyFiles()
{
    const QString file = writeFile(m_folder.filePath(u"empty"_s), {});
    {
        const AnsweredCalls calls({.attributes = FILE_ATTRIBUTE_COMPRESSED,
                                   .volume = FILE_NAMED_STREAMS | SupportsBlockRefcounting,
                                   .isRemote = true,
                                   .extentsError = ERROR_HANDLE_EOF});
        QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{{}, 0}));
    }
    const AnsweredCalls calls({.streams = {{u"::$DATA"_s, 0}, {u":s:$DATA"_s, 7}}});
    QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{Elsewhere::NamedStreams, 7}));
}

void tst_WindowsContentPlace::manyStreams()
{
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    Answers answers{.streams = {{u"::$DATA"_s, 3}}};
    for (int i = 0; i < 1000; ++i)
        answers.streams.append({u":stream number %1:$DATA"_s.arg(i), 2});
    const AnsweredCalls calls(answers);
    QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{Elsewhere::NamedStreams, 2000}));
}

// Each stream has its own place.
void tst_WindowsContentPlace::streamsThatCanBeOpened()
{
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    writeFile(m_folder.filePath(u"file%b"_s), "1234");
    const Answers answers{.streams = {{u"::$DATA"_s, 3}, {u":b:$DATA"_s, 4}}};
    {
        const AnsweredCalls calls(answers);
        QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{{}, 0}));
        QCOMPARE(calls.faults.openHandles(), 0);
    }
    Answers inside = answers;
    inside.extentsError = ERROR_HANDLE_EOF;
    const AnsweredCalls calls(inside);
    QCOMPARE(m_files.contentPlace(file).value(), (ContentPlace{Elsewhere::Inline, 7}));
}

void tst_WindowsContentPlace::streamsAreListed()
{
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    const QString folder = m_folder.filePath(u"folder"_s);
    QVERIFY(QDir().mkpath(folder));
    AnsweredCalls calls(
        {.streams = {{u"::$DATA"_s, 3}, {u":Zone.Identifier:$DATA"_s, 26}, {u":b:$DATA"_s, 0}}});
    for (const QString &path : {file, folder}) {
        const auto listed = m_files.namedStreams(path);
        QVERIFY(listed.ok());
        QCOMPARE(listed.value().size(), 2);
        QCOMPARE(listed.value().at(0).name, u":Zone.Identifier:$DATA"_s);
        QCOMPARE(listed.value().at(0).size, 26);
        QCOMPARE(listed.value().at(1).name, u":b:$DATA"_s);
    }
    s_answers.volume = 0;
    QVERIFY(m_files.namedStreams(file).value().isEmpty());
    s_answers.volume = FILE_NAMED_STREAMS;
    for (const int call :
         {int(Win32Faults::GetFileAttributes_), int(Win32Faults::CreateFile_),
          int(Win32Faults::GetVolumeInformation_), int(Win32Faults::GetFileInformationEx_)}) {
        calls.faults.fail(call, 1, Injected);
        QCOMPARE(m_files.namedStreams(file).code(), quint32(Injected));
    }
    QCOMPARE(calls.faults.openHandles(), 0);
}

void tst_WindowsContentPlace::streamsAreOpenedAsFiles()
{
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    const QString stream = writeFile(m_folder.filePath(u"file%b"_s), "1234");
    AnsweredCalls calls({});
    calls.faults.target().getFileAttributes = [](LPCWSTR) -> DWORD { return FILE_ATTRIBUTE_ARCHIVE; };
    const EntryPath entry = EntryPath(file).stream(u":b:$DATA"_s);
    {
        const auto opened = m_files.open(entry, OpenMode::Overwrite);
        QVERIFY(opened.ok());
        QCOMPARE(opened.value()->write("5678", 4).value(), 4);
    }
    QVERIFY(m_files.open(entry, OpenMode::Verify).ok());
    QCOMPARE(contentOf(stream), QByteArray("5678"));
    QCOMPARE(contentOf(file), QByteArray("abc"));
}

void tst_WindowsContentPlace::folders()
{
    const QString folder = m_folder.filePath(u"folder"_s);
    QVERIFY(QDir().mkpath(folder));
    {
        const AnsweredCalls calls({.extentsError = ERROR_HANDLE_EOF});
        QCOMPARE(m_files.contentPlace(folder).value(), (ContentPlace{{}, -1}));
    }
    const AnsweredCalls calls({.attributes = FILE_ATTRIBUTE_COMPRESSED, .volume = SupportsBlockRefcounting});
    QCOMPARE(m_files.contentPlace(folder).value(),
             (ContentPlace{Elsewhere::Encoded | Elsewhere::Shared, -1}));
}

void tst_WindowsContentPlace::linksAreRefused()
{
    const QString file = writeFile(m_folder.filePath(u"link"_s), "abc");
    AnsweredCalls calls({});
    calls.faults.target().getFileAttributes = [](LPCWSTR path) -> DWORD {
        return ::GetFileAttributesW(path) | FILE_ATTRIBUTE_REPARSE_POINT;
    };
    QCOMPARE(m_files.contentPlace(file).code(), quint32(CannotAccessFile));
    QCOMPARE(calls.faults.seen(Win32Faults::CreateFile_), 0);
}

void tst_WindowsContentPlace::whatFails_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("number");
    QTest::newRow("attributes") << int(Win32Faults::GetFileAttributes_) << 1;
    QTest::newRow("opening") << int(Win32Faults::CreateFile_) << 1;
    QTest::newRow("information") << int(Win32Faults::GetFileInformation_) << 1;
    QTest::newRow("volume") << int(Win32Faults::GetVolumeInformation_) << 1;
    QTest::newRow("streams") << int(Win32Faults::GetFileInformationEx_)
                             << 2; // 1: the query for a remote file
}

// A missing answer must not count as a good one.
void tst_WindowsContentPlace::whatFails()
{
    QFETCH(int, call);
    QFETCH(int, number);
    const QString file = writeFile(m_folder.filePath(u"file"_s), "abc");
    AnsweredCalls calls({});
    calls.faults.fail(call, number, Injected);
    QCOMPARE(m_files.contentPlace(file).code(), quint32(Injected));
    QCOMPARE(calls.faults.fired(), 1);
    QCOMPARE(calls.faults.openHandles(), 0);
}

QUORVEX_SUITE(tst_WindowsContentPlace, QCoreApplication)
#include "tst_windowscontentplace.moc"
