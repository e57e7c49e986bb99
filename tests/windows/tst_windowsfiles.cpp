#include "support/bytes.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "windows/win32faults.h"

#include "platform/anchoredfolder.h"
#include "platform/windows/windowsfiles.h"
#include "platform/windows/windowsfolders.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslongpath.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowssession.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr OpenMode EveryMode[] = {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate,
                                  OpenMode::CreateFill};
constexpr DWORD Injected = ERROR_IO_DEVICE;
constexpr DWORD CloudTag = 0x9000001A;
// Missing from the headers of some compilers.
constexpr DWORD Pinned = 0x00080000;
constexpr DWORD RecallOnOpen = 0x00040000;
constexpr DWORD RecallOnDataAccess = 0x00400000;

WindowsFiles files;
WindowsFolders folders;

DWORD attributesAt(const QString &path)
{
    return ::GetFileAttributesW(toLongPath(path).c_str());
}

bool setAttributes(const QString &path, DWORD attributes)
{
    return ::SetFileAttributesW(toLongPath(path).c_str(), attributes);
}

// A handle of another program.
WinHandle otherHandle(const QString &path, DWORD access, DWORD sharing)
{
    return WinHandle(
        ::CreateFileW(toLongPath(path).c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
}

// False for an administrator under Wine.
bool isReadOnlyRespected(const QString &path)
{
    return !otherHandle(path, GENERIC_WRITE, FILE_SHARE_READ).isValid();
}

DWORD s_moreAttributes = 0;
bool s_tellsOccupied = true;

BOOL WINAPI informationOfOccupied(HANDLE file, LPBY_HANDLE_FILE_INFORMATION information)
{
    const BOOL found = ::GetFileInformationByHandle(file, information);
    information->dwFileAttributes |= s_moreAttributes;
    return found;
}

BOOL WINAPI occupiedBytes(HANDLE, FILE_INFO_BY_HANDLE_CLASS what, LPVOID data, DWORD size)
{
    if (!s_tellsOccupied || what != FileCompressionInfo || size < sizeof(FILE_COMPRESSION_INFO)) {
        ::SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    static_cast<FILE_COMPRESSION_INFO *>(data)->CompressedFileSize.QuadPart = 4096;
    return TRUE;
}

BOOL WINAPI spaceWithQuota(LPCWSTR, PULARGE_INTEGER available, PULARGE_INTEGER total, PULARGE_INTEGER free)
{
    available->QuadPart = 1000;
    free->QuadPart = 2000;
    total->QuadPart = 3000;
    return TRUE;
}

// Gives files additional attributes and one allocated cluster, on a volume with a quota.
class OccupiedCalls
{
public:
    OccupiedCalls(DWORD attributes, bool isTold)
    {
        s_moreAttributes = attributes;
        s_tellsOccupied = isTold;
        Win32Calls &calls = m_faults.target();
        calls.getFileInformation = &informationOfOccupied;
        calls.getFileInformationEx = &occupiedBytes;
        calls.getDiskFreeSpace = &spaceWithQuota;
    }

private:
    Win32Faults m_faults;
};

// Everything below a folder: attributes and contents by path.
QMap<QString, QByteArray> snapshot(const QString &folder)
{
    QMap<QString, QByteArray> entries;
    QDirIterator at(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (at.hasNext()) {
        const QString path = at.next();
        const QByteArray contents = at.fileInfo().isDir() ? QByteArray("folder") : contentOf(path);
        entries.insert(path, QByteArray::number(uint(attributesAt(path))) + ' ' + contents);
    }
    return entries;
}

// The system calls, except that entries named "...link" show a reparse point with the tag, or other
// attributes, in every query.
class PretendedLinks
{
public:
    explicit PretendedLinks(DWORD tag = IO_REPARSE_TAG_SYMLINK, DWORD bits = FILE_ATTRIBUTE_REPARSE_POINT)
    {
        s_tag = tag;
        s_bits = bits;
        m_faults.target().getFileAttributes = [](LPCWSTR path) -> DWORD {
            const DWORD attributes = ::GetFileAttributesW(path);
            return attributes == INVALID_FILE_ATTRIBUTES ? attributes : marked(path, attributes);
        };
        m_faults.target().getFileAttributesEx = [](LPCWSTR path, GET_FILEEX_INFO_LEVELS level,
                                                   LPVOID data) -> BOOL {
            const BOOL found = ::GetFileAttributesExW(path, level, data);
            auto *const file = static_cast<WIN32_FILE_ATTRIBUTE_DATA *>(data);
            if (found)
                file->dwFileAttributes = marked(path, file->dwFileAttributes);
            return found;
        };
        m_faults.target().getFileInformation = [](HANDLE handle, LPBY_HANDLE_FILE_INFORMATION file) -> BOOL {
            wchar_t path[1000] = {};
            ::GetFinalPathNameByHandleW(handle, path, 1000, 0);
            const BOOL found = ::GetFileInformationByHandle(handle, file);
            file->dwFileAttributes = marked(path, file->dwFileAttributes);
            return found;
        };
        m_faults.target().getFileInformationEx = [](HANDLE handle, FILE_INFO_BY_HANDLE_CLASS what,
                                                    LPVOID data, DWORD size) -> BOOL {
            if (what != FileAttributeTagInfo)
                return ::GetFileInformationByHandleEx(handle, what, data, size);
            BY_HANDLE_FILE_INFORMATION file = {};
            const BOOL found = fileCalls().getFileInformation(handle, &file);
            *static_cast<FILE_ATTRIBUTE_TAG_INFO *>(data) = {file.dwFileAttributes, s_tag};
            return found;
        };
        m_faults.target().findFirstFile = [](LPCWSTR path, FINDEX_INFO_LEVELS level, LPVOID data,
                                             FINDEX_SEARCH_OPS what, LPVOID filter, DWORD flags) -> HANDLE {
            const HANDLE search = ::FindFirstFileExW(path, level, data, what, filter, flags);
            mark(*static_cast<WIN32_FIND_DATAW *>(data));
            return search;
        };
        m_faults.target().findNextFile = [](HANDLE search, LPWIN32_FIND_DATAW entry) -> BOOL {
            const BOOL found = ::FindNextFileW(search, entry);
            mark(*entry);
            return found;
        };
    }

    Win32Faults &faults() { return m_faults; }

private:
    static void mark(WIN32_FIND_DATAW &entry)
    {
        entry.dwFileAttributes = marked(entry.cFileName, entry.dwFileAttributes);
        entry.dwReserved0 = entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT ? s_tag : 0;
    }
    static DWORD marked(const wchar_t *path, DWORD attributes)
    {
        return std::wstring_view(path).ends_with(L"link") ? attributes | s_bits : attributes;
    }

    inline static DWORD s_tag = 0;
    inline static DWORD s_bits = 0;

    Win32Faults m_faults;
};

// Transfers answered by the test, in order; without a remaining answer they fail.
struct Answer
{
    DWORD count = 0;
    DWORD error = ERROR_SUCCESS;
};
QList<Answer> s_answers;
QList<DWORD> s_asked;

BOOL answer(DWORD size, LPDWORD count)
{
    s_asked.append(size);
    const Answer next = s_answers.isEmpty() ? Answer{0, Injected} : s_answers.takeFirst();
    *count = qMin(next.count, size);
    ::SetLastError(next.error);
    return next.error == ERROR_SUCCESS;
}

BOOL WINAPI answeredRead(HANDLE, LPVOID, DWORD size, LPDWORD count, LPOVERLAPPED)
{
    return answer(size, count);
}

BOOL WINAPI answeredWrite(HANDLE, LPCVOID, DWORD size, LPDWORD count, LPOVERLAPPED)
{
    return answer(size, count);
}

struct Operation
{
    const char *name;
    std::function<Status(const QString &folder)> run;
    // Calls whose failure does not fail the operation.
    QList<std::pair<int, int>> forgiven;
    // After a failure everything is unchanged.
    bool changesNothing = true;
};

Status openIn(const QString &path, OpenMode mode)
{
    return files.open(path, mode).status();
}

// Uses every operation of an open file until one fails.
Status useFile(const QString &path)
{
    const auto file = files.open(path, OpenMode::Overwrite);
    if (!file)
        return file.status();
    if (const auto id = file.value()->id(); !id)
        return id.status();
    char bytes[3] = {'x', 'y', 'z'};
    if (const Result<qint64> count = file.value()->write(bytes, 3); !count)
        return count.status();
    if (const Status status = file.value()->flush(); !status)
        return status;
    if (const Status status = file.value()->seek(0); !status)
        return status;
    if (const Result<qint64> count = file.value()->read(bytes, 3); !count)
        return count.status();
    return file.value()->setEnd();
}

const QList<Operation> &operations()
{
    const auto everything = [](const QString &, FileKind) { return true; };
    static const QList<Operation> list{
        {"info", [](const QString &at) { return files.info(at + u"/file"_s).status(); }, {}, true},
        {"open to overwrite",
         [](const QString &at) { return openIn(at + u"/file"_s, OpenMode::Overwrite); },
         {},
         true},
        {"open to verify",
         [](const QString &at) { return openIn(at + u"/file"_s, OpenMode::Verify); },
         {{Win32Faults::CreateFile_, 1}}, // opening to drop the cache
         true},
        {"open to truncate",
         [](const QString &at) { return openIn(at + u"/file"_s, OpenMode::Truncate); },
         {},
         true},
        {"open to fill a new file",
         [](const QString &at) { return openIn(at + u"/new"_s, OpenMode::CreateFill); },
         {},
         true},
        {"open to fill an existing file",
         [](const QString &at) { return openIn(at + u"/file"_s, OpenMode::CreateFill); },
         {},
         true},
        {"use of an open file", [](const QString &at) { return useFile(at + u"/file"_s); }, {}, false},
        {"place of a file",
         [](const QString &at) { return files.contentPlace(at + u"/file"_s).status(); },
         // The query for a remote file.
         {{Win32Faults::GetFileInformationEx_, 1}},
         true},
        {"clear read-only",
         [](const QString &at) { return files.clearReadOnly(at + u"/tree/read-only"_s); },
         {},
         true},
        {"rename", [](const QString &at) { return files.rename(at + u"/file"_s, at + u"/new"_s); }, {}, true},
        {"remove", [](const QString &at) { return files.remove(at + u"/file"_s); }, {}, true},
        {"list", [=](const QString &at) { return folders.forEachEntry(at, everything); }, {}, true},
        {"create", [](const QString &at) { return folders.create(at + u"/a/b/c"_s); }, {}, false},
        {"create what exists",
         [](const QString &at) { return folders.create(at + u"/tree"_s); },
         {{Win32Faults::CreateDirectory_, 1}},
         true},
        {"remove empty", [](const QString &at) { return folders.removeEmpty(at + u"/empty"_s); }, {}, true},
        {"remove tree", [](const QString &at) { return folders.removeTree(at + u"/tree"_s); }, {}, false},
        {"hide", [](const QString &at) { return folders.hide(at + u"/file"_s); }, {}, true},
        {"space", [](const QString &at) { return folders.space(at + u"/file"_s).status(); }, {}, true},
    };
    return list;
}

} // namespace

// Behaviour specific to Windows, and every system call failing once.
class tst_WindowsFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void longPaths_data();
    void longPaths();
    void encodedPaths_data();
    void encodedPaths();
    void namesKeepEveryCharacter();
    void opensWithWhatItPromises();
    void fillOverAFileDoesNotFollowOrReplace();
    void verificationDropsTheCacheFirst();
    void renamesWithWhatItPromises();
    void readOnlyFiles();
    void clearReadOnlyKeepsTheOtherAttributes();
    void hiddenFileIsFilled();
    void hideSetsBothAttributes();
    void fileInUse();
    void deletedWhileOpen();
    void renameOverAReadOnlyFile();
    void beyond260Characters();
    void namesThatAreNoText();
    void rootsAreFolders();
    void removeTreeTakesReadOnlyEntries();
    void removeTreeGoesOnPastWhatIsInUse();

    void whatAFileOccupiesIsAskedOfSparseAndCompressedOnes_data();
    void whatAFileOccupiesIsAskedOfSparseAndCompressedOnes();
    void aRootMayEndWithEitherSlash();
    void whatMayBeUsedIsLessThanWhatIsFree();
    void linksAreSeen();
    void filesThatAreInACloudToo();
    void foldersThatAreInACloudToo();
    void everyOtherTagIsRefused_data();
    void everyOtherTagIsRefused();
    void whatIsOnlyInACloudIsLeftThere_data();
    void whatIsOnlyInACloudIsLeftThere();
    void whatIsTakenToACloudMeanwhile();
    void newFilesAreStoredAsTheyAreWritten_data();
    void newFilesAreStoredAsTheyAreWritten();
    void pathsOfStreams();
    void openOfALinkIsRefused();
    void openOfALinkThatIsSwappedIn();
    void filesWhoseBytesLieElsewhere();
    void linksAreNoFolders();
    void removeTreeDoesNotEnterLinks();
    void junctionsAreRemovedThemselves();

    void transfersGoOnAfterShortOnes();
    void transfersGoInPieces();
    void endOfFileIsNoFailure();
    void noRoomEndsAWrite();
    void positionAfterAFailure();
    void failedFlushStaysFailed();

    void everyCallFailsOnce_data();
    void everyCallFailsOnce();
    void systemVolume();
    void userIsNamedByTheSid();
    void rightsAreThoseOfTheToken();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void fillFolder();

    std::optional<QTemporaryDir> m_folder;
};

void tst_WindowsFiles::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
}

void tst_WindowsFiles::cleanup()
{
    QVERIFY(folders.removeTree(m_folder->path()).ok());
    m_folder.reset();
}

void tst_WindowsFiles::longPaths_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    QTest::newRow("forward") << u"C:/a/b.txt"_s << uR"(\\?\C:\a\b.txt)"_s;
    QTest::newRow("native") << uR"(C:\a\b.txt)"_s << uR"(\\?\C:\a\b.txt)"_s;
    QTest::newRow("network") << u"//server/share/a"_s << uR"(\\?\UNC\server\share\a)"_s;
    QTest::newRow("native network") << uR"(\\server\share\a)"_s << uR"(\\?\UNC\server\share\a)"_s;
    QTest::newRow("prefixed") << uR"(\\?\C:\a)"_s << uR"(\\?\C:\a)"_s;
    QTest::newRow("prefixed network") << uR"(\\?\UNC\s\h\a)"_s << uR"(\\?\UNC\s\h\a)"_s;
}

