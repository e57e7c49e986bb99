#pragma once

#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>
#include <QtGlobal>

// Takes what goes to the framework's message output, from any thread, instead of the console. One at a time.
class MessageCapture
{
public:
    struct Message
    {
        QtMsgType type = QtDebugMsg;
        QString text;

        bool operator==(const Message &) const = default;
    };

    MessageCapture()
    {
        Q_ASSERT(!s_active);
        s_active = this;
        m_previous = qInstallMessageHandler(&MessageCapture::take);
    }
    ~MessageCapture()
    {
        qInstallMessageHandler(m_previous);
        s_active = nullptr;
    }
    MessageCapture(const MessageCapture &) = delete;
    MessageCapture &operator=(const MessageCapture &) = delete;

    QList<Message> messages() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_messages;
    }
    QStringList texts() const
    {
        QStringList texts;
        for (const Message &message : messages())
            texts.append(message.text);
        return texts;
    }

private:
    static void take(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        const QMutexLocker locker(&s_active->m_mutex);
        s_active->m_messages.append({type, text});
    }

    static inline MessageCapture *s_active = nullptr;
    QtMessageHandler m_previous = nullptr;
    mutable QMutex m_mutex;
    QList<Message> m_messages;
};
