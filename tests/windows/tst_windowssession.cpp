#include "platform/windows/windowssession.h"
#include "support/scopedvariable.h"
#include "support/suite.h"
#include "windows/win32faults.h"

#include <QTest>

#include <shlobj.h>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The calls to the system, in order.
QStringList s_asked;
EXECUTION_STATE s_state = ES_CONTINUOUS;

EXECUTION_STATE WINAPI setState(EXECUTION_STATE state)
{
    s_asked.append(u"state %1"_s.arg(state, 0, 16));
    return std::exchange(s_state, state);
}

BOOL WINAPI createReason(HWND window, LPCWSTR reason)
{
    s_asked.append(u"reason %1 at %2"_s.arg(QString::fromWCharArray(reason)).arg(quintptr(window)));
    return TRUE;
}

BOOL WINAPI destroyReason(HWND window)
{
    s_asked.append(u"no reason at %1"_s.arg(quintptr(window)));
    return TRUE;
}

// The process of the shell and its token.
HANDLE const ShellProcess = reinterpret_cast<HANDLE>(quintptr(0x7700));
HANDLE const ShellToken = reinterpret_cast<HANDLE>(quintptr(0x7800));
WELL_KNOWN_SID_TYPE s_shellUser = WinLocalSystemSid;

BOOL WINAPI openToken(HANDLE process, DWORD access, PHANDLE token)
{
    if (process != ShellProcess)
        return ::OpenProcessToken(process, access, token);
    *token = ShellToken;
    return TRUE;
}

BOOL WINAPI askToken(HANDLE token, TOKEN_INFORMATION_CLASS kind, void *reply, DWORD size, DWORD *used)
{
    if (token != ShellToken)
        return ::GetTokenInformation(token, kind, reply, size, used);
    *used = sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE;
    if (size < *used)
        return FALSE;
    auto *const user = static_cast<TOKEN_USER *>(reply);
    user->User.Sid = user + 1;
    DWORD room = SECURITY_MAX_SID_SIZE;
    return ::CreateWellKnownSid(s_shellUser, nullptr, user->User.Sid, &room);
}

BOOL WINAPI closeToken(HANDLE handle)
{
    return handle == ShellProcess || handle == ShellToken || ::CloseHandle(handle);
}

BOOL WINAPI lookUp(LPCWSTR, PSID, LPWSTR name, LPDWORD, LPWSTR domain, LPDWORD, PSID_NAME_USE)
{
    QString(u"alice"_s).toWCharArray(name);
    QString(u"OFFICE"_s).toWCharArray(domain);
    return TRUE;
}

int s_icons = 0;
QList<LONG> s_changes;

void WINAPI updateIcon()
{
    ++s_icons;
}

void WINAPI noteChange(LONG event, UINT flags, const void *item, const void *)
{
    PIDLIST_ABSOLUTE bin = nullptr;
    if (SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, CSIDL_BITBUCKET, &bin)) &&
        ::ILIsEqual(bin, static_cast<PCIDLIST_ABSOLUTE>(item)) && (flags & SHCNF_TYPE) == SHCNF_IDLIST)
        s_changes.append(event);
    ::CoTaskMemFree(bin);
}

} // namespace

// The user of the system and the requests to the session.
class tst_WindowsSession : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theSystemIsKeptAwakeUntilTheHoldGoes();
    void whatTheThreadHadSetComesBack();
    void withoutAWindowNoReasonIsGiven();
    void aReasonIsNotLongerThanTheSystemTakes();
    void aRefusedReasonOnlyLeavesTheShutdown();
    void aRefusalIsTold_data();
    void aRefusalIsTold();
    void theSystemItselfTakesTheHold();

    void onesOwnDesktopIsNoForeignAccount();
    void withoutAShellThereIsNoForeignAccount();
    void anotherAccountIsNamed_data();
    void anotherAccountIsNamed();
    void aDesktopThatMayNotBeAskedIsAnothers_data();
    void aDesktopThatMayNotBeAskedIsAnothers();
    void theShellLooksAtTheBinAgain();

    void whatTheMachineStartsFromIsOfTheSystem_data();
    void whatTheMachineStartsFromIsOfTheSystem();

private:
    // The calls with the desktop of this process, to be changed further by a test.
    static platform::Win32Calls desktopCalls();

    std::unique_ptr<Win32Faults> recordingCalls() const
    {
        auto calls = std::make_unique<Win32Faults>();
        calls->target().setThreadExecutionState = setState;
        calls->target().shutdownBlockReasonCreate = createReason;
        calls->target().shutdownBlockReasonDestroy = destroyReason;
        return calls;
    }
};

void tst_WindowsSession::init()
{
    s_asked.clear();
    s_state = ES_CONTINUOUS;
}

