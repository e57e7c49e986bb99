#include "platform/filedrops.h"

#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowsdroppedpaths.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsprocesstoken.h"

#include <shellapi.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QDebug>

#include <initializer_list>
#include <utility>

namespace platform {

namespace {

// Not in the system's headers: the content of WM_DROPFILES on its way from one process to another.
constexpr UINT CopyGlobalData = 0x0049;

} // namespace

class FileDrops::Private : public QAbstractNativeEventFilter
{
public:
    Private(HWND window, Receiver receive)
        : m_window(window)
        , m_receive(std::move(receive))
    {}
    ~Private() override = default;
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    void begin()
    {
        for (const UINT message : {UINT(WM_DROPFILES), UINT(WM_COPYDATA), CopyGlobalData}) {
            if (!desktopCalls().changeWindowMessageFilter(m_window, message, MSGFLT_ALLOW, nullptr))
                qWarning() << "[FileDrops]"
                           << statusFromLastError("ChangeWindowMessageFilterEx").diagnostic();
        }
        // The source asks a window for the newer way first, and is refused it.
        desktopCalls().revokeDragDrop(m_window);
        desktopCalls().dragAcceptFiles(m_window, TRUE);
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *result) override
    {
        const MSG &received = *static_cast<const MSG *>(message);
        if (received.message != WM_DROPFILES || received.hwnd != m_window)
            return false;
        auto *const drop = reinterpret_cast<HDROP>(received.wParam);
        const QStringList paths = droppedPaths(drop);
        ::DragFinish(drop);
        m_receive(paths);
        // Who takes a message out of the queue asks for no answer.
        if (result)
            *result = 0;
        return true;
    }

private:
    HWND m_window;
    Receiver m_receive;
};

FileDrops::FileDrops(quintptr window, const Receiver &receive)
{
    // Among equals the newer way works, and shows the user more.
    if (!isProcessElevated().valueOr(false))
        return;
    d = std::make_unique<Private>(reinterpret_cast<HWND>(window), receive);
    d->begin();
}

FileDrops::~FileDrops() = default;

} // namespace platform
