#pragma once

#include <QFileDevice>
#include <QMutex>
#include <QString>

#include <atomic>
#include <memory>

/// The severity of a line. The numbers are fixed; a line with any other number is labelled "UNKNOWN".
enum class LogLevel : qint32 {
    Debug = 0,
    Info = 1,
    Warning = 2,
    Error = 3,
};

/// The log file of the process. A line reads "[yyyy-MM-dd HH:mm:ss.zzz] [INFO] text" in local time. It is in
/// the file when the call returns, so that a crash loses no line. The file is UTF-8 and is only ever appended
/// to. A file that is created here can be read by its owner only.
///
/// Errors are not reported; without a file, lines only go to the message output. Any thread; lines never
/// interleave.
class AppLog
{
public:
    AppLog(const AppLog &) = delete;
    AppLog &operator=(const AppLog &) = delete;

    /// Created at first use with "quorvex.log" in the user's application data folder, which is created too.
    /// The application and organisation names decide that folder and must be set before.
    static AppLog &instance();

    /// Sets the first file instead of the default one, whose folder is then not created. Has an effect only
    /// before the first use of instance(). The folder must exist.
    static void setFirstLogFile(const QString &path);

    /// Closes the current file and appends to this one. The folder must exist.
    void setLogFile(const QString &path);
    /// Closes the current file; until then Windows does not let its folder be removed. Later lines only go to
    /// the message output.
    void closeLogFile();

    /// Writes the line and passes it to the framework's message output at the same level. A level without a
    /// name is only written. Levels below minLevel() are dropped.
    void log(LogLevel level, const QString &message);
    void debug(const QString &message) { log(LogLevel::Debug, message); }
    void info(const QString &message) { log(LogLevel::Info, message); }
    void warning(const QString &message) { log(LogLevel::Warning, message); }
    void error(const QString &message) { log(LogLevel::Error, message); }

    LogLevel minLevel() const { return m_minLevel; }
    void setMinLevel(LogLevel level) { m_minLevel = level; }
    bool echoToConsole() const { return m_echoToConsole; }
    void setEchoToConsole(bool echo) { m_echoToConsole = echo; }

private:
    AppLog();
    ~AppLog() = default;

    void writeLine(const QString &line);

    QMutex m_mutex;                      ///< guards m_file
    std::unique_ptr<QFileDevice> m_file; ///< null: lines only go to the message output
    std::atomic<LogLevel> m_minLevel{LogLevel::Info};
    std::atomic<bool> m_echoToConsole{true};
};