void tst_WindowsFiles::longPaths()
{
    QFETCH(QString, given);
    QTEST(QString::fromStdWString(toLongPath(given)), "expected");
}

void tst_WindowsFiles::encodedPaths_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << u"C:/a/b"_s << uR"(\\?\C:\a\b)"_s;
    QTest::newRow("doubled separators") << u"C://a//b"_s << uR"(\\?\C:\a\b)"_s;
    QTest::newRow("separator at the end") << u"C:/a/b/"_s << uR"(\\?\C:\a\b)"_s;
    QTest::newRow("drive") << u"E:"_s << uR"(\\?\E:\)"_s;
    QTest::newRow("root") << u"E:/"_s << uR"(\\?\E:\)"_s;
    QTest::newRow("share") << u"//server/share"_s << uR"(\\?\UNC\server\share\)"_s;
    QTest::newRow("on a share") << u"//server/share/a/"_s << uR"(\\?\UNC\server\share\a)"_s;
    QTest::newRow("volume") << uR"(\\?\Volume{1-2}\)"_s << uR"(\\?\Volume{1-2}\)"_s;
    QTest::newRow("on a volume") << uR"(\\?\Volume{1-2}\/a/)"_s << uR"(\\?\Volume{1-2}\a)"_s;
    QTest::newRow("dots and blanks in names") << u"C:/a /b./..."_s << uR"(\\?\C:\a \b.\...)"_s;
}

