#include "platform/windows/windowscontentplace.h"

#include "platform/windows/lasterror.h"

#include <QByteArray>

#include <cstddef>
#include <cstring>
#include <string_view>

namespace platform {

namespace {

// Younger than the headers of some compilers.
constexpr DWORD SupportsIntegrityStreams = 0x04000000;
constexpr DWORD SupportsBlockRefcounting = 0x08000000;
constexpr DWORD GetIntegrityInformation =
    CTL_CODE(FILE_DEVICE_FILE_SYSTEM, 159, METHOD_BUFFERED, FILE_ANY_ACCESS);

struct IntegrityInformation
{
    WORD checksumAlgorithm;
    WORD reserved;
    DWORD flags;
    DWORD checksumChunkSize;
    DWORD clusterSize;
};
static_assert(sizeof(IntegrityInformation) == 16);

constexpr qsizetype StreamRoom = 4096;
constexpr qsizetype LargestStreamRoom = 16LL * 1024 * 1024;

bool isRemote(HANDLE file)
{
    FILE_REMOTE_PROTOCOL_INFO protocol = {};
    return win32().getFileInformationEx(file, FileRemoteProtocolInfo, &protocol, sizeof protocol);
}

ElsewhereReasons reasonsOfAttributes(DWORD attributes)
{
    ElsewhereReasons reasons;
    if (attributes & (FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED))
        reasons |= Elsewhere::Encoded;
    if (attributes & FILE_ATTRIBUTE_SPARSE_FILE)
        reasons |= Elsewhere::Sparse;
    return reasons;
}

// Clusters with checksums are never overwritten. Where the file system does not say, they may have some.
bool mayHaveChecksums(HANDLE file)
{
    IntegrityInformation integrity = {};
    DWORD returned = 0;
    const BOOL answered = win32().deviceIoControl(file, GetIntegrityInformation, nullptr, 0, &integrity,
                                                  sizeof integrity, &returned, nullptr);
    return !answered || returned < sizeof(WORD) || integrity.checksumAlgorithm != 0;
}

// A file that has content and no cluster keeps it in its record, whose changes go through the log.
bool liesInItsRecord(HANDLE file)
{
    STARTING_VCN_INPUT_BUFFER start = {};
    RETRIEVAL_POINTERS_BUFFER extents = {};
    DWORD returned = 0;
    return !win32().deviceIoControl(file, FSCTL_GET_RETRIEVAL_POINTERS, &start, sizeof start, &extents,
                                    sizeof extents, &returned, nullptr) &&
           ::GetLastError() == ERROR_HANDLE_EOF;
}

Result<QByteArray> streamsOf(HANDLE file)
{
    for (qsizetype room = StreamRoom; room <= LargestStreamRoom; room *= 4) {
        QByteArray streams(room, '\0');
        if (win32().getFileInformationEx(file, FileStreamInfo, streams.data(), DWORD(room)))
            return streams;
        const Status status = statusFromLastError("GetFileInformationByHandleEx");
        if (status.native == ERROR_HANDLE_EOF)
            return QByteArray();
        if (status.native != ERROR_MORE_DATA && status.native != ERROR_INSUFFICIENT_BUFFER)
            return status;
    }
    return Status{MoreData, ERROR_MORE_DATA, "GetFileInformationByHandleEx"};
}

// Bytes in streams beside the nameless one; below 0 when there is none.
qint64 bytesInNamedStreams(const QByteArray &streams)
{
    constexpr qsizetype Header = offsetof(FILE_STREAM_INFO, StreamName);
    qint64 bytes = -1;
    qsizetype at = 0;
    while (at + Header <= streams.size()) {
        FILE_STREAM_INFO stream = {};
        std::memcpy(&stream, streams.constData() + at, std::size_t(Header));
        const qsizetype room = streams.size() - at - Header;
        const auto length = qMin(qsizetype(stream.StreamNameLength), room) / qsizetype(sizeof(WCHAR));
        const auto *const name = reinterpret_cast<const wchar_t *>(streams.constData() + at + Header);
        if (std::wstring_view(name, std::size_t(length)) != L"::$DATA")
            bytes = qMax<qint64>(bytes, 0) + stream.StreamSize.QuadPart;
        if (stream.NextEntryOffset == 0)
            break;
        at += stream.NextEntryOffset;
    }
    return bytes;
}

} // namespace

Result<ContentPlace> contentPlaceOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!win32().getFileInformation(file, &info))
        return statusFromLastError("GetFileInformationByHandle");
    const bool isFolder = info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    const auto size =
        isFolder ? 0 : static_cast<qint64>(quint64(info.nFileSizeHigh) << 32 | info.nFileSizeLow);
    DWORD volume = 0;
    if (!win32().getVolumeInformation(file, nullptr, 0, nullptr, nullptr, &volume, nullptr, 0))
        return statusFromLastError("GetVolumeInformationByHandle");

    ContentPlace place{.elsewhere = {}, .bytes = 0};
    if (isFolder || size > 0) {
        place.elsewhere = reasonsOfAttributes(info.dwFileAttributes);
        if (isRemote(file))
            place.elsewhere |= Elsewhere::Unknown;
        if ((volume & SupportsIntegrityStreams) && mayHaveChecksums(file))
            place.elsewhere |= Elsewhere::Relocating;
        // Which clusters are in fact shared nobody tells.
        if (volume & SupportsBlockRefcounting)
            place.elsewhere |= Elsewhere::Shared;
        if (!isFolder && liesInItsRecord(file))
            place.elsewhere |= Elsewhere::Inline;
        place.bytes = place.elsewhere ? size : 0;
    }
    if (isFolder) {
        place.bytes = -1;
        return place;
    }
    if (volume & FILE_NAMED_STREAMS) {
        const Result<QByteArray> streams = streamsOf(file);
        if (!streams)
            return streams.status();
        if (const qint64 named = bytesInNamedStreams(streams.value()); named >= 0) {
            place.elsewhere |= Elsewhere::NamedStreams;
            place.bytes += named;
        }
    }
    return place;
}

} // namespace platform
