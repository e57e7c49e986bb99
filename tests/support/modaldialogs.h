#pragma once

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTimer>

#include <functional>

// Serves the modal dialogs of the program's own, which run an event loop until they are closed: each new one
// goes to the next answer in the list. One without an answer is rejected and counted, so that a test fails
// and does not hang.
class ModalDialogs : public QObject
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    ModalDialogs()
    {
        m_timer.setInterval(5);
        connect(&m_timer, &QTimer::timeout, this, &ModalDialogs::serve);
        m_timer.start();
    }

    QList<Answer> answers;
    int unexpected = 0;
    QStringList titles; // of all that were shown

private:
    void serve()
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

    QTimer m_timer;
    QPointer<QDialog> m_served;
};