void tst_WindowsFiles::encodedPaths()
{
    QFETCH(QString, given);
    const Result<std::wstring> encoded = encodePath(given);
    QVERIFY(encoded.ok());
    QTEST(QString::fromStdWString(encoded.value()), "expected");
}

void tst_WindowsFiles::namesKeepEveryCharacter()
{
    for (const std::wstring name : {L"\uFEFFa", L"\uFFFEa", L"\xDC80", L"a\xD83D", L"a"}) {
        const QString decoded = decodeName(name);
        QCOMPARE(decoded.size(), qsizetype(name.size()));
        QVERIFY(encodePath(u"C:/"_s + decoded).value() == LR"(\\?\C:\)" + name);
    }
}

void tst_WindowsFiles::opensWithWhatItPromises()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    const auto lastOpening = [&](const QString &name, OpenMode mode) {
        faults.forget();
        const auto file = files.open(path(name), mode);
        return file && !faults.openings().isEmpty() ? faults.openings().constLast() : Win32Faults::Opening{};
    };
    const auto compare = [](const Win32Faults::Opening &opening, DWORD access, DWORD sharing,
                            DWORD disposition, DWORD flags) {
        QCOMPARE(opening.access, access);
        QCOMPARE(opening.sharing, sharing);
        QCOMPARE(opening.disposition, disposition);
        QCOMPARE(opening.flags, flags | DWORD(FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL));
    };
    compare(lastOpening(u"file"_s, OpenMode::Overwrite), 0xC0000000, 1, 3, 0x88000080);
    compare(lastOpening(u"file"_s, OpenMode::Verify), 0x80000000, 3, 3, 0x80);
    compare(lastOpening(u"file"_s, OpenMode::Truncate), 0x40000000, 1, 3, 0x80);
    compare(lastOpening(u"new"_s, OpenMode::CreateFill), 0x40000000, 0, 1, 0x80);
    compare(lastOpening(u"file"_s, OpenMode::CreateFill), 0x40000000, 0, 3, 0x80);
    QCOMPARE(faults.openHandles(), 0);
}

// No call truncates before the entry is known.
void tst_WindowsFiles::fillOverAFileDoesNotFollowOrReplace()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    QVERIFY(files.open(path(u"file"_s), OpenMode::CreateFill).ok());
    for (const Win32Faults::Opening &opening : faults.openings()) {
        QVERIFY(opening.disposition == CREATE_NEW || opening.disposition == OPEN_EXISTING);
        QVERIFY(opening.flags & FILE_FLAG_OPEN_REPARSE_POINT);
    }
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray());
}

void tst_WindowsFiles::verificationDropsTheCacheFirst()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    QVERIFY(files.open(path(u"file"_s), OpenMode::Verify).ok());
    QCOMPARE(faults.openings().size(), 2);
    QVERIFY(faults.openings().constFirst().flags & FILE_FLAG_NO_BUFFERING);
    QVERIFY(!(faults.openings().constLast().flags & FILE_FLAG_NO_BUFFERING));
}

void tst_WindowsFiles::renamesWithWhatItPromises()
{
    static DWORD s_flags = 0;
    Win32Faults faults;
    faults.target().moveFile = [](LPCWSTR from, LPCWSTR to, DWORD flags) -> BOOL {
        s_flags = flags;
        return ::MoveFileExW(from, to, flags);
    };
    writeFile(path(u"file"_s), "abc");
    QVERIFY(files.rename(path(u"file"_s), path(u"new"_s)).ok());
    QCOMPARE(s_flags, DWORD(3));
}

void tst_WindowsFiles::readOnlyFiles()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    QVERIFY(setAttributes(name, FILE_ATTRIBUTE_READONLY));
    if (!isReadOnlyRespected(name))
        QSKIP("SKIPPED: this system writes to read-only files");
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Truncate, OpenMode::CreateFill})
        QCOMPARE(files.open(name, mode).code(), quint32(AccessDenied));
    QVERIFY(files.open(name, OpenMode::Verify).ok());
    QCOMPARE(contentOf(name), QByteArray("abc"));
    QVERIFY(files.clearReadOnly(name).ok());
    QVERIFY(files.open(name, OpenMode::Overwrite).ok());
    QVERIFY(files.remove(name).ok());
}

void tst_WindowsFiles::clearReadOnlyKeepsTheOtherAttributes()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    QVERIFY(setAttributes(name, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
    const DWORD before = attributesAt(name);
    QVERIFY(before & FILE_ATTRIBUTE_READONLY);
    QVERIFY(files.clearReadOnly(name).ok());
    QCOMPARE(attributesAt(name), before & ~DWORD(FILE_ATTRIBUTE_READONLY));
}

void tst_WindowsFiles::hiddenFileIsFilled()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    QVERIFY(folders.hide(name).ok());
    {
        const auto file = files.open(name, OpenMode::CreateFill);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    }
    QCOMPARE(contentOf(name), QByteArray("z"));
}

void tst_WindowsFiles::hideSetsBothAttributes()
{
    writeFile(path(u"file"_s), "abc");
    QVERIFY(folders.hide(path(u"file"_s)).ok());
    constexpr DWORD Both = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    QCOMPARE(attributesAt(path(u"file"_s)) & Both, Both);
}

void tst_WindowsFiles::fileInUse()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    {
        const WinHandle other = otherHandle(name, GENERIC_READ, 0);
        QVERIFY(other.isValid());
        for (const OpenMode mode : EveryMode)
            QCOMPARE(files.open(name, mode).code(), quint32(SharingViolation));
        QCOMPARE(files.remove(name).code, quint32(SharingViolation));
        QCOMPARE(files.rename(name, path(u"new"_s)).code, quint32(SharingViolation));
        const Result<FileInfo> info = files.info(name);
        QVERIFY(info.ok());
        QCOMPARE(info.value().size, 3);
    }
    QCOMPARE(contentOf(name), QByteArray("abc"));
    QVERIFY(files.remove(name).ok());
}

