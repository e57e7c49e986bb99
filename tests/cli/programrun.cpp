#include "cli/programrun.h"

#include <QList>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/select.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <utility>

ProgramRun &ProgramRun::operator()(QByteArrayList arguments)
{
    arguments.prepend(QByteArray(QUORVEX_CLI));
    arguments.append("--only-images");
    const Ends ends = onTerminal ? terminal() : pipes();
    // Signals sent before the program has started must not reach the handlers of this process.
    sigset_t held;
    sigset_t before;
    ::sigemptyset(&held);
    ::sigaddset(&held, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &held, &before);
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGTERM, SIG_DFL);
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        becomeProgram(arguments, ends); // does not return
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (onStart)
        onStart(child);
    for (const int end : ends.child)
        ::close(end);
    if (closeOutput)
        ::close(ends.output);
    else
        collect(ends, child);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status))
        code = WEXITSTATUS(status);
    else
        signalNumber = WTERMSIG(status);
    return *this;
}

ProgramRun::Ends ProgramRun::pipes()
{
    int in[2];
    int output[2];
    int error[2];
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(output, O_CLOEXEC) != 0 || ::pipe2(error, O_CLOEXEC) != 0)
        qFatal("no pipes");
    if (::write(in[1], input.constData(), static_cast<std::size_t>(input.size())) != input.size())
        qFatal("the input does not fit into a pipe");
    ::close(in[1]);
    return {output[0], error[0], {in[0], output[1], error[1]}};
}

ProgramRun::Ends ProgramRun::terminal()
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0)
        qFatal("no terminal");
    const int slave = ::open(::ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    winsize size{};
    size.ws_col = 100;
    size.ws_row = 25;
    ::ioctl(slave, TIOCSWINSZ, &size);
    return {master, -1, {slave, ::dup(slave), ::dup(slave)}};
}

void ProgramRun::becomeProgram(const QByteArrayList &arguments, const Ends &ends) const
{
    ::setsid();
    for (int i = 0; i < 3; ++i)
        ::dup2(ends.child[static_cast<std::size_t>(i)], i);
    if (onTerminal)
        ::ioctl(0, TIOCSCTTY, 0);
    ::setenv("QUORVEX_ONLY_IMAGE_DISKS", "1", 1);
    ::setenv("XDG_DATA_HOME", m_home.path().toUtf8().constData(), 1);
    for (const QByteArray &variable : environment) {
        const qsizetype sign = variable.indexOf('=');
        ::setenv(variable.left(sign).constData(), variable.mid(sign + 1).constData(), 1);
    }
    if (openFiles > 0) {
        const rlimit limit{static_cast<rlim_t>(openFiles), static_cast<rlim_t>(openFiles)};
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
    std::vector<char *> list;
    for (const QByteArray &argument : arguments)
        list.push_back(::strdup(argument.constData()));
    list.push_back(nullptr);
    ::execv(list.front(), list.data());
    ::_exit(127);
}

void ProgramRun::collect(const Ends &ends, pid_t child)
{
    QList<std::pair<int, QByteArray *>> open{{ends.output, &out}};
    if (ends.error >= 0)
        open.append({ends.error, &err});
    while (!open.isEmpty()) {
        fd_set set;
        FD_ZERO(&set);
        for (const auto &[end, text] : std::as_const(open))
            FD_SET(end, &set);
        if (::select(FD_SETSIZE, &set, nullptr, nullptr, nullptr) < 0)
            continue;
        open.removeIf([&](const std::pair<int, QByteArray *> &stream) {
            return FD_ISSET(stream.first, &set) && !readSome(stream.first, *stream.second, child);
        });
    }
}

bool ProgramRun::readSome(int end, QByteArray &text, pid_t child)
{
    char buffer[4096];
    const ssize_t count = ::read(end, buffer, sizeof buffer);
    if (count <= 0) {
        ::close(end);
        return false;
    }
    text.append(buffer, count);
    if (onTerminal && !input.isEmpty() && text.contains("to destroy it: ")) {
        if (::write(end, input.constData(), static_cast<std::size_t>(input.size())) != input.size())
            qFatal("the input cannot be typed");
        input.clear();
    }
    if (onOutput)
        onOutput(out, child);
    return true;
}
