#include "platform/windows/windowsstreams.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

#include <QByteArray>

#include <cstddef>
#include <cstring>
#include <string_view>

namespace platform {

namespace {

constexpr qsizetype FirstRoom = 4096;
constexpr qsizetype LargestRoom = 16LL * 1024 * 1024;

Result<QByteArray> listingOf(HANDLE opened)
{
    for (qsizetype room = FirstRoom; room <= LargestRoom; room *= 4) {
        QByteArray listing(room, '\0');
        if (fileCalls().getFileInformationEx(opened, FileStreamInfo, listing.data(), DWORD(room)))
            return listing;
        const Status status = statusFromLastError("GetFileInformationByHandleEx");
        if (status.native == ERROR_HANDLE_EOF)
            return QByteArray();
        if (status.native != ERROR_MORE_DATA && status.native != ERROR_INSUFFICIENT_BUFFER)
            return status;
    }
    return Status{MoreData, ERROR_MORE_DATA, "GetFileInformationByHandleEx"};
}

QList<NamedStream> namedAmong(const QByteArray &listing)
{
    constexpr qsizetype Header = offsetof(FILE_STREAM_INFO, StreamName);
    QList<NamedStream> streams;
    qsizetype at = 0;
    while (at + Header <= listing.size()) {
        FILE_STREAM_INFO entry = {};
        std::memcpy(&entry, listing.constData() + at, std::size_t(Header));
        const qsizetype room = listing.size() - at - Header;
        const auto length = qMin(qsizetype(entry.StreamNameLength), room) / qsizetype(sizeof(WCHAR));
        const std::wstring_view name(reinterpret_cast<const wchar_t *>(listing.constData() + at + Header),
                                     std::size_t(length));
        if (!name.empty() && name != L"::$DATA")
            streams.append({decodeName(name), entry.StreamSize.QuadPart});
        if (entry.NextEntryOffset == 0)
            break;
        at += entry.NextEntryOffset;
    }
    return streams;
}

} // namespace

Result<QList<NamedStream>> namedStreamsOf(HANDLE opened)
{
    DWORD volume = 0;
    if (!fileCalls().getVolumeInformation(opened, nullptr, 0, nullptr, nullptr, &volume, nullptr, 0))
        return statusFromLastError("GetVolumeInformationByHandle");
    if (!(volume & FILE_NAMED_STREAMS))
        return QList<NamedStream>();
    const Result<QByteArray> listing = listingOf(opened);
    if (!listing)
        return listing.status();
    return namedAmong(listing.value());
}

} // namespace platform