// Until the last handle is closed the system decides whether the name exists.
void tst_WindowsFiles::deletedWhileOpen()
{
    constexpr DWORD Everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    bool isPending = false;
    {
        const WinHandle other = otherHandle(name, GENERIC_READ, Everything);
        QVERIFY(other.isValid());
        QVERIFY(files.remove(name).ok());
        isPending = !otherHandle(name, GENERIC_READ, Everything).isValid();
        for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate}) {
            const quint32 code = files.open(name, mode).code();
            QVERIFY(!isPending || code == AccessDenied || code == FileNotFound);
        }
    }
    QCOMPARE(files.info(name).code(), quint32(FileNotFound));
    if (!isPending)
        QSKIP("SKIPPED: this system lets a deleted file be opened as long as somebody has it open");
}

void tst_WindowsFiles::renameOverAReadOnlyFile()
{
    writeFile(path(u"file"_s), "abc");
    writeFile(path(u"new"_s), "another");
    QVERIFY(setAttributes(path(u"new"_s), FILE_ATTRIBUTE_READONLY));
    if (!isReadOnlyRespected(path(u"new"_s)))
        QSKIP("SKIPPED: this system writes to read-only files");
    QCOMPARE(files.rename(path(u"file"_s), path(u"new"_s)).code, quint32(AccessDenied));
    QCOMPARE(contentOf(path(u"new"_s)), QByteArray("another"));
    QVERIFY(files.clearReadOnly(path(u"new"_s)).ok());
    QVERIFY(files.rename(path(u"file"_s), path(u"new"_s)).ok());
    QCOMPARE(contentOf(path(u"new"_s)), QByteArray("abc"));
}

void tst_WindowsFiles::beyond260Characters()
{
    QString folder = path(u"tree"_s);
    for (int i = 0; i < 5; ++i)
        folder += u'/' + QString(120, QChar(u'a' + i));
    QVERIFY(folders.create(folder).ok());
    const QString name = folder + u"/file"_s;
    {
        const auto file = files.open(name, OpenMode::CreateFill);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("abc", 3).valueOr(-1), 3);
    }
    QCOMPARE(files.info(name).value().size, 3);
    QVERIFY(setAttributes(name, FILE_ATTRIBUTE_READONLY));
    QStringList seen;
    QVERIFY(folders
                .forEachEntry(folder,
                              [&](const QString &entry, FileKind) {
                                  seen.append(entry);
                                  return true;
                              })
                .ok());
    QCOMPARE(seen, QStringList{u"file"_s});
    QVERIFY(files.rename(name, folder + u"/other"_s).ok());
    QVERIFY(folders.removeTree(path(u"tree"_s)).ok());
    QCOMPARE(files.info(path(u"tree"_s)).code(), quint32(FileNotFound));
}

void tst_WindowsFiles::namesThatAreNoText()
{
    const QString name = u"a"_s + QChar(0xD83D) + u"b"_s;
    const WinHandle made(::CreateFileW(toLongPath(path(name)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!made.isValid())
        QSKIP("SKIPPED: this file system takes no lone surrogates");
    QStringList seen;
    QVERIFY(folders
                .forEachEntry(m_folder->path(),
                              [&](const QString &entry, FileKind) {
                                  seen.append(entry);
                                  return true;
                              })
                .ok());
    QCOMPARE(seen, QStringList{name});
    QVERIFY(files.info(path(name)).ok());
}

// "C:" with only the prefix would be the volume as a device.
void tst_WindowsFiles::rootsAreFolders()
{
    const QString drive = QDir::rootPath().left(2);
    for (const QString &root : {drive, drive + u'/', drive + u"//"_s}) {
        QCOMPARE(files.info(root).value().kind, FileKind::Folder);
        for (const OpenMode mode : EveryMode)
            QVERIFY(!files.open(root, mode).ok());
        QVERIFY(folders.create(root).ok());
        QVERIFY(folders.space(root).ok());
        QCOMPARE(folders.removeTree(root).code, quint32(InvalidParameter));
    }
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    for (const QString &name : {u"folder/."_s, u"folder/.."_s})
        QCOMPARE(folders.removeTree(path(name)).code, quint32(InvalidParameter));
    QVERIFY(QDir(path(u"folder"_s)).exists());
}

void tst_WindowsFiles::removeTreeTakesReadOnlyEntries()
{
    QVERIFY(QDir().mkpath(path(u"tree/a/b"_s)));
    for (const QString &name : {u"tree/file"_s, u"tree/a/b/file"_s}) {
        writeFile(path(name), "abc");
        QVERIFY(setAttributes(path(name), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
    }
    for (const QString &name : {u"tree/a/b"_s, u"tree/a"_s, u"tree"_s})
        QVERIFY(setAttributes(path(name), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM));
    const Status status = folders.removeTree(path(u"tree"_s));
    QVERIFY2(status.ok(), qPrintable(status.diagnostic()));
    QVERIFY(snapshot(m_folder->path()).isEmpty());
}

void tst_WindowsFiles::removeTreeGoesOnPastWhatIsInUse()
{
    QVERIFY(QDir().mkpath(path(u"tree/a/b"_s)));
    QVERIFY(QDir().mkpath(path(u"tree/c"_s)));
    for (const QString &name : {u"tree/1"_s, u"tree/3"_s, u"tree/a/b/used"_s, u"tree/a/b/z"_s, u"tree/c/4"_s})
        writeFile(path(name), "abc");
    const WinHandle other = otherHandle(path(u"tree/a/b/used"_s), GENERIC_READ, FILE_SHARE_READ);
    QVERIFY(other.isValid());
    QCOMPARE(folders.removeTree(path(u"tree"_s)).code, quint32(SharingViolation));
    QCOMPARE(snapshot(m_folder->path()).keys(), (QStringList{path(u"tree"_s), path(u"tree/a"_s),
                                                             path(u"tree/a/b"_s), path(u"tree/a/b/used"_s)}));
}

void tst_WindowsFiles::whatAFileOccupiesIsAskedOfSparseAndCompressedOnes_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<qint64>("allocated");
    QTest::newRow("plain") << quint32(0) << true << qint64(-1);
    QTest::newRow("sparse") << quint32(FILE_ATTRIBUTE_SPARSE_FILE) << true << qint64(4096);
    QTest::newRow("compressed") << quint32(FILE_ATTRIBUTE_COMPRESSED) << true << qint64(4096);
    QTest::newRow("not told") << quint32(FILE_ATTRIBUTE_SPARSE_FILE) << false << qint64(-1);
}

void tst_WindowsFiles::whatAFileOccupiesIsAskedOfSparseAndCompressedOnes()
{
    QFETCH(quint32, attributes);
    QFETCH(bool, isTold);
    QFETCH(qint64, allocated);
    writeFile(path(u"file"_s), "abc");
    const OccupiedCalls calls(attributes, isTold);
    const Result<FileInfo> info = files.info(path(u"file"_s));
    QVERIFY(info.ok());
    QCOMPARE(info.value().size, 3);
    QCOMPARE(info.value().allocatedBytes, allocated);
}

void tst_WindowsFiles::aRootMayEndWithEitherSlash()
{
    QCOMPARE(pathInFolder(u"E:\\"_s, u"a"_s), u"E:\\a"_s);
    QCOMPARE(pathInFolder(u"E:/"_s, u"a"_s), u"E:/a"_s);
    QCOMPARE(pathInFolder(u"E:/x"_s, u"a"_s), u"E:/x/a"_s);
}

void tst_WindowsFiles::whatMayBeUsedIsLessThanWhatIsFree()
{
    const OccupiedCalls calls(0, true);
    const Result<SpaceInfo> space = folders.space(m_folder->path());
    QVERIFY(space.ok());
    QCOMPARE(space.value().availableBytes, 1000);
    QCOMPARE(space.value().freeBytes, 2000);
    QCOMPARE(space.value().totalBytes, 3000);
}

void tst_WindowsFiles::linksAreSeen()
{
    writeFile(path(u"a link"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"b link"_s)));
    writeFile(path(u"file"_s), "abc");
    PretendedLinks links;
    for (const QString &name : {u"a link"_s, u"b link"_s}) {
        const Result<FileInfo> info = files.info(path(name));
        QVERIFY(info.ok());
        QCOMPARE(info.value().kind, FileKind::Link);
        QCOMPARE(info.value().size, 0);
    }
    QMap<QString, FileKind> seen;
    QVERIFY(folders
                .forEachEntry(m_folder->path(),
                              [&](const QString &name, FileKind kind) {
                                  seen.insert(name, kind);
                                  return true;
                              })
                .ok());
    const QMap<QString, FileKind> expected{
        {u"a link"_s, FileKind::Link}, {u"b link"_s, FileKind::Link}, {u"file"_s, FileKind::Regular}};
    QCOMPARE(seen, expected);
}

void tst_WindowsFiles::openOfALinkIsRefused()
{
    writeFile(path(u"link"_s), "abc");
    PretendedLinks links;
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files.open(path(u"link"_s), mode).code(), quint32(CannotAccessFile));
    QCOMPARE(contentOf(path(u"link"_s)), QByteArray("abc"));
    QCOMPARE(links.faults().openHandles(), 0);
}

// The first check still found a file.
void tst_WindowsFiles::openOfALinkThatIsSwappedIn()
{
    writeFile(path(u"link"_s), "abc");
    PretendedLinks links;
    links.faults().target().getFileAttributes = &::GetFileAttributesW;
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files.open(path(u"link"_s), mode).code(), quint32(CannotAccessFile));
    QCOMPARE(contentOf(path(u"link"_s)), QByteArray("abc"));
    QCOMPARE(links.faults().openHandles(), 0);
}

