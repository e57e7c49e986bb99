#include "platform/windowframe.h"

#include "platform/windows/windowsframemessages.h"
#include "platform/windows/windowsheaders.h"

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QCoreApplication>

#include <optional>

namespace platform {

namespace {

MONITORINFO screenOf(HWND window)
{
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen);
    return screen;
}

} // namespace

class WindowFrame::Private : public QAbstractNativeEventFilter
{
public:
    Private(HWND window, Owner &owner)
        : m_window(window)
        , m_owner(owner)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
        ::SetWindowLongPtrW(window, GWL_STYLE, ::GetWindowLongPtrW(window, GWL_STYLE) | WS_THICKFRAME);
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *result) override
    {
        const MSG &received = *static_cast<const MSG *>(message);
        if (received.hwnd != m_window)
            return false;
        const std::optional<LRESULT> answer = answerTo(received);
        // A message taken from the queue has no result to return.
        if (answer && result)
            *result = *answer;
        return answer.has_value();
    }

private:
    // Without a value the message is processed further.
    std::optional<LRESULT> answerTo(const MSG &message)
    {
        switch (message.message) {
        case WM_NCCALCSIZE:
            // The whole window is client area.
            return message.wParam != FALSE ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_GETMINMAXINFO:
            limitToWorkArea(*reinterpret_cast<MINMAXINFO *>(message.lParam), screenOf(m_window),
                            m_owner.smallestSize());
            return 0;
        case WM_WINDOWPOSCHANGING:
            if (::IsZoomed(m_window) && !::IsIconic(m_window))
                placeInWorkArea(*reinterpret_cast<WINDOWPOS *>(message.lParam), screenOf(m_window));
            return std::nullopt;
        case WM_NCHITTEST:
            return hitTestOf(m_owner.partAt(inWindow(placeOf(message.lParam))));
        default:
            return answerToButton(message);
        }
    }

    // Handles the messages that follow HTMAXBUTTON. The system would otherwise draw its own button there.
    std::optional<LRESULT> answerToButton(const MSG &message)
    {
        const bool isOver = message.wParam == HTMAXBUTTON;
        switch (message.message) {
        case WM_NCMOUSEMOVE:
            hover(isOver);
            return std::nullopt;
        case WM_NCMOUSELEAVE:
        case WM_MOUSEMOVE:
            hover(false);
            return std::nullopt;
        case WM_NCLBUTTONDOWN:
        case WM_NCLBUTTONDBLCLK:
            m_isPressed = isOver;
            return isOver ? std::optional<LRESULT>(0) : std::nullopt;
        case WM_NCLBUTTONUP:
            if (!isOver)
                return std::nullopt;
            if (m_isPressed)
                m_owner.pressMaximize();
            m_isPressed = false;
            return 0;
        default:
            return std::nullopt;
        }
    }

    void hover(bool isOver)
    {
        if (isOver == m_isOver)
            return;
        m_isOver = isOver;
        m_isPressed = m_isPressed && isOver;
        m_owner.showMaximizeHover(isOver);
        if (!isOver)
            return;
        TRACKMOUSEEVENT leaving = {};
        leaving.cbSize = sizeof leaving;
        leaving.dwFlags = TME_LEAVE | TME_NONCLIENT;
        leaving.hwndTrack = m_window;
        ::TrackMouseEvent(&leaving);
    }

    QPoint inWindow(const QPoint &place) const
    {
        RECT window = {};
        ::GetWindowRect(m_window, &window);
        return place - QPoint(window.left, window.top);
    }

    HWND m_window;
    Owner &m_owner;
    bool m_isOver = false;    // the maximise button
    bool m_isPressed = false; // the button on it
};

WindowFrame::WindowFrame(quintptr window, Owner &owner)
    : d(std::make_unique<Private>(reinterpret_cast<HWND>(window), owner))
{}

WindowFrame::~WindowFrame() = default;

} // namespace platform
