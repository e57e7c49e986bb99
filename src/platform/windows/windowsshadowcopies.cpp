#include "platform/windows/windowsshadowcopies.h"

#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslasterror.h"

#include <array>

namespace platform {

namespace {

// The system numbers its copies, deletes the oldest first and keeps at most 512 per volume.
constexpr int LastCopy = 1024;

struct VolumeKind
{
    DWORD serialNumber = 0;
    std::wstring fileSystem;
};

Result<VolumeKind> volumeOf(const std::wstring &path)
{
    const WinHandle handle = openForAttributes(path, FILE_FLAG_BACKUP_SEMANTICS);
    if (!handle.isValid())
        return statusFromLastError("CreateFile");
    VolumeKind kind;
    std::array<wchar_t, MAX_PATH + 1> name{};
    if (!fileCalls().getVolumeInformation(handle.get(), nullptr, 0, &kind.serialNumber, nullptr, nullptr,
                                          name.data(), DWORD(name.size())))
        return statusFromLastError("GetVolumeInformationByHandle");
    kind.fileSystem = name.data();
    return kind;
}

} // namespace

Result<int> shadowCopiesOf(const std::wstring &path)
{
    const Result<VolumeKind> volume = volumeOf(path);
    if (!volume)
        return volume.status();
    if (volume.value().fileSystem != L"NTFS" && volume.value().fileSystem != L"ReFS")
        return Status{NotSupported, 0, "shadow copies"};
    int count = 0;
    Status unanswered;
    for (int number = 1; number <= LastCopy; ++number) {
        // A copy has the same serial number as its volume.
        const Result<VolumeKind> copy =
            volumeOf(LR"(\\?\GLOBALROOT\Device\HarddiskVolumeShadowCopy)" + std::to_wstring(number) + L'\\');
        if (copy)
            count += copy.value().serialNumber == volume.value().serialNumber ? 1 : 0;
        else if (!copy.status().isAbsent())
            unanswered = copy.status();
    }
    // A copy that could not be queried may belong to the volume.
    if (count == 0 && !unanswered)
        return unanswered;
    return count;
}

} // namespace platform
