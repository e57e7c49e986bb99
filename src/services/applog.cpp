#include "services/applog.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {
QString s_firstLogFile;

QString levelName(LogLevel level)
{
    switch (level) {
    case LogLevel::Debug:
        return u"DEBUG"_s;
    case LogLevel::Info:
        return u"INFO"_s;
    case LogLevel::Warning:
        return u"WARN"_s;
    case LogLevel::Error:
        return u"ERROR"_s;
    }
    return u"UNKNOWN"_s;
}

void echo(LogLevel level, const QString &line)
{
    switch (level) {
    case LogLevel::Debug:
        qDebug().noquote() << line;
        break;
    case LogLevel::Info:
        qInfo().noquote() << line;
        break;
    case LogLevel::Warning:
        qWarning().noquote() << line;
        break;
    case LogLevel::Error:
        qCritical().noquote() << line;
        break;
    }
}
} // namespace

void AppLog::setFirstLogFile(const QString &path)
{
    s_firstLogFile = path;
}

AppLog &AppLog::instance()
{
    static AppLog log;
    return log;
}

AppLog::AppLog()
{
    if (!s_firstLogFile.isEmpty()) {
        setLogFile(s_firstLogFile);
        return;
    }
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    // If the folder cannot be created, the file does not open either and the log works without a file.
    QDir().mkpath(folder);
    setLogFile(folder + u"/quorvex.log"_s);
}

void AppLog::setLogFile(const QString &path)
{
    const QMutexLocker locker(&m_mutex);
    m_file.reset(); // closed first: with the same file, its buffered data must not land behind later lines
    // The log has the names of wiped files, so that only its owner may read it. The permissions are set at
    // creation, which leaves no moment in which others can open the file. The permissions of an existing file
    // are the owner's choice.
    auto opened = platform::Platform::current().files().openForAppending(path);
    if (opened)
        m_file = opened.take();
}

void AppLog::closeLogFile()
{
    const QMutexLocker locker(&m_mutex);
    m_file.reset();
}

void AppLog::log(LogLevel level, const QString &message)
{
    if (level < m_minLevel)
        return;
    const QString time = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s);
    const QString line = u"[%1] [%2] %3"_s.arg(time, levelName(level), message);
    writeLine(line);
    if (m_echoToConsole)
        echo(level, line);
}

void AppLog::writeLine(const QString &line)
{
    const QMutexLocker locker(&m_mutex);
    if (!m_file)
        return;
    // No QTextStream: it gives up for good after one failed write, and the volume of the log is full for a
    // while whenever its free space is wiped.
    m_file->write((line + u'\n').toUtf8());
    m_file->flush();
}
