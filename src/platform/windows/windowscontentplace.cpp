#include "platform/windows/windowscontentplace.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsvolumecalls.h"

#include <winioctl.h>

namespace platform {

namespace {

// Missing from the headers of some compilers.
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

constexpr DWORD GetExternalBacking = CTL_CODE(FILE_DEVICE_FILE_SYSTEM, 196, METHOD_BUFFERED, FILE_ANY_ACCESS);
constexpr DWORD NotExternallyBacked = 342;

// The common beginning of every provider's answer. Only its presence matters.
struct ExternalBacking
{
    DWORD version;
    DWORD provider;
    DWORD ofProvider[4];
};

bool isRemote(HANDLE file)
{
    FILE_REMOTE_PROTOCOL_INFO protocol = {};
    return fileCalls().getFileInformationEx(file, FileRemoteProtocolInfo, &protocol, sizeof protocol);
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

// Files that the system compressed for its own use have no attribute for it, and the first write moves them
// to other clusters. An answer other than "not backed" counts as a backing.
bool mayHaveBacking(HANDLE file)
{
    ExternalBacking backing = {};
    DWORD returned = 0;
    if (volumeCalls().deviceIoControl(file, GetExternalBacking, nullptr, 0, &backing, sizeof backing,
                                      &returned, nullptr))
        return true;
    const DWORD error = ::GetLastError();
    return error != NotExternallyBacked && error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED;
}

// Clusters with checksums are never overwritten. Without an answer from the file system they count as having
// checksums.
bool mayHaveChecksums(HANDLE file)
{
    IntegrityInformation integrity = {};
    DWORD returned = 0;
    const BOOL answered = volumeCalls().deviceIoControl(file, GetIntegrityInformation, nullptr, 0, &integrity,
                                                        sizeof integrity, &returned, nullptr);
    return !answered || returned < sizeof(WORD) || integrity.checksumAlgorithm != 0;
}

// A file with content and no cluster stores it in its file record, and changes to the record are logged.
bool liesInItsRecord(HANDLE file)
{
    STARTING_VCN_INPUT_BUFFER start = {};
    RETRIEVAL_POINTERS_BUFFER extents = {};
    DWORD returned = 0;
    return !volumeCalls().deviceIoControl(file, FSCTL_GET_RETRIEVAL_POINTERS, &start, sizeof start, &extents,
                                          sizeof extents, &returned, nullptr) &&
           ::GetLastError() == ERROR_HANDLE_EOF;
}

} // namespace

Result<ContentPlace> contentPlaceOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!fileCalls().getFileInformation(file, &info))
        return statusFromLastError("GetFileInformationByHandle");
    const bool isFolder = info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    const auto size =
        isFolder ? 0 : static_cast<qint64>(quint64(info.nFileSizeHigh) << 32 | info.nFileSizeLow);
    DWORD volume = 0;
    if (!fileCalls().getVolumeInformation(file, nullptr, 0, nullptr, nullptr, &volume, nullptr, 0))
        return statusFromLastError("GetVolumeInformationByHandle");

    ContentPlace place{.elsewhere = {}, .bytes = 0};
    if (isFolder || size > 0) {
        place.elsewhere = reasonsOfAttributes(info.dwFileAttributes);
        if (!isFolder && mayHaveBacking(file))
            place.elsewhere |= Elsewhere::Encoded;
        if (isRemote(file))
            place.elsewhere |= Elsewhere::Unknown;
        if ((volume & SupportsIntegrityStreams) && mayHaveChecksums(file))
            place.elsewhere |= Elsewhere::Relocating;
        // The system does not report which clusters are shared.
        if (volume & SupportsBlockRefcounting)
            place.elsewhere |= Elsewhere::Shared;
        if (!isFolder && liesInItsRecord(file))
            place.elsewhere |= Elsewhere::Inline;
        place.bytes = place.elsewhere ? size : 0;
    }
    if (isFolder)
        place.bytes = -1;
    return place;
}

} // namespace platform
