#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QtGlobal>

// Captures the output of the framework's message handler, from any thread, instead of the console. One
// instance at a time.
class MessageCapture
{
public:
    struct Message
    {
        QtMsgType type = QtDebugMsg;
        QString text;

        bool operator==(const Message &) const = default;
    };

    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture &) = delete;
    MessageCapture &operator=(const MessageCapture &) = delete;

    QList<Message> messages() const;
    QStringList texts() const;
    QStringList texts(QtMsgType type) const;

private:
    static void take(QtMsgType type, const QMessageLogContext &, const QString &text);

    static inline MessageCapture *s_active = nullptr;
    QtMessageHandler m_previous = nullptr;
    mutable QMutex m_mutex;
    QList<Message> m_messages;
};
