#pragma once

#include "cli/job/jobview.h"

#include <QElapsedTimer>
#include <QString>

namespace cli {

class CliIo;

// One line on the terminal behind standard error that is drawn over and over: percent, pass, rate, remaining
// time. Does nothing where standard error is no terminal.
class ProgressLine
{
public:
    explicit ProgressLine(CliIo &io);

    // Begins to measure the time.
    void start() { m_time.start(); }
    void show(const JobProgress &progress);
    // Takes the line away, so that other text can be printed where it stood.
    void clear();
    // Draws it again.
    void restore();
    // Takes it away for good.
    void end();

private:
    void draw(const QString &line);

    CliIo &m_io;
    bool m_isTerminal;
    QElapsedTimer m_time;
    QString m_line;
    int m_drawnWidth = 0; // columns taken on the terminal now
};

} // namespace cli
