#include "platform/wholefile.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace platform {

namespace {

Files &files()
{
    return Platform::current().files();
}

} // namespace

WholeFile::WholeFile(const QString &path, QIODevice::OpenMode lineEnds)
    : m_file(path)
    , m_lineEnds(lineEnds)
    , m_isStream(files().isStream(path))
{}

bool WholeFile::isPossible(const QString &path)
{
    const QFileInfo existing(path);
    return !path.isEmpty() && (!existing.exists() || existing.isFile() || files().isStream(path));
}

bool WholeFile::open()
{
    const QString path = m_file.fileName();
    if (!isPossible(path))
        return failed("open", QStringLiteral("not a regular file"));
    // Opening a pipe waits for its reader, which may not exist before the end of the job.
    if (m_isStream)
        return QFileInfo(path).isWritable() || failed("open", QStringLiteral("not writable"));
    return m_file.open(QIODevice::WriteOnly | m_lineEnds) || failed("open", m_file.errorString());
}

bool WholeFile::commit(const QByteArray &bytes)
{
    if (m_isStream)
        return commitToStream(bytes);
    // commit() reports neither a failed write of its remaining buffer nor a lack of space on a file system
    // with delayed allocation.
    if (m_file.write(bytes) != bytes.size() || !m_file.flush() || !files().isWrittenOut(m_file)) {
        m_file.cancelWriting();
        return failed("write", m_file.errorString());
    }
    return m_file.commit() || failed("replace", m_file.errorString());
}

bool WholeFile::commitToStream(const QByteArray &bytes)
{
    QFile stream(m_file.fileName());
    if (!files().openStream(stream, QIODevice::WriteOnly | QIODevice::Unbuffered | m_lineEnds))
        return failed("open", stream.errorString());
    return stream.write(bytes) == bytes.size() || failed("write", stream.errorString());
}

bool WholeFile::failed(const char *step, const QString &why) const
{
    qDebug() << "[Output] Cannot" << step << m_file.fileName() << why;
    return false;
}

} // namespace platform
