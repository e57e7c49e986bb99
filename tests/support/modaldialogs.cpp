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
    if (!dialog || dialog == m_served)
        return;
    m_served = dialog;
    titles.append(dialog->windowTitle());
    if (answers.isEmpty()) {
        ++unexpected;
        dialog->reject();
        return;
    }
    // Not from here: an answer may open the next dialog, and a timer does not fire within itself.
    QMetaObject::invokeMethod(
        dialog, [dialog, answer = answers.takeFirst()] { answer(*dialog); }, Qt::QueuedConnection);
}
