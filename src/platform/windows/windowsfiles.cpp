#include "platform/windows/windowsfiles.h"

#include "platform/windows/windowscontentplace.h"
#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilehandle.h"
#include "platform/windows/windowsfileid.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowsfolderhandle.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsstreams.h"

#include <limits>

namespace platform {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// Links are not followed, and no content is fetched from a cloud.
constexpr DWORD AsItIs = FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL;

struct OpenParameters
{
    DWORD access;
    DWORD share;
    DWORD flags;
};

OpenParameters parametersOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Overwrite:
        return {GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                FILE_FLAG_WRITE_THROUGH | FILE_FLAG_SEQUENTIAL_SCAN | FILE_ATTRIBUTE_NORMAL};
    case OpenMode::Verify:
        return {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, FILE_ATTRIBUTE_NORMAL};
    case OpenMode::Truncate:
        return {GENERIC_WRITE, FILE_SHARE_READ, FILE_ATTRIBUTE_NORMAL};
    case OpenMode::CreateFill:
        return {GENERIC_WRITE, 0, FILE_ATTRIBUTE_NORMAL};
    }
    Q_UNREACHABLE();
}

WinHandle openFile(const std::wstring &path, const OpenParameters &how, DWORD disposition)
{
    return WinHandle(fileCalls().createFile(path.c_str(), how.access, how.share, nullptr, disposition,
                                            how.flags | AsItIs, nullptr));
}

// Opening a file unbuffered drops its pages from the cache unless another handle is open. A failure is
// ignored here, because the following open reports it.
void dropCached(const std::wstring &path)
{
    openFile(path, {GENERIC_READ, ShareAll, FILE_FLAG_NO_BUFFERING}, OPEN_EXISTING);
}

Result<WinHandle> openExisting(const std::wstring &path, OpenMode mode)
{
    // Opening an entry other than a regular file may already have side effects.
    const Result<EntryAttributes> found = attributesOf(path);
    if (!found)
        return found.status();
    if (const Status refusal = refusalOf(found.value(), "GetFileAttributes"); !refusal)
        return refusal;
    if (mode == OpenMode::Verify)
        dropCached(path);
    WinHandle file = openFile(path, parametersOf(mode), OPEN_EXISTING);
    if (!file.isValid())
        return statusFromLastError("CreateFile");
    // The entry may have been replaced since the check.
    const Result<EntryAttributes> opened = attributesOf(file.get());
    if (!opened)
        return opened.status();
    if (const Status refusal = refusalOf(opened.value(), "GetFileInformationByHandle"); !refusal)
        return refusal;
    return file;
}

// Does the work of CREATE_ALWAYS in two steps, because that flag follows links and truncates their targets,
// and refuses hidden and system files.
Result<WinHandle> createOrCut(const std::wstring &path)
{
    WinHandle created = openFile(path, parametersOf(OpenMode::CreateFill), CREATE_NEW);
    if (created.isValid())
        return created;
    const Status refusal = statusFromLastError("CreateFile");
    if (refusal.native != ERROR_FILE_EXISTS && refusal.native != ERROR_ALREADY_EXISTS)
        return refusal;
    Result<WinHandle> existing = openExisting(path, OpenMode::CreateFill);
    if (existing && !fileCalls().setEndOfFile(existing.value().get()))
        return statusFromLastError("SetEndOfFile");
    return existing;
}

struct OpenedInfo
{
    BY_HANDLE_FILE_INFORMATION file = {};
    qint64 allocatedBytes = -1; // of a sparse or compressed file only
};

qint64 allocatedBytesOf(HANDLE file)
{
    FILE_COMPRESSION_INFO compression = {};
    if (!fileCalls().getFileInformationEx(file, FileCompressionInfo, &compression, sizeof compression))
        return -1;
    return compression.CompressedFileSize.QuadPart;
}

// The link count, the identity and the allocated size, which only an open handle tells.
Result<OpenedInfo> openedInfo(const std::wstring &path)
{
    const WinHandle file = openForAttributes(path);
    if (!file.isValid())
        return statusFromLastError("CreateFile");
    OpenedInfo opened;
    if (!fileCalls().getFileInformation(file.get(), &opened.file))
        return statusFromLastError("GetFileInformationByHandle");
    if (opened.file.dwFileAttributes & (FILE_ATTRIBUTE_SPARSE_FILE | FILE_ATTRIBUTE_COMPRESSED))
        opened.allocatedBytes = allocatedBytesOf(file.get());
    return opened;
}

// Opens a file or folder for queries only.
Result<WinHandle> openToAsk(const EntryPath &entry)
{
    const Result<std::wstring> name = encodePath(entry);
    if (!name)
        return name.status();
    const Result<EntryAttributes> found = attributesOf(name.value());
    if (!found)
        return found.status();
    if (!isPlainFolder(found.value())) {
        if (const Status refusal = refusalOf(found.value(), "GetFileAttributes"); !refusal)
            return refusal;
    }
    WinHandle file = openForAttributes(name.value(), FILE_FLAG_BACKUP_SEMANTICS);
    if (!file.isValid())
        return statusFromLastError("CreateFile");
    return file;
}