// Deduplicated files and placeholders do not count as links, because removing them would then be taken for
// erasing them.
void tst_WindowsFiles::filesWhoseBytesLieElsewhere()
{
    writeFile(path(u"link"_s), "abc");
    PretendedLinks deduplicated(IO_REPARSE_TAG_DEDUP);
    const Result<FileInfo> info = files.info(path(u"link"_s));
    QVERIFY(info.ok());
    QCOMPARE(info.value().kind, FileKind::Regular);
    QCOMPARE(info.value().size, 3);
    QList<FileKind> seen;
    QVERIFY(folders
                .forEachEntry(m_folder->path(),
                              [&](const QString &, FileKind kind) {
                                  seen.append(kind);
                                  return true;
                              })
                .ok());
    QCOMPARE(seen, QList<FileKind>{FileKind::Regular});
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files.open(path(u"link"_s), mode).code(), quint32(CannotAccessFile));
    QCOMPARE(contentOf(path(u"link"_s)), QByteArray("abc"));
}

// The reparse point means that copies exist elsewhere, while the bytes are local.
void tst_WindowsFiles::filesThatAreInACloudToo()
{
    writeFile(path(u"a link"_s), "abc");
    writeFile(path(u"plain"_s), "abc");
    for (const DWORD tag : {CloudTag, CloudTag | 0x1000, CloudTag | 0xF000}) {
        const PretendedLinks cloud(tag, FILE_ATTRIBUTE_REPARSE_POINT | Pinned);
        const Result<FileInfo> info = files.info(path(u"a link"_s));
        QVERIFY(info.ok());
        QCOMPARE(info.value().kind, FileKind::Regular);
        QCOMPARE(info.value().size, 3);
        QVERIFY(info.value().isInCloud);
        QVERIFY(!files.info(path(u"plain"_s)).value().isInCloud);
        for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate})
            QVERIFY(files.open(path(u"a link"_s), mode).ok());
        QVERIFY(files.contentPlace(path(u"a link"_s)).ok());
        QCOMPARE(files.readBeginning(path(u"a link"_s), 9).value(), QByteArray("abc"));
        QVERIFY(files.openForAppending(path(u"a link"_s)).ok());
    }
}

void tst_WindowsFiles::foldersThatAreInACloudToo()
{
    QVERIFY(QDir().mkpath(path(u"link/sub/sublink"_s)));
    writeFile(path(u"link/sub/sublink/file"_s), "abc");
    const PretendedLinks cloud(CloudTag);
    {
        const auto held = folders.hold(m_folder->path());
        QVERIFY(held.ok());
        const auto entered = folders.holdIn(held.value(), u"link"_s, Folders::Mounts::Refuse);
        QVERIFY2(entered.ok(), qPrintable(entered.status().diagnostic()));
        QStringList names;
        QVERIFY(folders
                    .forEachEntry(EntryPath(entered.value(), {}),
                                  [&names](const QString &name, FileKind kind) {
                                      names += name;
                                      return kind == FileKind::Folder;
                                  })
                    .ok());
        QCOMPARE(names, QStringList{u"sub"_s});
    }
    QVERIFY(folders.create(path(u"link"_s)).ok());
    QVERIFY(folders.space(path(u"link"_s)).ok());
    // Removing a file must not remove a folder.
    QVERIFY(QDir().mkpath(path(u"empty link"_s)));
    QVERIFY(!files.remove(path(u"empty link"_s)).ok());
    QVERIFY(QDir(path(u"empty link"_s)).exists());
    QVERIFY(folders.removeEmpty(path(u"empty link"_s)).ok());
    QVERIFY(folders.removeTree(path(u"link"_s)).ok());
    QVERIFY(!QDir(path(u"link"_s)).exists());
}

void tst_WindowsFiles::everyOtherTagIsRefused_data()
{
    QTest::addColumn<quint32>("tag");
    QTest::addColumn<quint32>("ofFolder");
    QTest::newRow("mount point") << quint32(IO_REPARSE_TAG_MOUNT_POINT) << quint32(PathNotFound);
    QTest::newRow("symbolic link") << quint32(IO_REPARSE_TAG_SYMLINK) << quint32(PathNotFound);
    QTest::newRow("deduplicated") << quint32(IO_REPARSE_TAG_DEDUP) << quint32(CannotAccessFile);
    QTest::newRow("projected") << quint32(0x9000001C) << quint32(CannotAccessFile);
    QTest::newRow("compressed by the system") << quint32(0x80000017) << quint32(CannotAccessFile);
    QTest::newRow("no folder bit") << quint32(0x8000001A) << quint32(CannotAccessFile);
    QTest::newRow("another bit") << quint32(0x9001001A) << quint32(CannotAccessFile);
    QTest::newRow("a link") << quint32(0xB000001A) << quint32(PathNotFound);
    QTest::newRow("none") << quint32(0) << quint32(CannotAccessFile);
}

