#include "certificate/wholefile.h"

#include <QDebug>
#include <QFileInfo>

WholeFile::WholeFile(const QString &path)
    : m_file(path)
{}

bool WholeFile::open()
{
    const QFileInfo existing(m_file.fileName());
    if (m_file.fileName().isEmpty() || (existing.exists() && !existing.isFile())) {
        qDebug() << "[Certificate] Not a regular file:" << m_file.fileName();
        return false;
    }
    if (!m_file.open(QIODevice::WriteOnly))
        return failed("open");
    return true;
}

bool WholeFile::commit(const QByteArray &bytes)
{
    // commit() does not tell that what was still in the buffer could not be written.
    if (m_file.write(bytes) != bytes.size() || !m_file.flush()) {
        m_file.cancelWriting();
        return failed("write");
    }
    return m_file.commit() || failed("replace");
}

bool WholeFile::failed(const char *step) const
{
    qDebug() << "[Certificate] Cannot" << step << m_file.fileName() << m_file.errorString();
    return false;
}
