#pragma once

#include "platform/status.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// What a program needs of its own process: the standard streams, the arguments as they were given, and the
/// wish of the user or the system to stop it.
///
/// These functions are free because a program calls them before its first Platform exists, or because they
/// belong to the process and not to the machine. The command line reaches its streams through an interface of
/// its own, which is where a test puts other streams.

namespace platform {

enum class StandardStream { Input, Output, Error };

/// Whether a person sits behind the stream. Windows: GetConsoleMode succeeds. Linux: isatty.
bool isTerminal(StandardStream stream);

/// Columns of the terminal behind the stream, 0 when there is none or it does not tell.
/// Windows: GetConsoleScreenBufferInfo. Linux: TIOCGWINSZ.
int terminalColumns(StandardStream stream);

/// The next line of standard input without its line end, waiting for it as long as it takes. Nothing at the
/// end of the input, after a failure, and as soon as a StopHandler has been asked to stop. Not beside other
/// readers of the stream. Windows: ReadConsoleW or ReadFile; both end with Ctrl+C. Linux: poll on the input
/// and on the stop signals, read.
std::optional<QString> readLine();

/// Writes all of the UTF-8 text, waiting for a reader that is slow. While a StopHandler exists, a reader that
/// has gone away makes it fail; without one the system may end the process then. Windows: WriteConsoleW to a
/// console, else WriteFile. Linux: write.
Status writeText(StandardStream stream, const QByteArray &text);

/// From now on a call on a drive without a medium, or on a file that cannot be opened, fails at once, instead
/// of waiting behind a box of the system's until somebody closes it: card readers are drives without a medium
/// most of their time. For the whole process and those that it starts. Windows: SetErrorMode,
/// SEM_FAILCRITICALERRORS and SEM_NOOPENFILEERRORBOX beside what is set already. Linux: is so anyway.
void failWithoutBoxes();

/// From now on a write to a pipe whose reader has gone away fails, instead of ending the process: for a
/// program with windows, which does not live for its output. Windows: is so anyway. Linux: SIGPIPE.
void outliveReaders();

/// From now on a write beyond the size that files may have for this process fails with FileTooLarge, instead
/// of ending the process. Windows: is so anyway. Linux: SIGXFSZ.
void outliveSizeLimits();

/// Reports take the computer's name from where Windows keeps it, the variable COMPUTERNAME. Before other
/// threads run. Windows: is so anyway. Linux: sets it to the host's name unless it is there.
void provideComputerName();

/// The arguments of main(), the program's name first, in the form that Files takes for paths: nothing in them
/// is lost. Windows: GetCommandLineW and CommandLineToArgvW. Linux: an undecodable byte b becomes the lone
/// surrogate U+DC00 + b.
QStringList decodedArguments(int count, char *const *arguments);

/// Lets the process have as many files open as the system allows it. Windows: no limit is known. Linux:
/// setrlimit, the soft limit of RLIMIT_NOFILE becomes the hard one.
void liftOpenFileLimit();

/// A wish to stop that comes from now on waits for the first StopHandler, instead of ending a program that
/// has not got as far as having one. To be called once, before other threads run. Windows: does nothing.
/// Linux: blocks SIGINT, SIGTERM and SIGHUP.
void holdStopSignals();

/// Receives the wish to stop for as long as it exists, in place of the process's end. One at a time, made on
/// the thread of the QCoreApplication, whose event loop calls the function; never called twice. Wishes after
/// the first have no effect, nor has one that comes when it is gone: the process is ending, and its exit code
/// is to say how its work went.
///
/// Windows: SetConsoleCtrlHandler (Ctrl+C, Ctrl+Break, closing the window, logoff, shutdown; the handler's
/// own thread waits until the process ends) and a QWinEventNotifier. Linux: SIGINT and SIGTERM, also where a
/// shell has made a background process ignore SIGINT; SIGHUP unless it is ignored, as nohup does; they write
/// into a pipe that a QSocketNotifier reads. A write to a pipe without a reader fails meanwhile instead of
/// ending the process.
class StopHandler
{
public:
    explicit StopHandler(std::function<void()> onStop);
    ~StopHandler();
    StopHandler(const StopHandler &) = delete;
    StopHandler &operator=(const StopHandler &) = delete;

    /// Whether the wish has been received, also before an event loop could pass it on. Any thread.
    static bool isAsked();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
