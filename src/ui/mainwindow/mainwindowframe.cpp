// What the system's frame does for other windows.
#include "ui/mainwindow/mainwindow.h"

#include "jobs/jobcontroller.h"
#include "platform/filedrops.h"
#include "platform/windowframe.h"
#include "services/linkmanager.h"
#include "ui/files/fileselectpage.h"
#include "ui/mainwindow/frameowner.h"
#include "ui/mainwindow/frameparts.h"
#include "ui/mainwindow/sidebar.h"
#include "ui/prompts/prompts.h"
#include "ui/titlebar/titlebar.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDebug>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <initializer_list>

using namespace Qt::StringLiterals;
using frameparts::DragHeight;
using frameparts::edgesAt;
using frameparts::ShadowMargin;

namespace {

const QString aboutStyle = u"QMessageBox { background-color: white; }"
                           "QLabel { color: #333333; font-size: 13px; }"
                           "QPushButton { background-color: #3b82f6; color: white; border: none;"
                           " border-radius: 6px; padding: 8px 24px; font-size: 13px; min-width: 80px; }"
                           "QPushButton:hover { background-color: #2563eb; }"_s;

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QLineEdit *>(widget);
}

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    return edges ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

} // namespace

bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::HoverMove && !isMaximized()) {
        const auto *const hover = static_cast<QHoverEvent *>(event);
        const Qt::CursorShape shape = cursorFor(edgesAt(hover->position().toPoint(), size()));
        if (shape != cursor().shape())
            setCursor(shape);
    }
    if (event->type() == QEvent::WinIdChange)
        takeNativeWindow();
    return QMainWindow::event(event);
}

// It is made when the window is first shown, and may be made anew.
void MainWindow::takeNativeWindow()
{
    const WId window = internalWinId();
    m_drops.reset();
    m_frame.reset();
    if (window == 0)
        return;
    m_drops =
        std::make_unique<platform::FileDrops>(window, [this](const QStringList &paths) { takeDrop(paths); });
    m_frame = std::make_unique<platform::WindowFrame>(window, *m_frameOwner);
}

// The pages decide about drops themselves; these come to the window as a whole.
void MainWindow::takeDrop(const QStringList &paths)
{
    if (m_currentPage == FileSelect && !QApplication::activeModalWidget())
        m_filePage->addDropped(paths);
}

void MainWindow::onMinimizeClicked()
{
    showMinimized();
}

void MainWindow::onMaximizeClicked()
{
    const bool maximize = !isMaximized();
    if (maximize)
        showMaximized();
    else
        showNormal();
    m_titleBar->setMaximized(maximize);
}

void MainWindow::onCloseClicked()
{
    close();
}

// The system maximises and restores windows too, by a drag to the edge of the screen or from the keyboard.
void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange) {
        const int margin = isMaximized() ? 0 : ShadowMargin;
        m_outerLayout->setContentsMargins(margin, margin, margin, margin);
        m_titleBar->setMaximized(isMaximized());
        setCorners(isMaximized());
    }
    QMainWindow::changeEvent(event);
}

// At the edges of the screen nothing stands behind rounded corners.
void MainWindow::setCorners(bool square)
{
    QWidget *const container = m_outerLayout->itemAt(0)->widget();
    for (QWidget *widget : std::initializer_list<QWidget *>{container, m_sidebar, m_titleBar, m_pages}) {
        const QString rule = u"#%1 { border-radius: 0px; }"_s.arg(widget->objectName());
        const QString before = widget->styleSheet();
        QString sheet = before;
        sheet.remove(rule);
        if (square)
            sheet += rule;
        // A sheet that is set again polishes all that is in the widget.
        if (sheet != before)
            widget->setStyleSheet(sheet);
    }
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (event->button() != Qt::LeftButton) {
        QMainWindow::mousePressEvent(event);
        return;
    }
    const Qt::Edges edges = isMaximized() ? Qt::Edges() : edgesAt(position, size());
    if (edges && windowHandle() && windowHandle()->startSystemResize(edges)) {
        event->accept();
        return;
    }
    if (position.y() >= DragHeight || isControl(childAt(position))) {
        QMainWindow::mousePressEvent(event);
        return;
    }
    // Where the window system moves windows by itself, nothing else moves them, or snapping is lost.
    if (!windowHandle() || !windowHandle()->startSystemMove()) {
        m_dragging = true;
        m_dragPosition = event->globalPosition().toPoint() - frameGeometry().topLeft();
    }
    event->accept();
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging || !(event->buttons() & Qt::LeftButton)) {
        QMainWindow::mouseMoveEvent(event);
        return;
    }
    move(event->globalPosition().toPoint() - m_dragPosition);
    event->accept();
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragging = false;
    QMainWindow::mouseReleaseEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_job->state() == JobController::State::Running) {
        const auto answer = askAboutJob({QMessageBox::Warning,
                                         tr("Confirm Exit"),
                                         tr("Wipe task is in progress. Are you sure you want to exit?\n"
                                            "Exiting will interrupt the current task."),
                                         QMessageBox::Yes | QMessageBox::No,
                                         QMessageBox::No,
                                         {},
                                         Qt::PlainText});
        if (answer != QMessageBox::Yes) {
            event->ignore();
            return;
        }
    }
    m_job->leave(JobController::State::Closing);
    event->accept();
}

void MainWindow::leaveUnasked(std::function<void()> then)
{
    m_job->leave(JobController::State::Closing, std::move(then));
}

void MainWindow::onAboutClicked()
{
    const QString text =
        tr("<h3>Quorvex - Data Secure Eraser</h3><p>Version 5.0</p><p>Securely wipe your data "
           "with military-grade standards.<br>Support disk wipe, partition wipe, free space "
           "wipe and file wipe.</p>") +
        tr("<p>Veltrano. Erased means erased, and the certificate says how.</p>");
    Prompts::current().show(this, {QMessageBox::Information, tr("About Quorvex"), text, QMessageBox::Ok,
                                   QMessageBox::NoButton, aboutStyle, Qt::RichText});
}

void MainWindow::onHelpClicked()
{
    LinkManager::instance().openLink(u"support"_s, u"help"_s, this);
}

void MainWindow::onSupportClicked()
{
    LinkManager::instance().openLink(u"support"_s, u"contact"_s, this);
}

void MainWindow::onLanguageChanged(const QString &langCode)
{
    qDebug() << "[MainWindow] Language changed to:" << langCode;
}
