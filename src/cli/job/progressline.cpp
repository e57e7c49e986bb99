#include "cli/job/progressline.h"

#include "cli/io/amounttext.h"
#include "cli/io/cliio.h"
#include "cli/io/table.h"
#include "cli/texts.h"
#include "model/formatsize.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

constexpr int UsualColumns = 80;

QString lineText(const JobProgress &progress, qint64 elapsedMs)
{
    QStringList parts{u"%1%"_s.arg(progress.percent, 3),
                      Cli::tr("pass %1/%2").arg(progress.pass).arg(progress.passes)};
    if (progress.bytesPerSecond > 0)
        parts.append(Cli::tr("%1/s").arg(formatSize(std::llround(progress.bytesPerSecond))));
    // The remaining time cannot be estimated before the first percent.
    if (progress.percent > 0) {
        const qint64 seconds = elapsedMs * (100 - progress.percent) / progress.percent / 1000;
        parts.append(Cli::tr("%1 left").arg(durationText(seconds)));
    }
    return parts.join(u"  ");
}

} // namespace

ProgressLine::ProgressLine(CliIo &io)
    : m_io(io)
    , m_isTerminal(io.isTerminal(platform::StandardStream::Error))
{
    m_time.start();
}

void ProgressLine::show(const JobProgress &progress)
{
    m_line = lineText(progress, m_time.elapsed());
    draw(m_line);
}

void ProgressLine::clear()
{
    draw(QString());
}

void ProgressLine::restore()
{
    draw(m_line);
}

void ProgressLine::end()
{
    m_line.clear();
    clear();
}

void ProgressLine::draw(const QString &line)
{
    if (!m_isTerminal || (line.isEmpty() && m_drawnWidth == 0))
        return;
    // The last column stays empty, because some terminals begin a new line after it.
    const int columns = m_io.columns() > 0 ? m_io.columns() : UsualColumns;
    const QString fitting = clipped(line, columns - 1);
    const int width = displayWidth(fitting);
    const QString blanks(std::max(0, std::min(m_drawnWidth, columns - 1) - width), u' ');
    m_io.printError(u'\r' + fitting + blanks + (fitting.isEmpty() ? u"\r"_s : QString()));
    m_drawnWidth = width;
}

} // namespace cli