void tst_WindowsFiles::everyOtherTagIsRefused()
{
    QFETCH(quint32, tag);
    QFETCH(quint32, ofFolder);
    writeFile(path(u"a link"_s), "abc");
    writeFile(path(u"b link/file"_s), "abc");
    const PretendedLinks links(tag);
    for (const OpenMode mode : EveryMode)
        QCOMPARE(files.open(path(u"a link"_s), mode).code(), quint32(CannotAccessFile));
    QVERIFY(!files.readBeginning(path(u"a link"_s), 3).ok());
    const auto held = folders.hold(m_folder->path());
    QVERIFY(held.ok());
    QCOMPARE(folders.holdIn(held.value(), u"b link"_s, Folders::Mounts::Refuse).code(), ofFolder);
    const auto visit = [](const QString &, FileKind) {
        QTest::qFail("nothing was to be seen", __FILE__, __LINE__);
        return true;
    };
    QCOMPARE(folders.forEachEntry(path(u"b link"_s), visit).code, ofFolder);
    QCOMPARE(contentOf(path(u"a link"_s)), QByteArray("abc"));
}

void tst_WindowsFiles::whatIsOnlyInACloudIsLeftThere_data()
{
    QTest::addColumn<quint32>("tag");
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<bool>("isRefused");
    const auto row = [](const char *name, DWORD tag, DWORD bits, bool isRefused) {
        QTest::newRow(name) << quint32(tag) << quint32(bits) << isRefused;
    };
    constexpr DWORD Marked = FILE_ATTRIBUTE_REPARSE_POINT;
    row("recalled when read", CloudTag, Marked | RecallOnDataAccess, true);
    row("recalled when opened", CloudTag, Marked | RecallOnOpen, true);
    row("offline", CloudTag, Marked | FILE_ATTRIBUTE_OFFLINE, true);
    row("all of it", CloudTag, Marked | RecallOnDataAccess | FILE_ATTRIBUTE_OFFLINE, true);
    row("the mark is hidden", 0, RecallOnDataAccess, true);
    // Attributes without meaning when the reparse point is missing.
    row("offline as a user says", 0, FILE_ATTRIBUTE_OFFLINE, false);
    row("with extended attributes", 0, RecallOnOpen, false);
}

void tst_WindowsFiles::whatIsOnlyInACloudIsLeftThere()
{
    QFETCH(quint32, tag);
    QFETCH(quint32, bits);
    QFETCH(bool, isRefused);
    const quint32 expected = isRefused ? FileOffline : NoError;
    writeFile(path(u"a link"_s), "abc");
    writeFile(path(u"b link/file"_s), "abc");
    PretendedLinks cloud(tag, bits);
    for (const OpenMode mode : {OpenMode::Verify, OpenMode::Overwrite, OpenMode::Truncate}) {
        cloud.faults().forget();
        QCOMPARE(files.open(path(u"a link"_s), mode).code(), expected);
        QVERIFY(!isRefused || cloud.faults().openings().isEmpty());
    }
    QCOMPARE(files.contentPlace(path(u"a link"_s)).code(), expected);
    QCOMPARE(files.readBeginning(path(u"a link"_s), 3).code(), expected);
    const int listings = cloud.faults().seen(Win32Faults::FindNextFile_);
    QStringList seen;
    const Status listed = folders.forEachEntry(path(u"b link"_s), [&seen](const QString &name, FileKind) {
        seen += name;
        return true;
    });
    QCOMPARE(listed.code, expected);
    QCOMPARE(seen, isRefused ? QStringList() : QStringList{u"file"_s});
    QVERIFY(!isRefused || cloud.faults().seen(Win32Faults::FindNextFile_) == listings);
    const auto held = folders.hold(m_folder->path());
    QVERIFY(held.ok());
    QCOMPARE(folders.holdIn(held.value(), u"b link"_s, Folders::Mounts::Refuse).code(), expected);
    QCOMPARE(contentOf(path(u"a link"_s)), QByteArray("abc"));
}

// The content was local at the first check.
void tst_WindowsFiles::whatIsTakenToACloudMeanwhile()
{
    writeFile(path(u"a link"_s), "abc");
    PretendedLinks cloud(CloudTag, FILE_ATTRIBUTE_REPARSE_POINT | RecallOnDataAccess);
    cloud.faults().target().getFileAttributes = &::GetFileAttributesW;
    for (const OpenMode mode : EveryMode) {
        QCOMPARE(files.open(path(u"a link"_s), mode).code(), quint32(FileOffline));
        QVERIFY(cloud.faults().openings().constLast().flags & FILE_FLAG_OPEN_NO_RECALL);
    }
    QCOMPARE(cloud.faults().seen(Win32Faults::ReadFile_), 0);
    QCOMPARE(cloud.faults().openHandles(), 0);
    QCOMPARE(contentOf(path(u"a link"_s)), QByteArray("abc"));
}

void tst_WindowsFiles::newFilesAreStoredAsTheyAreWritten_data()
{
    QTest::addColumn<quint32>("error");
    QTest::addColumn<bool>("staysCompressed");
    QTest::addColumn<quint32>("expected");
    QTest::newRow("done") << quint32(ERROR_SUCCESS) << false << quint32(NoError);
    QTest::newRow("no compression there") << quint32(ERROR_INVALID_FUNCTION) << false << quint32(NoError);
    QTest::newRow("not supported there") << quint32(ERROR_NOT_SUPPORTED) << false << quint32(NoError);
    QTest::newRow("refused") << quint32(ERROR_ACCESS_DENIED) << false << quint32(AccessDenied);
    QTest::newRow("to no effect") << quint32(ERROR_SUCCESS) << true << quint32(NotSupported);
    QTest::newRow("not supported, yet compressed")
        << quint32(ERROR_NOT_SUPPORTED) << true << quint32(NotSupported);
}

