#pragma once

#include <QDialog>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

// Serves the modal dialogs of the program's own, which run an event loop until they are closed: each new one
// goes to the next answer in the list. One without an answer is rejected and counted, so that a test fails
// and does not hang.
class ModalDialogs : public QObject
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    ModalDialogs();

    QList<Answer> answers;
    int unexpected = 0;
    QStringList titles; // of all that were shown

private:
    void serve();

    QTimer m_timer;
    QList<QPointer<QDialog>> m_served;
};
