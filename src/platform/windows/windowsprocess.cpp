#include "platform/process.h"

#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsprocesscalls.h"

#include <QWinEventNotifier>

#include <shellapi.h>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <utility>

namespace platform {

namespace {

// Used by the console's handler thread, which may run at any moment until the process ends.
std::atomic<bool> s_stopAsked{false};
// Set with the first stop request. Never closed, because the handler thread may still use it.
HANDLE s_stopEvent = nullptr;

// The thread inside readLine(); null while no thread is.
HANDLE s_reader = nullptr;
std::mutex s_readerMutex;
std::condition_variable s_readerLeft;

// Cancels the call in which readLine() waits. The reader may not have entered that call yet, so this repeats
// until the reader has left.
void interruptReader()
{
    using namespace std::chrono_literals;
    std::unique_lock lock(s_readerMutex);
    while (s_reader != nullptr) {
        ::CancelSynchronousIo(s_reader);
        s_readerLeft.wait_for(lock, 10ms);
    }
}

// Registers the calling thread as the reader that a stop interrupts.
class ReaderInterruption
{
public:
    ReaderInterruption()
    {
        const std::lock_guard lock(s_readerMutex);
        auto *const process = ::GetCurrentProcess();
        if (!::DuplicateHandle(process, ::GetCurrentThread(), process, &s_reader, THREAD_TERMINATE, FALSE, 0))
            qFatal("no handle of the reading thread: %lu", ::GetLastError());
    }
    ~ReaderInterruption()
    {
        const std::lock_guard lock(s_readerMutex);
        ::CloseHandle(std::exchange(s_reader, nullptr));
        s_readerLeft.notify_all();
    }
    ReaderInterruption(const ReaderInterruption &) = delete;
    ReaderInterruption &operator=(const ReaderInterruption &) = delete;
};

BOOL WINAPI onConsoleEvent(DWORD event)
{
    s_stopAsked.store(true);
    ::SetEvent(s_stopEvent);
    interruptReader();
    // After the other events the system ends the process as soon as this handler returns.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::Sleep(INFINITE);
    return TRUE;
}

HANDLE handleOf(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return ::GetStdHandle(STD_INPUT_HANDLE);
    case StandardStream::Output:
        return ::GetStdHandle(STD_OUTPUT_HANDLE);
    case StandardStream::Error:
        break;
    }
    return ::GetStdHandle(STD_ERROR_HANDLE);
}

QString withoutLineEnd(QString line)
{
    line.chop(line.endsWith(QLatin1Char('\n')) ? 1 : 0);
    line.chop(line.endsWith(QLatin1Char('\r')) ? 1 : 0);
    return line;
}

std::optional<QString> readConsoleLine(HANDLE input)
{
    std::wstring line;
    std::array<wchar_t, 512> piece;
    while (!StopHandler::isAsked()) {
        DWORD count = 0;
        // Ctrl+C makes the call return without characters.
        if (!::ReadConsoleW(input, piece.data(), DWORD(piece.size()), &count, nullptr) || count == 0)
            return std::nullopt;
        line.append(piece.data(), count);
        constexpr wchar_t EndOfInput = 0x1A; // Ctrl+Z
        if (line.front() == EndOfInput)
            return std::nullopt;
        if (line.back() == L'\n')
            return withoutLineEnd(decodeName(line));
    }
    return std::nullopt;
}

std::optional<QString> readStreamLine(HANDLE input)
{
    QByteArray line;
    while (!StopHandler::isAsked()) {
        // Reads single bytes, so that the bytes behind the line stay for the next reader.
        char character = 0;
        DWORD count = 0;
        if (!::ReadFile(input, &character, 1, &count, nullptr) || count == 0)
            return std::nullopt;
        line += character;
        if (character == '\n')
            return withoutLineEnd(QString::fromUtf8(line));
    }
    return std::nullopt;
}

Status writeToConsole(HANDLE console, const QString &text)
{
    // Consoles before Windows 8 accept at most 64 KiB. Pieces must not split surrogate pairs.
    constexpr qsizetype LargestPiece = 8192;
    qsizetype done = 0;
    while (done < text.size()) {
        qsizetype size = qMin(text.size() - done, LargestPiece);
        if (size > 1 && text.at(done + size - 1).isHighSurrogate())
            --size;
        DWORD count = 0;
        if (!::WriteConsoleW(console, text.constData() + done, static_cast<DWORD>(size), &count, nullptr))
            return statusFromLastError("WriteConsole");
        if (count == 0)
            return {WriteFault, ERROR_WRITE_FAULT, "WriteConsole"};
        done += count;
    }
    return {};
}

} // namespace

bool isTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return ::GetConsoleMode(handleOf(stream), &mode);
}

int terminalColumns(StandardStream stream)
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (!::GetConsoleScreenBufferInfo(handleOf(stream), &info))
        return 0;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

std::optional<QString> readLine()
{
    const ReaderInterruption interruption;
    auto *const input = handleOf(StandardStream::Input);
    const std::optional<QString> line =
        isTerminal(StandardStream::Input) ? readConsoleLine(input) : readStreamLine(input);
    return StopHandler::isAsked() ? std::nullopt : line;
}

Status writeText(StandardStream stream, const QByteArray &text)
{
    auto *const output = handleOf(stream);
    if (isTerminal(stream))
        return writeToConsole(output, QString::fromUtf8(text));
    constexpr qsizetype LargestPiece = qsizetype(1024) * 1024;
    qsizetype done = 0;
    while (done < text.size()) {
        const auto size = static_cast<DWORD>(qMin(text.size() - done, LargestPiece));
        DWORD count = 0;
        if (!::WriteFile(output, text.constData() + done, size, &count, nullptr))
            return statusFromLastError("WriteFile");
        if (count == 0)
            return {WriteFault, ERROR_WRITE_FAULT, "WriteFile"};
        done += count;
    }
    return {};
}

void failWithoutBoxes()
{
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

void outliveReaders()
{}

void outliveSizeLimits()
{}

void provideComputerName()
{}

void liftOpenFileLimit()
{}

void holdStopSignals()
{}

QStringList decodedArguments(int, char *const *)
{
    int count = 0;
    wchar_t **const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (arguments == nullptr)
        qFatal("no arguments: %lu", ::GetLastError());
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result.append(decodeName(arguments[i]));
    processCalls().localFree(static_cast<void *>(arguments));
    return result;
}

class StopHandler::Private : public QObject
{
public:
    explicit Private(std::function<void()> onStop);
    ~Private() override = default;
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

private:
    std::unique_ptr<QWinEventNotifier> m_notifier;
};

StopHandler::Private::Private(std::function<void()> onStop)
{
    s_stopAsked.store(false);
    // Event and handler are never removed. Removal needs the lock under which the system calls the handler,
    // and a handler that waits for the end of the process holds that lock.
    static const bool isInstalled = [] {
        s_stopEvent = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
        return s_stopEvent != nullptr && ::SetConsoleCtrlHandler(onConsoleEvent, TRUE);
    }();
    if (!isInstalled)
        qFatal("no handler for console events");
    ::ResetEvent(s_stopEvent);
    m_notifier = std::make_unique<QWinEventNotifier>(s_stopEvent);
    connect(m_notifier.get(), &QWinEventNotifier::activated, this, [this, stop = std::move(onStop)] {
        m_notifier->setEnabled(false);
        stop();
    });
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
