#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QTemporaryDir>

#include <sys/types.h>

#include <functional>
#include <vector>

// Runs the program with arbitrary bytes as arguments, on pipes or on a new terminal. The run sees no real
// drive and no folder of the user.
class ProgramRun
{
public:
    QByteArray out; // with a terminal, all of its output
    QByteArray err;
    int code = -1;        // -1: ended by a signal
    int signalNumber = 0; // the signal that ended it
    bool onTerminal = false;
    QByteArray input;         // piped in, or typed as an answer to the question
    bool closeOutput = false; // standard output has no reader
    QByteArrayList environment;
    int openFiles = 0; // limit of open files; 0: the limit of this process
    std::function<void(pid_t process)> onStart;
    // Called with the whole output so far whenever it grows; may send signals to the process.
    std::function<void(const QByteArray &out, pid_t process)> onOutput;

    ProgramRun &operator()(QByteArrayList arguments);

private:
    struct Ends
    {
        int output = -1;
        int error = -1;         // -1: shown on the terminal
        std::vector<int> child; // standard input, output and error of the program
    };

    Ends pipes();
    Ends terminal();
    [[noreturn]] void becomeProgram(const QByteArrayList &arguments, const Ends &ends) const;
    void collect(const Ends &ends, pid_t child);

    // False at the end of the stream.
    bool readSome(int end, QByteArray &text, pid_t child);

    QTemporaryDir m_home;
};
