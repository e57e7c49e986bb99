#include "support/messagecapture.h"

#include <QMutexLocker>

MessageCapture::MessageCapture()
{
    Q_ASSERT(!s_active);
    s_active = this;
    m_previous = qInstallMessageHandler(&MessageCapture::take);
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(m_previous);
    s_active = nullptr;
}

QList<MessageCapture::Message> MessageCapture::messages() const
{
    const QMutexLocker locker(&m_mutex);
    return m_messages;
}

QStringList MessageCapture::texts() const
{
    QStringList texts;
    for (const Message &message : messages())
        texts.append(message.text);
    return texts;
}

QStringList MessageCapture::texts(QtMsgType type) const
{
    QStringList texts;
    for (const Message &message : messages()) {
        if (message.type == type)
            texts.append(message.text);
    }
    return texts;
}

void MessageCapture::take(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker locker(&s_active->m_mutex);
    s_active->m_messages.append({type, text});
}
