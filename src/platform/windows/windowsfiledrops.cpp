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

// Missing from the system's headers. The message carries the data of WM_DROPFILES between processes.
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
        // The source tries OLE drag and drop first, which is refused between processes of different rights.
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
        // A message taken from the queue has no result to return.
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
    // OLE drag and drop works between processes of equal rights and shows the user more.
    if (!isProcessElevated().valueOr(false))
        return;
    d = std::make_unique<Private>(reinterpret_cast<HWND>(window), receive);
    d->begin();
}

FileDrops::~FileDrops() = default;

} // namespace platform