void tst_WindowsSession::theSystemIsKeptAwakeUntilTheHoldGoes()
{
    const auto calls = recordingCalls();
    auto hold = platform::WindowsSession().keepAwake({u"Busy"_s, 7});
    QVERIFY(hold);
    QVERIFY(hold.value()->delaysShutdown());
    QCOMPARE(s_asked, (QStringList{u"state 80000001"_s, u"reason Busy at 7"_s}));
    s_asked.clear();
    hold.take().reset();
    QCOMPARE(s_asked, (QStringList{u"no reason at 7"_s, u"state 80000000"_s}));
}

void tst_WindowsSession::whatTheThreadHadSetComesBack()
{
    const auto calls = recordingCalls();
    s_state = ES_DISPLAY_REQUIRED;
    platform::WindowsSession session;
    auto outer = session.keepAwake({u"outer"_s});
    auto inner = session.keepAwake({u"inner"_s});
    inner.take().reset();
    QCOMPARE(s_state, EXECUTION_STATE(ES_CONTINUOUS | ES_SYSTEM_REQUIRED));
    outer.take().reset();
    QCOMPARE(s_state, EXECUTION_STATE(ES_CONTINUOUS | ES_DISPLAY_REQUIRED));
}

void tst_WindowsSession::withoutAWindowNoReasonIsGiven()
{
    const auto calls = recordingCalls();
    auto hold = platform::WindowsSession().keepAwake({u"Busy"_s});
    QVERIFY(!hold.value()->delaysShutdown());
    hold.take().reset();
    QCOMPARE(s_asked, (QStringList{u"state 80000001"_s, u"state 80000000"_s}));
}

void tst_WindowsSession::aReasonIsNotLongerThanTheSystemTakes()
{
    const auto calls = recordingCalls();
    const auto hold = platform::WindowsSession().keepAwake({QString(1000, u'x'), 7});
    QVERIFY(hold.value()->delaysShutdown());
    QCOMPARE(s_asked.value(1), u"reason %1 at 7"_s.arg(QString(255, u'x')));
}

void tst_WindowsSession::aRefusedReasonOnlyLeavesTheShutdown()
{
    const auto calls = recordingCalls();
    calls->fail(Win32Faults::ShutdownBlockReasonCreate_, 1, ERROR_ACCESS_DENIED);
    auto hold = platform::WindowsSession().keepAwake({u"Busy"_s, 7});
    QVERIFY(hold);
    QCOMPARE(calls->fired(), 1);
    QVERIFY(!hold.value()->delaysShutdown());
    hold.take().reset();
    QCOMPARE(s_asked, (QStringList{u"state 80000001"_s, u"state 80000000"_s}));
}

void tst_WindowsSession::aRefusalIsTold_data()
{
    QTest::addColumn<DWORD>("error");
    QTest::addColumn<quint32>("code");
    QTest::newRow("with a number") << DWORD(ERROR_ACCESS_DENIED) << quint32(platform::AccessDenied);
    // An error number left by an earlier call.
    QTest::newRow("without a number") << DWORD(ERROR_SUCCESS) << quint32(platform::GeneralFailure);
}

void tst_WindowsSession::aRefusalIsTold()
{
    QFETCH(const DWORD, error);
    QFETCH(const quint32, code);
    const auto calls = recordingCalls();
    if (error == ERROR_SUCCESS)
        calls->target().setThreadExecutionState = [](EXECUTION_STATE) -> EXECUTION_STATE { return 0; };
    else
        calls->fail(Win32Faults::SetThreadExecutionState_, 1, error);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    const auto hold = platform::WindowsSession().keepAwake({u"Busy"_s, 7});
    QVERIFY(!hold);
    QCOMPARE(hold.code(), code);
    QCOMPARE(s_asked, QStringList());
}

void tst_WindowsSession::theSystemItselfTakesTheHold()
{
    QVERIFY(platform::WindowsSession().keepAwake({u"Busy"_s}));
}

platform::Win32Calls tst_WindowsSession::desktopCalls()
{
    platform::Win32Calls calls;
    calls.getShellWindow = [] { return reinterpret_cast<HWND>(quintptr(9)); };
    calls.getWindowThreadProcessId = [](HWND, LPDWORD process) -> DWORD {
        *process = ::GetCurrentProcessId();
        return 1;
    };
    calls.lookupAccountSid = lookUp;
    return calls;
}

void tst_WindowsSession::onesOwnDesktopIsNoForeignAccount()
{
    const platform::Win32Calls calls = desktopCalls();
    const platform::ScopedWin32Calls scope(calls);
    QVERIFY(platform::WindowsSession().userId().startsWith(u"S-1-5-21-"_s));
    QCOMPARE(platform::WindowsSession().foreignAccount(), QString());
}

void tst_WindowsSession::withoutAShellThereIsNoForeignAccount()
{
    platform::Win32Calls calls = desktopCalls();
    calls.getShellWindow = []() -> HWND { return nullptr; };
    calls.openProcess = [](DWORD, BOOL, DWORD) -> HANDLE {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    };
    const platform::ScopedWin32Calls scope(calls);
    QCOMPARE(platform::WindowsSession().foreignAccount(), QString());
}

