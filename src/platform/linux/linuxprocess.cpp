#include "platform/process.h"

#include "platform/filenames.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxprocesscalls.h"

#include <QSocketNotifier>
#include <QSysInfo>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <optional>
#include <utility>

namespace platform {

namespace {

// The state of the signal handler, which can run on any thread at any moment.
std::atomic<bool> s_stopAsked{false};
std::atomic<int> s_wakeUpEnd{-1};
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

// The pipe's end that becomes readable with the first signal, -1 without a StopHandler.
int s_notifiedEnd = -1;

// The signal mask before holdStopSignals().
std::optional<sigset_t> s_maskBefore;

extern "C" void onStopSignal(int)
{
    const int error = errno;
    s_stopAsked.store(true);
    const char wakeUp = 0;
    // If the pipe is full, the reader is awake already.
    [[maybe_unused]] const ssize_t count = ::write(s_wakeUpEnd.load(), &wakeUp, 1);
    errno = error;
}

int descriptorOf(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return STDIN_FILENO;
    case StandardStream::Output:
        return STDOUT_FILENO;
    case StandardStream::Error:
        break;
    }
    return STDERR_FILENO;
}

// Waits for input. False when a stop is requested first.
bool waitForInput()
{
    std::array<pollfd, 2> ends{pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{s_notifiedEnd, POLLIN, 0}};
    uninterrupted([&ends] { return processCalls().poll(ends.data(), ends.size(), -1); });
    return !StopHandler::isAsked();
}

} // namespace

bool isTerminal(StandardStream stream)
{
    return ::isatty(descriptorOf(stream)) == 1;
}

int terminalColumns(StandardStream stream)
{
    winsize size{};
    return ::ioctl(descriptorOf(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::optional<QString> readLine()
{
    QByteArray line;
    char character = 0;
    while (waitForInput()) {
        // Reads single bytes, so that the text after the line remains for the next reader.
        const ssize_t count =
            uninterrupted([&character] { return fileCalls().read(STDIN_FILENO, &character, 1); });
        if (count < 1)
            return std::nullopt;
        if (character == '\n')
            return QString::fromUtf8(line);
        line += character;
    }
    return std::nullopt;
}

Status writeText(StandardStream stream, const QByteArray &text)
{
    const int descriptor = descriptorOf(stream);
    const char *data = text.constData();
    qsizetype left = text.size();
    while (left > 0) {
        const ssize_t count = processCalls().write(descriptor, data, static_cast<std::size_t>(left));
        if (count >= 0) {
            data += count;
            left -= count;
        } else if (errno == EAGAIN) {
            // Another process that shares the terminal or pipe may have made it non-blocking.
            pollfd end{descriptor, POLLOUT, 0};
            uninterrupted([&end] { return processCalls().poll(&end, 1, -1); });
        } else if (errno != EINTR) {
            return statusFromErrno(errno, "write");
        }
    }
    return {};
}

void failWithoutBoxes()
{}

void outliveReaders()
{
    ::signal(SIGPIPE, SIG_IGN);
}

void outliveSizeLimits()
{
    ::signal(SIGXFSZ, SIG_IGN);
}

void provideComputerName()
{
    if (qEnvironmentVariableIsEmpty("COMPUTERNAME"))
        qputenv("COMPUTERNAME", QSysInfo::machineHostName().toUtf8());
}

QStringList decodedArguments(int count, char *const *arguments)
{
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result.append(decodeName(QByteArrayView(arguments[i])));
    return result;
}

void liftOpenFileLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == limit.rlim_max)
        return;
    limit.rlim_cur = limit.rlim_max;
    // A failure is harmless, because the old limit remains.
    static_cast<void>(::setrlimit(RLIMIT_NOFILE, &limit));
}

void holdStopSignals()
{
    sigset_t held;
    ::sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        ::sigaddset(&held, signal);
    sigset_t before;
    if (::pthread_sigmask(SIG_BLOCK, &held, &before) == 0)
        s_maskBefore = before;
}

class StopHandler::Private : public QObject
{
public:
    explicit Private(std::function<void()> onStop);
    ~Private() override
    {
        s_wakeUpEnd.store(-1);
        s_notifiedEnd = -1;
    }
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

private:
    static void handle(int signal, void (*action)(int), bool evenWhenIgnored);

    FileDescriptor m_readEnd;
    FileDescriptor m_writeEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

StopHandler::Private::Private(std::function<void()> onStop)
{
    s_stopAsked.store(false);
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("no pipe for signals: %d", errno);
    m_readEnd = FileDescriptor(ends[0]);
    m_writeEnd = FileDescriptor(ends[1]);
    s_notifiedEnd = m_readEnd.get();
    s_wakeUpEnd.store(m_writeEnd.get());

    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this, stop = std::move(onStop)] {
        m_notifier->setEnabled(false);
        stop();
    });

    handle(SIGINT, onStopSignal, true);
    handle(SIGTERM, onStopSignal, true);
    handle(SIGHUP, onStopSignal, false);
    handle(SIGPIPE, SIG_IGN, true);
    if (const auto before = std::exchange(s_maskBefore, std::nullopt))
        ::pthread_sigmask(SIG_SETMASK, &*before, nullptr);
}

void StopHandler::Private::handle(int signal, void (*action)(int), bool evenWhenIgnored)
{
    struct sigaction previous
    {};
    ::sigaction(signal, nullptr, &previous);
    if (previous.sa_handler == SIG_IGN && !evenWhenIgnored)
        return;
    struct sigaction ours
    {};
    ours.sa_handler = action;
    ours.sa_flags = SA_RESTART;
    ::sigemptyset(&ours.sa_mask);
    ::sigaction(signal, &ours, nullptr);
}

StopHandler::StopHandler(std::function<void()> onStop)
    : d(std::make_unique<Private>(std::move(onStop)))
{}

StopHandler::~StopHandler() = default;

bool StopHandler::isAsked()
{
    return s_stopAsked.load();
}

} // namespace platform
