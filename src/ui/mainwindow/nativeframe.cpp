#include "ui/mainwindow/nativeframe.h"

#include "platform/filedrops.h"
#include "platform/windowframe.h"

#include <QWidget>

#include <utility>

NativeFrame::NativeFrame(QWidget &window, QAbstractButton &maximizeButton,
                         std::function<void(const QStringList &paths)> takeDrop)
    : m_window(window)
    , m_takeDrop(std::move(takeDrop))
    , m_owner(window, maximizeButton)
{}

NativeFrame::~NativeFrame() = default;

void NativeFrame::attach()
{
    const WId native = m_window.internalWinId();
    m_drops.reset();
    m_frame.reset();
    if (native == 0)
        return;
    m_drops = std::make_unique<platform::FileDrops>(native, m_takeDrop);
    m_frame = std::make_unique<platform::WindowFrame>(native, m_owner);
}
