#pragma once

#include <QDialog>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

// Serves the program's own modal dialogs, which run an event loop until they are closed. Each new dialog is
// handled by the next answer in the list. A dialog without an answer is rejected and counted, so that the
// test fails instead of hanging.
class ModalDialogs : public QObject
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    ModalDialogs();

    QList<Answer> answers;
    int unexpected = 0;
    QStringList titles; // of all dialogs shown

private:
    void serve();

    QTimer m_timer;
    QList<QPointer<QDialog>> m_served;
};
