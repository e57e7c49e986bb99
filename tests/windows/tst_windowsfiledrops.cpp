#include "platform/filedrops.h"
#include "platform/windows/windowsdroppedpaths.h"
#include "support/suite.h"
#include "windows/droppedfiles.h"
#include "windows/win32calls.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

DWORD s_elevation = 0;
QStringList s_asked; // calls to the system, in order

BOOL WINAPI tokenInformation(HANDLE, TOKEN_INFORMATION_CLASS kind, void *reply, DWORD size, DWORD *used)
{
    if (kind != TokenElevation || size != sizeof(TOKEN_ELEVATION))
        return FALSE;
    *used = size;
    static_cast<TOKEN_ELEVATION *>(reply)->TokenIsElevated = s_elevation;
    return TRUE;
}

BOOL WINAPI changeFilter(HWND, UINT message, DWORD action, PCHANGEFILTERSTRUCT)
{
    s_asked.append(u"filter %1 %2"_s.arg(message, 0, 16).arg(action));
    return TRUE;
}

void WINAPI acceptFiles(HWND, BOOL accepts)
{
    s_asked.append(u"accept %1"_s.arg(accepts));
}

HRESULT WINAPI revoke(HWND)
{
    s_asked.append(u"revoke"_s);
    return S_OK;
}

// The window that accepts drops; only its handle value is used.
constexpr quintptr Window = 0x4711;

bool deliver(HWND window, UINT message, HDROP drop)
{
    MSG sent = {};
    sent.hwnd = window;
    sent.message = message;
    sent.wParam = reinterpret_cast<WPARAM>(drop);
    qintptr result = -1;
    return QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &sent, &result) &&
           result == 0;
}

} // namespace

// Drops from the desktop on a program with more rights.
class tst_WindowsFileDrops : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pathsComeOutAsTheyWentIn_data();
    void pathsComeOutAsTheyWentIn();
    void anElevatedProgramLetsDropsThrough();
    void amongEqualsNothingIsChanged();
    void aDropReachesTheReceiver();
    void whatIsNotForTheWindowGoesOn();
    void nobodyIsCalledWhenTheDropsAreGone();

private:
    platform::Win32Calls m_calls;
    std::unique_ptr<platform::ScopedWin32Calls> m_scope;
};

void tst_WindowsFileDrops::init()
{
    s_asked.clear();
    s_elevation = 1;
    m_calls.getTokenInformation = tokenInformation;
    m_calls.changeWindowMessageFilter = changeFilter;
    m_calls.dragAcceptFiles = acceptFiles;
    m_calls.revokeDragDrop = revoke;
    m_scope.reset();
    m_scope = std::make_unique<platform::ScopedWin32Calls>(m_calls);
}

void tst_WindowsFileDrops::pathsComeOutAsTheyWentIn_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("one") << QStringList{u"C:\\one.txt"_s};
    QTest::newRow("several") << QStringList{u"C:\\one"_s, u"Z:\\mapped\\two.txt"_s,
                                            u"\\\\server\\share\\3"_s};
    QTest::newRow("any letters") << QStringList{u"C:\\größe 机密.txt"_s,
                                                QString(u"C:\\lone"_s) + QChar(0xD800)};
    QTest::newRow("long") << QStringList{u"C:\\"_s + QString(5000, u'x')};
}

void tst_WindowsFileDrops::pathsComeOutAsTheyWentIn()
{
    QFETCH(const QStringList, paths);
    HDROP const drop = droppedFiles(paths);
    QCOMPARE(platform::droppedPaths(drop), paths);
    ::DragFinish(drop);
}

void tst_WindowsFileDrops::anElevatedProgramLetsDropsThrough()
{
    const platform::FileDrops drops(Window, [](const QStringList &) {});
    QCOMPARE(s_asked, (QStringList{u"filter 233 1"_s, u"filter 4a 1"_s, u"filter 49 1"_s, u"revoke"_s,
                                   u"accept 1"_s}));
}

void tst_WindowsFileDrops::amongEqualsNothingIsChanged()
{
    s_elevation = 0;
    bool isCalled = false;
    const platform::FileDrops drops(Window, [&isCalled](const QStringList &) { isCalled = true; });
    QCOMPARE(s_asked, QStringList());
    HDROP const drop = droppedFiles({u"C:\\one"_s});
    QVERIFY(!deliver(reinterpret_cast<HWND>(Window), WM_DROPFILES, drop));
    QVERIFY(!isCalled);
    ::DragFinish(drop);
}

void tst_WindowsFileDrops::aDropReachesTheReceiver()
{
    QStringList received;
    const platform::FileDrops drops(Window, [&received](const QStringList &paths) { received += paths; });
    const QStringList paths{u"C:\\one"_s, u"C:\\two"_s};
    // The message taken from the queue, and the one sent to the window.
    MSG queued = {};
    queued.hwnd = reinterpret_cast<HWND>(Window);
    queued.message = WM_DROPFILES;
    queued.wParam = reinterpret_cast<WPARAM>(droppedFiles(paths));
    QVERIFY(QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &queued, nullptr));
    QCOMPARE(received, paths);
    received.clear();
    QVERIFY(deliver(reinterpret_cast<HWND>(Window), WM_DROPFILES, droppedFiles(paths)));
    QCOMPARE(received, paths);
}

void tst_WindowsFileDrops::whatIsNotForTheWindowGoesOn()
{
    QStringList received;
    const platform::FileDrops drops(Window, [&received](const QStringList &paths) { received += paths; });
    HDROP const drop = droppedFiles({u"C:\\one"_s});
    QVERIFY(!deliver(reinterpret_cast<HWND>(Window + 1), WM_DROPFILES, drop));
    QVERIFY(!deliver(reinterpret_cast<HWND>(Window), WM_COPYDATA, drop));
    QCOMPARE(received, QStringList());
    ::DragFinish(drop);
}

void tst_WindowsFileDrops::nobodyIsCalledWhenTheDropsAreGone()
{
    {
        const platform::FileDrops drops(Window, [](const QStringList &) { QFAIL("called"); });
    }
    HDROP const drop = droppedFiles({u"C:\\one"_s});
    QVERIFY(!deliver(reinterpret_cast<HWND>(Window), WM_DROPFILES, drop));
    ::DragFinish(drop);
}

QUORVEX_SUITE(tst_WindowsFileDrops, QCoreApplication)
#include "tst_windowsfiledrops.moc"

#include <shellapi.h>