ContentPlace placeOfStream(const EntryPath &entry, const NamedStream &stream)
{
    const ContentPlace unreachable{Elsewhere::NamedStreams, stream.size};
    const Result<std::wstring> name = encodePath(entry.stream(stream.name));
    if (!name)
        return unreachable;
    const WinHandle opened = openForAttributes(name.value());
    return opened.isValid() ? contentPlaceOf(opened.get()).valueOr(unreachable) : unreachable;
}

void addPlace(ContentPlace &place, const ContentPlace &more)
{
    place.elsewhere |= more.elsewhere;
    place.bytes += more.bytes;
}

int linkCountOf(const BY_HANDLE_FILE_INFORMATION &file)
{
    constexpr DWORD Most = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(DWORD(1), file.nNumberOfLinks, Most));
}

} // namespace

Result<FileInfo> WindowsFiles::info(const EntryPath &entry)
{
    const Result<std::wstring> name = encodePath(entry);
    if (!name)
        return name.status();
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (!fileCalls().getFileAttributesEx(name.value().c_str(), GetFileExInfoStandard, &found))
        return statusFromLastError("GetFileAttributesEx");
    const Result<EntryAttributes> attributes = withTag(name.value(), found.dwFileAttributes);
    if (!attributes)
        return attributes.status();
    FileInfo info;
    info.kind = fileKindFromAttributes(attributes.value());
    info.isInCloud = isInCloud(attributes.value());
    if (info.kind != FileKind::Regular)
        return info;
    info.size = static_cast<qint64>(quint64(found.nFileSizeHigh) << 32 | found.nFileSizeLow);
    const auto opened = openedInfo(name.value());
    if (!opened)
        return opened.status();
    info.allocatedBytes = opened.value().allocatedBytes;
    info.linkCount = linkCountOf(opened.value().file);
    info.id = fileIdFrom(opened.value().file);
    return info;
}

Result<std::unique_ptr<FileHandle>> WindowsFiles::openIn(const std::shared_ptr<DurabilityGroup> &,
                                                         const EntryPath &entry, OpenMode mode)
{
    const Result<std::wstring> name = encodePath(entry);
    if (!name)
        return name.status();
    Result<WinHandle> file =
        mode == OpenMode::CreateFill ? createOrCut(name.value()) : openExisting(name.value(), mode);
    if (!file)
        return file.status();
    return std::unique_ptr<FileHandle>(std::make_unique<WindowsFileHandle>(file.take()));
}

// Flushing a volume needs an administrator and does not report earlier write errors.
Result<std::shared_ptr<DurabilityGroup>> WindowsFiles::beginGroup(const EntryPath &)
{
    return Status{NotSupported, 0, "beginGroup"};
}

Status WindowsFiles::closeGroup(DurabilityGroup &)
{
    return {NotSupported, 0, "closeGroup"};
}

Result<ContentPlace> WindowsFiles::contentPlace(const EntryPath &entry)
{
    const Result<WinHandle> opened = openToAsk(entry);
    if (!opened)
        return opened.status();
    Result<ContentPlace> place = contentPlaceOf(opened.value().get());
    // A folder has no content of its own, and its place applies to other files.
    if (!place || place.value().bytes < 0)
        return place;
    const Result<QList<NamedStream>> streams = namedStreamsOf(opened.value().get());
    if (!streams)
        return streams.status();
    for (const NamedStream &stream : streams.value())
        addPlace(place.value(), placeOfStream(entry, stream));
    return place;
}

Result<QList<NamedStream>> WindowsFiles::namedStreams(const EntryPath &entry)
{
    const Result<WinHandle> opened = openToAsk(entry);
    if (!opened)
        return opened.status();
    return namedStreamsOf(opened.value().get());
}

Status WindowsFiles::clearReadOnly(const EntryPath &entry)
{
    const Result<std::wstring> name = encodePath(entry);
    if (!name)
        return name.status();
    const Result<EntryAttributes> attributes = attributesOf(name.value());
    if (!attributes)
        return attributes.status().isAbsent() ? Status{} : attributes.status();
    return clearReadOnlyAttribute(name.value(), attributes.value().bits);
}

Status WindowsFiles::rename(const EntryPath &from, const EntryPath &to)
{
    const Result<std::wstring> source = encodePath(from);
    const Result<std::wstring> target = encodePath(to);
    if (!source || !target)
        return source ? target.status() : source.status();
    constexpr DWORD Flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED;
    return statusOf(fileCalls().moveFile(source.value().c_str(), target.value().c_str(), Flags),
                    "MoveFileEx");
}

Status WindowsFiles::remove(const EntryPath &entry)
{
    const Result<std::wstring> name = encodePath(entry);
    if (!name)
        return name.status();
    const Result<EntryAttributes> attributes = attributesOf(name.value());
    if (!attributes)
        return attributes.status();
    if (isFolderLink(attributes.value()))
        return statusOf(fileCalls().removeDirectory(name.value().c_str()), "RemoveDirectory");
    return statusOf(fileCalls().deleteFile(name.value().c_str()), "DeleteFile");
}

} // namespace platform
