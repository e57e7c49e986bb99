#include "platform/windows/windowssession.h"
#include "support/suite.h"
#include "windows/win32faults.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// What the system was asked, in order.
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

} // namespace

// Who uses the system and what is asked of it meanwhile.
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

private:
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
    // Left over from some call before.
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

QUORVEX_SUITE(tst_WindowsSession, suites::NoApplication)
#include "tst_windowssession.moc"