// A fill file of zeros covers nothing when it is stored compressed.
void tst_WindowsFiles::newFilesAreStoredAsTheyAreWritten()
{
    QFETCH(quint32, error);
    QFETCH(bool, staysCompressed);
    QFETCH(quint32, expected);
    static quint32 s_error;
    static bool s_compressed;
    static QList<int> s_formats;
    s_error = error;
    s_compressed = staysCompressed;
    s_formats.clear();
    Win32Faults faults;
    faults.target().deviceIoControl = [](HANDLE, DWORD code, LPVOID input, DWORD size, LPVOID, DWORD, LPDWORD,
                                         LPOVERLAPPED) -> BOOL {
        if (code == FSCTL_SET_COMPRESSION && size == sizeof(USHORT))
            s_formats.append(*static_cast<USHORT *>(input));
        ::SetLastError(s_error);
        return s_error == ERROR_SUCCESS;
    };
    faults.target().getFileInformation = [](HANDLE handle, LPBY_HANDLE_FILE_INFORMATION file) -> BOOL {
        const BOOL found = ::GetFileInformationByHandle(handle, file);
        if (s_compressed && !(file->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            file->dwFileAttributes |= FILE_ATTRIBUTE_COMPRESSED;
        return found;
    };
    {
        const auto folder = folders.anchor(m_folder->path());
        QVERIFY(folder.ok());
        faults.forget();
        QCOMPARE(folder.value()->createFile(u"fill"_s).code(), expected);
        // The system accepts the request only on a handle with both accesses.
        QCOMPARE(faults.openings().constLast().access, DWORD(GENERIC_READ | GENERIC_WRITE));
    }
    QCOMPARE(s_formats, QList<int>{COMPRESSION_FORMAT_NONE});
    QCOMPARE(faults.openHandles(), 0);
}

void tst_WindowsFiles::pathsOfStreams()
{
    const auto host = [](const wchar_t *path) { return QString::fromStdWString(withoutStream(path)); };
    QCOMPARE(host(LR"(\\?\C:\a\b)"), uR"(\\?\C:\a\b)"_s);
    QCOMPARE(host(LR"(\\?\C:\a\b:s:$DATA)"), uR"(\\?\C:\a\b)"_s);
    QCOMPARE(host(LR"(\\?\C:\)"), uR"(\\?\C:\)"_s);
    QCOMPARE(host(LR"(\\?\UNC\server\share\b:s)"), uR"(\\?\UNC\server\share\b)"_s);
}

void tst_WindowsFiles::linksAreNoFolders()
{
    QVERIFY(QDir().mkdir(path(u"link"_s)));
    PretendedLinks links;
    const auto visit = [](const QString &, FileKind) {
        QTest::qFail("nothing was to be seen", __FILE__, __LINE__);
        return true;
    };
    QCOMPARE(folders.forEachEntry(path(u"link"_s), visit).code, quint32(PathNotFound));
    QCOMPARE(folders.create(path(u"link"_s)).code, quint32(AlreadyExists));
    QCOMPARE(folders.removeEmpty(path(u"link"_s)).code, quint32(PathNotFound));
    QCOMPARE(folders.removeTree(path(u"link"_s)).code, quint32(PathNotFound));
    QVERIFY(folders.space(path(u"link"_s)).ok());
    QVERIFY(QDir(path(u"link"_s)).exists());
    QVERIFY(files.remove(path(u"link"_s)).ok());
    QVERIFY(!QDir(path(u"link"_s)).exists());
}

// The link is a real folder here, so it cannot be removed while it has entries.
void tst_WindowsFiles::removeTreeDoesNotEnterLinks()
{
    QVERIFY(QDir().mkpath(path(u"tree/a/link"_s)));
    writeFile(path(u"tree/a/link/file"_s), "abc");
    writeFile(path(u"tree/b"_s), "abc");
    {
        PretendedLinks links;
        QCOMPARE(folders.removeTree(path(u"tree"_s)).code, quint32(DirectoryNotEmpty));
    }
    QCOMPARE(contentOf(path(u"tree/a/link/file"_s)), QByteArray("abc"));
    QVERIFY(!QFile::exists(path(u"tree/b"_s)));
}

void tst_WindowsFiles::junctionsAreRemovedThemselves()
{
    QVERIFY(QDir().mkpath(path(u"tree"_s)));
    QVERIFY(QDir().mkpath(path(u"outside"_s)));
    writeFile(path(u"outside/file"_s), "abc");
    const QString link = path(u"tree/junction"_s);
    ::CreateSymbolicLinkW(toLongPath(link).c_str(),
                          QDir::toNativeSeparators(path(u"outside"_s)).toStdWString().c_str(),
                          SYMBOLIC_LINK_FLAG_DIRECTORY | SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE);
    const DWORD attributes = attributesAt(link);
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        QSKIP("SKIPPED: links cannot be created here");
    QCOMPARE(files.info(link).value().kind, FileKind::Link);
    QCOMPARE(files.open(link, OpenMode::Overwrite).code(), quint32(CannotAccessFile));
    QVERIFY(folders.removeTree(path(u"tree"_s)).ok());
    QCOMPARE(contentOf(path(u"outside/file"_s)), QByteArray("abc"));
}

void tst_WindowsFiles::transfersGoOnAfterShortOnes()
{
    writeFile(path(u"file"_s), QByteArray(5000, 'a'));
    Win32Faults faults;
    faults.target().writeFile = [](HANDLE file, LPCVOID data, DWORD size, LPDWORD count,
                                   LPOVERLAPPED overlapped) -> BOOL {
        return ::WriteFile(file, data, qMin<DWORD>(size, 700), count, overlapped);
    };
    faults.target().readFile = [](HANDLE file, LPVOID data, DWORD size, LPDWORD count,
                                  LPOVERLAPPED overlapped) -> BOOL {
        return ::ReadFile(file, data, qMin<DWORD>(size, 300), count, overlapped);
    };
    QRandomGenerator random = printedRandom();
    const QByteArray bytes = randomBytes(random, 5000);
    const auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(bytes.constData(), bytes.size()).valueOr(-1), bytes.size());
    QVERIFY(file.value()->seek(0).ok());
    QByteArray found(6000, '\0');
    QCOMPARE(file.value()->read(found.data(), found.size()).valueOr(-1), bytes.size());
    QCOMPARE(firstDifference(found.left(5000), bytes), -1);
}

// More than a 32-bit length holds. The memory is only reserved and never read.
void tst_WindowsFiles::transfersGoInPieces()
{
    constexpr qint64 Size = 5LL * 1024 * 1024 * 1024 + 77;
    void *const memory = ::VirtualAlloc(nullptr, SIZE_T(Size), MEM_RESERVE, PAGE_NOACCESS);
    QVERIFY(memory);
    writeFile(path(u"file"_s), {});
    Win32Faults faults;
    faults.target().writeFile = &answeredWrite;
    faults.target().readFile = &answeredRead;
    const auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    for (const bool isRead : {false, true}) {
        s_asked.clear();
        s_answers = QList<Answer>(6, Answer{MAXDWORD, ERROR_SUCCESS});
        const Result<qint64> count =
            isRead ? file.value()->read(memory, Size) : file.value()->write(memory, Size);
        QCOMPARE(count.valueOr(-1), Size);
        QCOMPARE(s_asked.size(), 6);
        for (const DWORD asked : std::as_const(s_asked))
            QVERIFY(asked <= DWORD(1024) * 1024 * 1024);
    }
    QVERIFY(::VirtualFree(memory, 0, MEM_RELEASE));
}

void tst_WindowsFiles::endOfFileIsNoFailure()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    faults.target().readFile = &answeredRead;
    const auto file = files.open(path(u"file"_s), OpenMode::Verify);
    QVERIFY(file.ok());
    char bytes[100];
    s_answers = {{10, ERROR_SUCCESS}, {0, ERROR_HANDLE_EOF}};
    QCOMPARE(file.value()->read(bytes, 100).valueOr(-1), 10);
    s_answers = {{10, ERROR_SUCCESS}, {0, ERROR_CRC}};
    QCOMPARE(file.value()->read(bytes, 100).code(), quint32(ERROR_CRC));
}

void tst_WindowsFiles::noRoomEndsAWrite()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    faults.target().writeFile = &answeredWrite;
    const auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    const char bytes[100] = {};
    for (const DWORD error : {112, 39, 1295, 223}) {
        s_answers = {{10, ERROR_SUCCESS}, {0, error}};
        QCOMPARE(file.value()->write(bytes, 100).valueOr(-1), 10);
        s_answers = {{0, error}};
        QCOMPARE(file.value()->write(bytes, 100).code(), quint32(error));
    }
    s_answers = {{10, ERROR_SUCCESS}, {0, Injected}};
    QCOMPARE(file.value()->write(bytes, 100).code(), quint32(Injected));
    s_answers = {{10, ERROR_SUCCESS}, {0, ERROR_SUCCESS}};
    QCOMPARE(file.value()->write(bytes, 100).valueOr(-1), 10);
}

