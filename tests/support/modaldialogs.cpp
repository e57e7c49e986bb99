#include "support/modaldialogs.h"

#include <QApplication>
#include <QMetaObject>

ModalDialogs::ModalDialogs()
{
    m_timer.setInterval(5);
    connect(&m_timer, &QTimer::timeout, this, &ModalDialogs::serve);
    m_timer.start();
}

void ModalDialogs::serve()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    // A dialog already served may be in front again after a later one was closed.
    if (!dialog || m_served.contains(dialog))
        return;
    m_served.append(dialog);
    titles.append(dialog->windowTitle());
    if (answers.isEmpty()) {
        ++unexpected;
        dialog->reject();
        return;
    }
    // The answer runs queued, because it may open the next dialog and a timer does not fire within its own
    // handler.
    QMetaObject::invokeMethod(
        dialog, [dialog, answer = answers.takeFirst()] { answer(*dialog); }, Qt::QueuedConnection);
}
