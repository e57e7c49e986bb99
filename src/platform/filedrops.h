#pragma once

#include <QStringList>
#include <QtGlobal>

#include <functional>
#include <memory>

namespace platform {

/// Receives files that are dropped onto a window of this program when the program has more rights than the
/// desktop. The system then withholds the drop events for widgets. Without the additional rights no drop
/// arrives here. Used by the thread of the window and of the QCoreApplication only.
///
/// Windows: for a process whose token is elevated, ChangeWindowMessageFilterEx for WM_DROPFILES and the two
/// messages that carry its content, RevokeDragDrop and DragAcceptFiles; then WM_DROPFILES. Linux: nothing.
class FileDrops
{
public:
    /// The paths as the source of the drop names them. Network drives of the source's session may be unknown
    /// to this process.
    using Receiver = std::function<void(const QStringList &paths)>;

    /// window: as QWidget::winId() returns it. The window may be destroyed before this object.
    FileDrops(quintptr window, const Receiver &receive);
    ~FileDrops();
    FileDrops(const FileDrops &) = delete;
    FileDrops &operator=(const FileDrops &) = delete;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
