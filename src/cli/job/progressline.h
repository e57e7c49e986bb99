#pragma once

#include "cli/job/jobview.h"

#include <QElapsedTimer>
#include <QString>

namespace cli {

class CliIo;

/// A line on the terminal of standard error that is drawn repeatedly: percent, pass, rate and remaining time.
/// Does nothing when standard error is not a terminal.
class ProgressLine
{
public:
    explicit ProgressLine(CliIo &io);

    /// Starts to measure the time.
    void start() { m_time.start(); }
    void show(const JobProgress &progress);
    /// Removes the line, so that other text can be printed in its place.
    void clear();
    /// Draws it again.
    void restore();
    /// Removes the line for good.
    void end();

private:
    void draw(const QString &line);

    CliIo &m_io;
    bool m_isTerminal;
    QElapsedTimer m_time;
    QString m_line;
    int m_drawnWidth = 0; ///< columns currently drawn
};

} // namespace cli
