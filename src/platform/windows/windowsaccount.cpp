#include "platform/windows/windowsaccount.h"

#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsprocesscalls.h"
#include "platform/windows/windowsprocesstoken.h"

#include <array>
#include <cstddef>
#include <memory>

namespace platform {

namespace {

// The user in the token of a process; null when the query fails.
class TokenUser
{
public:
    explicit TokenUser(HANDLE process)
    {
        const WinHandle token = openToken(process);
        if (!token.isValid())
            return;
        // The first query only returns the required size.
        DWORD size = 0;
        processCalls().getTokenInformation(token.get(), ::TokenUser, nullptr, 0, &size);
        if (size < sizeof(TOKEN_USER))
            return;
        m_reply = std::make_unique<std::byte[]>(size);
        if (!processCalls().getTokenInformation(token.get(), ::TokenUser, m_reply.get(), size, &size))
            m_reply.reset();
    }

    PSID sid() const
    {
        return m_reply ? reinterpret_cast<const TOKEN_USER *>(m_reply.get())->User.Sid : nullptr;
    }

private:
    std::unique_ptr<std::byte[]> m_reply;
};

QString textOf(PSID sid)
{
    LPWSTR text = nullptr;
    if (sid == nullptr || !processCalls().convertSidToStringSid(sid, &text))
        return {};
    QString id = decodeName(text);
    processCalls().localFree(text);
    return id;
}

} // namespace

QString accountOf(HANDLE process)
{
    return textOf(TokenUser(process).sid());
}

QString accountNameOf(HANDLE process)
{
    const TokenUser user(process);
    if (user.sid() == nullptr)
        return {};
    constexpr DWORD Longest = 256 + 1; // of an account or domain name
    std::array<wchar_t, Longest> name{};
    std::array<wchar_t, Longest> domain{};
    DWORD nameSize = Longest;
    DWORD domainSize = Longest;
    SID_NAME_USE use = SidTypeUnknown;
    if (!processCalls().lookupAccountSid(nullptr, user.sid(), name.data(), &nameSize, domain.data(),
                                         &domainSize, &use))
        return textOf(user.sid());
    const QString account = decodeName(name.data());
    return domain.front() == L'\0' ? account : decodeName(domain.data()) + QLatin1Char('\\') + account;
}

bool isDesktopOfAnother()
{
    auto *const shell = desktopCalls().getShellWindow();
    DWORD id = 0;
    if (shell == nullptr || desktopCalls().getWindowThreadProcessId(shell, &id) == 0)
        return false;
    const QString own = accountOf(::GetCurrentProcess());
    if (own.isEmpty())
        return false;
    ::SetLastError(ERROR_SUCCESS);
    const WinHandle process(processCalls().openProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    const QString shown = process.isValid() ? accountOf(process.get()) : QString();
    // Processes of the same account can always be queried.
    if (shown.isEmpty())
        return ::GetLastError() == ERROR_ACCESS_DENIED;
    return shown != own;
}

} // namespace platform