// The call had moved the file pointer before it failed.
void tst_WindowsFiles::positionAfterAFailure()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abcdef");
    Win32Faults faults;
    const auto file = files.open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(1).ok());
    faults.target().writeFile = [](HANDLE handle, LPCVOID data, DWORD size, LPDWORD count,
                                   LPOVERLAPPED overlapped) -> BOOL {
        ::WriteFile(handle, data, size, count, overlapped);
        ::SetLastError(Injected);
        return FALSE;
    };
    QCOMPARE(file.value()->write("12", 2).code(), quint32(Injected));
    faults.target().writeFile = &::WriteFile;
    QCOMPARE(file.value()->write("xy", 2).valueOr(-1), 2);
    QCOMPARE(contentOf(name), QByteArray("axydef"));
}

void tst_WindowsFiles::failedFlushStaysFailed()
{
    writeFile(path(u"file"_s), "abc");
    Win32Faults faults;
    const auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    faults.fail(Win32Faults::FlushFileBuffers_, 1, Injected);
    QCOMPARE(file.value()->flush().code, quint32(Injected));
    QCOMPARE(file.value()->flush().code, quint32(Injected));
}

void tst_WindowsFiles::everyCallFailsOnce_data()
{
    QTest::addColumn<int>("operation");
    for (int i = 0; i < operations().size(); ++i)
        QTest::newRow(operations().at(i).name) << i;
}

void tst_WindowsFiles::fillFolder()
{
    QVERIFY(QDir().mkpath(path(u"at/tree/a/b"_s)));
    QVERIFY(QDir().mkpath(path(u"at/tree/c"_s)));
    QVERIFY(QDir().mkpath(path(u"at/empty"_s)));
    for (const QString &name : {u"beside"_s, u"at/file"_s, u"at/tree/1"_s, u"at/tree/read-only"_s,
                                u"at/tree/a/2"_s, u"at/tree/a/b/3"_s})
        writeFile(path(name), "abc");
    QVERIFY(setAttributes(path(u"at/tree/read-only"_s), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
}

void tst_WindowsFiles::everyCallFailsOnce()
{
    QFETCH(int, operation);
    const Operation &scenario = operations().at(operation);
    int fired = 0;
    for (int call = 0; call <= Win32Faults::GetDiskFreeSpace_; ++call) {
        for (int nth = 1;; ++nth) {
            fillFolder();
            QVERIFY(!QTest::currentTestFailed());
            const QMap<QString, QByteArray> before = snapshot(path(u"at"_s));
            Win32Faults faults;
            faults.fail(call, nth, Injected);
            const Status status = scenario.run(path(u"at"_s));
            const QByteArray where =
                "call " + QByteArray::number(call) + ", number " + QByteArray::number(nth);
            QVERIFY2(faults.openHandles() == 0, where.constData());
            QCOMPARE(contentOf(path(u"beside"_s)), QByteArray("abc"));
            const bool isOver = faults.fired() == 0;
            const bool isClosing = call == Win32Faults::CloseHandle_ || call == Win32Faults::FindClose_;
            if (isOver || isClosing || scenario.forgiven.contains({call, nth})) {
                QVERIFY2(status.ok(), (where + ": " + status.diagnostic().toUtf8()).constData());
            } else {
                ++fired;
                QVERIFY2(status.code == Injected, (where + ": " + status.diagnostic().toUtf8()).constData());
                if (scenario.changesNothing)
                    QVERIFY2(snapshot(path(u"at"_s)) == before, where.constData());
            }
            faults.failNothing();
            QVERIFY(folders.removeTree(path(u"at"_s)).ok());
            if (isOver)
                break;
        }
    }
    QVERIFY(fired > 0);
}

void tst_WindowsFiles::systemVolume()
{
    WindowsSession session;
    const QByteArray before = qgetenv("SystemDrive");
    qputenv("SystemDrive", "Q:");
    QCOMPARE(session.systemVolumes(), QStringList{u"Q:"_s});
    qunsetenv("SystemDrive");
    QCOMPARE(session.systemVolumes(), QStringList{u"C:"_s});
    qputenv("SystemDrive", before);
    QVERIFY(session.isSystemRoot(u"c:/"_s));
    QVERIFY(!session.isSystemRoot(u"D:/"_s));
    Win32Faults faults;
    faults.target().getWindowsDirectory = [](LPWSTR folder, UINT) -> UINT {
        const std::wstring_view name = LR"(W:\Windows)";
        std::copy(name.begin(), name.end(), folder);
        return UINT(name.size());
    };
    QVERIFY(session.holdsSystemFiles(u"w:/"_s));
    QVERIFY(!session.holdsSystemFiles(u"C:/"_s));
}

void tst_WindowsFiles::userIsNamedByTheSid()
{
    WindowsSession session;
    const QString user = session.userId();
    QVERIFY2(QRegularExpression(u"^S-1-[0-9]+(-[0-9]+)+$"_s).match(user).hasMatch(), qPrintable(user));

    Win32Faults faults;
    for (const int call : {int(Win32Faults::OpenProcessToken_), int(Win32Faults::GetTokenInformation_),
                           int(Win32Faults::ConvertSidToStringSid_)}) {
        faults.fail(call, 1, ERROR_ACCESS_DENIED, Win32Faults::FromThenOn);
        QCOMPARE(session.userId(), QString());
        QVERIFY(faults.fired() > 0);
        QCOMPARE(faults.openHandles(), 0);
        QCOMPARE(faults.openMemory(), 0);
    }
    // The query for the size succeeds, the one for the content fails.
    faults.fail(Win32Faults::GetTokenInformation_, 2, ERROR_ACCESS_DENIED);
    QCOMPARE(session.userId(), QString());
    QCOMPARE(faults.fired(), 1);
    faults.failNothing();
    QCOMPARE(session.userId(), user);
    QCOMPARE(faults.openHandles(), 0);
    QCOMPARE(faults.openMemory(), 0);
}

void tst_WindowsFiles::rightsAreThoseOfTheToken()
{
    WindowsSession session;
    Win32Faults faults;
    static DWORD s_elevated = 0;
    faults.target().getTokenInformation = [](HANDLE, TOKEN_INFORMATION_CLASS asked, LPVOID reply, DWORD room,
                                             PDWORD size) -> BOOL {
        if (asked != TokenElevation || room != sizeof(TOKEN_ELEVATION))
            return FALSE;
        static_cast<TOKEN_ELEVATION *>(reply)->TokenIsElevated = s_elevated;
        *size = room;
        return TRUE;
    };
    for (const bool elevated : {false, true}) {
        s_elevated = elevated ? 1 : 0;
        const auto rights = session.isAdministrator();
        QVERIFY(rights.ok());
        QCOMPARE(rights.value(), elevated);
    }
    for (const int call : {int(Win32Faults::OpenProcessToken_), int(Win32Faults::GetTokenInformation_)}) {
        faults.fail(call, 1, ERROR_NOT_ENOUGH_MEMORY);
        QCOMPARE(session.isAdministrator().code(), quint32(ERROR_NOT_ENOUGH_MEMORY));
        QCOMPARE(faults.fired(), 1);
    }
    QCOMPARE(faults.openHandles(), 0);
}

QUORVEX_SUITE(tst_WindowsFiles, QCoreApplication)
#include "tst_windowsfiles.moc"

#include <winioctl.h>
