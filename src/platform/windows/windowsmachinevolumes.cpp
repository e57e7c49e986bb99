#include "platform/windows/windowsmachinevolumes.h"

#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsvolumecalls.h"

#include <QRegularExpression>

#include <array>

namespace platform {

namespace {

constexpr DWORD NameRoom = MAX_PATH;

class VolumeSearch
{
public:
    VolumeSearch()
        : m_search(volumeCalls().findFirstVolume(m_name.data(), NameRoom))
    {
        if (m_search == INVALID_HANDLE_VALUE)
            m_status = statusFromLastError("FindFirstVolume");
    }
    ~VolumeSearch()
    {
        if (m_search != INVALID_HANDLE_VALUE)
            volumeCalls().findVolumeClose(m_search);
    }
    VolumeSearch(const VolumeSearch &) = delete;
    VolumeSearch &operator=(const VolumeSearch &) = delete;

    // The status of the last call; NoError where it found a volume.
    const Status &status() const { return m_status; }

    // With its trailing separator the path would open the root folder.
    QString path() const
    {
        QString path = QString::fromWCharArray(m_name.data());
        if (path.endsWith(u'\\'))
            path.chop(1);
        return path;
    }

    void next()
    {
        m_status =
            statusOf(volumeCalls().findNextVolume(m_search, m_name.data(), NameRoom), "FindNextVolume");
    }

private:
    std::array<wchar_t, NameRoom> m_name = {}; // declared before the search handle, whose opening fills it
    HANDLE m_search;
    Status m_status;
};

} // namespace

Result<QStringList> machineVolumes()
{
    QStringList paths;
    VolumeSearch search;
    for (; search.status(); search.next())
        paths.append(search.path());
    if (search.status().native != ERROR_NO_MORE_FILES)
        return search.status();
    return paths;
}

bool isMachineVolume(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A\\\\\?\\(Volume\{[0-9A-Za-z-]+\}|GLOBALROOT\\Device\\HarddiskVolume[0-9]+)\z)"));
    return form.match(name).hasMatch();
}

} // namespace platform
