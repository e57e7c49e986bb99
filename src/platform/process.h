#pragma once

#include "platform/status.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// Functions for the program's own process: the standard streams, the arguments as they were given, and the
/// stop request of the user or the system.
///
/// These functions are free because a program calls them before its first Platform exists, or because they
/// belong to the process and not to the machine. The command line accesses its streams through an interface
/// of its own, which a test replaces.

namespace platform {

enum class StandardStream { Input, Output, Error };

/// Whether the stream is connected to a terminal. Windows: GetConsoleMode succeeds. Linux: isatty.
bool isTerminal(StandardStream stream);

/// Columns of the stream's terminal, 0 when there is no terminal or its width is unknown. Windows:
/// GetConsoleScreenBufferInfo. Linux: TIOCGWINSZ.
int terminalColumns(StandardStream stream);

/// The next line of standard input without its line end; waits without a time limit. No value at the end of
/// the input, after a failure, and after a StopHandler received a stop request. No other code may read the
/// stream. Windows: ReadConsoleW or ReadFile; both end with Ctrl+C. Linux: poll on the input and on the stop
/// signals, read.
std::optional<QString> readLine();

/// Writes all of the UTF-8 text, and waits for a slow reader. If the reader has closed the stream, the write
/// fails while a StopHandler exists; without a StopHandler the system may end the process. Windows:
/// WriteConsoleW to a console, else WriteFile. Linux: write.
Status writeText(StandardStream stream, const QByteArray &text);

/// Disables the system's error boxes, so that a call on a drive without a medium, or on a file that cannot be
/// opened, fails at once instead of waiting until the user closes a box. Card readers are mostly drives
/// without a medium. Applies to the process and its child processes. Windows: SetErrorMode,
/// SEM_FAILCRITICALERRORS and SEM_NOOPENFILEERRORBOX in addition to the present mode. Linux: always so.
void failWithoutBoxes();

/// Makes a write to a pipe without a reader fail instead of ending the process. For a program with windows,
/// whose purpose is not its output. Windows: always so. Linux: SIGPIPE.
void outliveReaders();

/// Makes a write beyond the process's file size limit fail with FileTooLarge instead of ending the process.
/// Windows: always so. Linux: SIGXFSZ.
void outliveSizeLimits();

/// Sets the variable COMPUTERNAME, from which reports take the computer's name. Call it before other threads
/// run. Windows: always set. Linux: the host's name, unless the variable is set.
void provideComputerName();

/// The arguments of main(), starting with the program's name, in the lossless form that Files takes for
/// paths. Windows: GetCommandLineW and CommandLineToArgvW. Linux: an undecodable byte b becomes the lone
/// surrogate U+DC00 + b.
QStringList decodedArguments(int count, char *const *arguments);

/// Raises the process's limit of open files to the maximum that the system allows. Windows: no limit is
/// known. Linux: setrlimit raises the soft limit of RLIMIT_NOFILE to the hard one.
void liftOpenFileLimit();

/// Defers stop requests to the first StopHandler, so that they do not end a program that has not created it
/// yet. Call it once, before other threads run. Windows: does nothing. Linux: blocks SIGINT, SIGTERM and
/// SIGHUP.
void holdStopSignals();

/// Receives the stop request as long as it exists, so that the request does not end the process. One instance
/// at a time, created on the thread of the QCoreApplication, whose event loop calls the function at most
/// once. Further requests are ignored, also after the destruction of the StopHandler, because the process is
/// then ending and its exit code must report the result of its work.
///
/// Windows: SetConsoleCtrlHandler (Ctrl+C, Ctrl+Break, closing the window, logoff, shutdown; the handler's
/// own thread waits until the process ends) and a QWinEventNotifier. Linux: SIGINT and SIGTERM, also where a
/// shell has made a background process ignore SIGINT; SIGHUP unless it is ignored, as nohup does. The signals
/// write into a pipe that a QSocketNotifier reads. Meanwhile a write to a pipe without a reader fails instead
/// of ending the process.
class StopHandler
{
public:
    explicit StopHandler(std::function<void()> onStop);
    ~StopHandler();
    StopHandler(const StopHandler &) = delete;
    StopHandler &operator=(const StopHandler &) = delete;

    /// Whether the stop request was received, also before an event loop has delivered it. Any thread.
    static bool isAsked();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