void tst_WindowsSession::anotherAccountIsNamed_data()
{
    QTest::addColumn<bool>("hasName");
    QTest::newRow("by name") << true;
    QTest::newRow("by number") << false;
}

void tst_WindowsSession::anotherAccountIsNamed()
{
    QFETCH(const bool, hasName);
    platform::Win32Calls calls = desktopCalls();
    calls.openProcess = [](DWORD, BOOL, DWORD) { return ShellProcess; };
    calls.openProcessToken = openToken;
    calls.getTokenInformation = askToken;
    calls.closeHandle = closeToken;
    if (!hasName)
        calls.lookupAccountSid = [](LPCWSTR, PSID, LPWSTR, LPDWORD, LPWSTR, LPDWORD, PSID_NAME_USE) -> BOOL {
            return FALSE;
        };
    const platform::ScopedWin32Calls scope(calls);
    platform::WindowsSession session;
    QCOMPARE(session.foreignAccount(), hasName ? u"OFFICE\\alice"_s : session.userId());
}

void tst_WindowsSession::aDesktopThatMayNotBeAskedIsAnothers_data()
{
    QTest::addColumn<DWORD>("error");
    QTest::addColumn<QString>("account");
    QTest::newRow("denied") << DWORD(ERROR_ACCESS_DENIED) << u"OFFICE\\alice"_s;
    QTest::newRow("gone") << DWORD(ERROR_INVALID_PARAMETER) << QString();
}

void tst_WindowsSession::aDesktopThatMayNotBeAskedIsAnothers()
{
    QFETCH(const DWORD, error);
    QFETCH(const QString, account);
    static DWORD s_error;
    s_error = error;
    platform::Win32Calls calls = desktopCalls();
    calls.openProcess = [](DWORD, BOOL, DWORD) -> HANDLE {
        ::SetLastError(s_error);
        return nullptr;
    };
    const platform::ScopedWin32Calls scope(calls);
    QCOMPARE(platform::WindowsSession().foreignAccount(), account);
}

void tst_WindowsSession::theShellLooksAtTheBinAgain()
{
    s_icons = 0;
    s_changes.clear();
    platform::Win32Calls calls;
    calls.updateRecycleBinIcon = updateIcon;
    calls.changeNotify = noteChange;
    {
        const platform::ScopedWin32Calls scope(calls);
        platform::WindowsSession().tellBinChanged();
    }
    QCOMPARE(s_icons, 1);
    QCOMPARE(s_changes, QList<LONG>{SHCNE_UPDATEDIR});
    // The system itself accepts both calls.
    platform::WindowsSession().tellBinChanged();
}

void tst_WindowsSession::whatTheMachineStartsFromIsOfTheSystem_data()
{
    QTest::addColumn<QString>("told");
    QTest::addColumn<QStringList>("volumes");
    const QString first = u"C:"_s;
    QTest::newRow("not told") << QString() << QStringList{first};
    QTest::newRow("a partition") << QStringLiteral(R"(\Device\HarddiskVolume12)")
                                 << QStringList{first,
                                                QStringLiteral(R"(\\?\GLOBALROOT\Device\HarddiskVolume12)")};
    QTest::newRow("something else") << QStringLiteral(R"(\Device\Null)") << QStringList{first};
    QTest::newRow("nothing") << u" "_s << QStringList{first};
}

void tst_WindowsSession::whatTheMachineStartsFromIsOfTheSystem()
{
    QFETCH(QString, told);
    static QString s_told;
    s_told = told;
    platform::Win32Calls calls;
    calls.regGetValue = [](HKEY root, LPCWSTR key, LPCWSTR value, DWORD kind, LPDWORD, PVOID reply,
                           LPDWORD size) -> LSTATUS {
        const bool isAsked = root == HKEY_LOCAL_MACHINE && kind == RRF_RT_REG_SZ &&
                             QString::fromWCharArray(key) == QStringLiteral(R"(SYSTEM\Setup)") &&
                             QString::fromWCharArray(value) == u"SystemPartition";
        if (!isAsked || s_told.isEmpty())
            return ERROR_FILE_NOT_FOUND;
        const auto bytes = DWORD((s_told.size() + 1) * qsizetype(sizeof(wchar_t)));
        if (*size < bytes)
            return ERROR_MORE_DATA;
        auto *const text = static_cast<wchar_t *>(reply);
        text[s_told.toWCharArray(text)] = L'\0';
        return ERROR_SUCCESS;
    };
    const platform::ScopedWin32Calls scope(calls);
    const ScopedVariable drive("SystemDrive", "C:");
    QTEST(platform::WindowsSession().systemVolumes(), "volumes");
}

QUORVEX_SUITE(tst_WindowsSession, suites::NoApplication)
#include "tst_windowssession.moc"
