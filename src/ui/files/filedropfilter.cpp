#include "ui/files/filedropfilter.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

FileDropFilter::FileDropFilter(QObject *parent)
    : QObject(parent)
{}

void FileDropFilter::watch(QWidget &widget)
{
    widget.installEventFilter(this);
}

bool FileDropFilter::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (handle(static_cast<QDropEvent &>(*event)))
            return true;
        break;
    case QEvent::DragLeave:
        emit dragOver(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool FileDropFilter::handle(QDropEvent &event)
{
    if (!m_isEnabled) {
        event.ignore();
        return true;
    }
    if (event.type() == QEvent::Drop)
        emit dragOver(false);
    if (!event.mimeData()->hasUrls())
        return false;
    if (event.type() == QEvent::Drop) {
        drop(event);
        return true;
    }
    event.acceptProposedAction();
    if (event.type() == QEvent::DragEnter)
        emit dragOver(true);
    return true;
}

void FileDropFilter::drop(QDropEvent &event)
{
    // After a move the source would delete its files itself, without overwriting them.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    QStringList paths;
    const QList<QUrl> urls = event.mimeData()->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty())
            paths.append(path);
    }
    emit dropped(paths);
}
