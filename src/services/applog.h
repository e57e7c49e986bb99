#pragma once

#include <QFileDevice>
#include <QMutex>
#include <QString>

#include <atomic>
#include <memory>

/// How grave a line of the log is. The numbers are fixed; a line of any other number bears the name
/// "UNKNOWN".
enum class LogLevel : qint32 {
    Debug = 0,
    Info = 1,
    Warning = 2,
    Error = 3,
};

/// The log file of the program, one for the process. Lines read "[yyyy-MM-dd HH:mm:ss.zzz] [INFO] text" in
/// local time and are in the file when the call returns, so that it is complete after a crash. The file is
/// UTF-8, readable by its owner only when it is created here, and never cut or limited: each run appends.
///
/// No failure is reported; without a file lines only go to the message output. Any thread; lines never
/// interleave.
class AppLog
{
public:
    AppLog(const AppLog &) = delete;
    AppLog &operator=(const AppLog &) = delete;

    /// Made at first use, with "quorvex.log" in the application's data folder of the user, which is created.
    /// The names of application and organisation decide that folder: set them first.
    static AppLog &instance();

    /// Takes the place of the default file, whose folder then is not created. Before the first use of
    /// instance(); later it does nothing. The folder must exist.
    static void setFirstLogFile(const QString &path);

    /// Closes the file in use and appends to that one. The folder must exist.
    void setLogFile(const QString &path);
    /// Closes the file in use; Windows keeps its folder until then. Lines are only echoed from then on.
    void closeLogFile();

    /// Writes the line, and hands it to the framework's message output at the same level; a level without a
    /// name is only written. Levels below minLevel() do neither.
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
    std::unique_ptr<QFileDevice> m_file; ///< none: lines are only echoed
    std::atomic<LogLevel> m_minLevel{LogLevel::Info};
    std::atomic<bool> m_echoToConsole{true};
};
