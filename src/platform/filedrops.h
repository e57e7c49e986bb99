#pragma once

#include <QStringList>
#include <QtGlobal>

#include <functional>
#include <memory>

namespace platform {

// Files that are dropped onto a window of this program, when it has more rights than the desktop they come
// from: the system then keeps from it the drops that widgets are told of. Where it has not, nothing comes
// this way. One thread, that of the window and of the QCoreApplication.
//
// Windows: of a process whose token is elevated, ChangeWindowMessageFilterEx for WM_DROPFILES and the two
// messages that carry its content, RevokeDragDrop and DragAcceptFiles; then WM_DROPFILES. Linux: nothing.
class FileDrops
{
public:
    // The paths as the source names them. Drives that are mapped in the session of the source may be unknown
    // here.
    using Receiver = std::function<void(const QStringList &paths)>;

    // The window as QWidget::winId() tells it; it may go before this.
    FileDrops(quintptr window, const Receiver &receive);
    ~FileDrops();
    FileDrops(const FileDrops &) = delete;
    FileDrops &operator=(const FileDrops &) = delete;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
