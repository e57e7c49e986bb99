#include "certificate/certificatepaper.h"

#include "certificate/certificatepage.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

QString paintOnPaper(QPainter &painter, const CertificatePalette &palette, QSize page, int dpi,
                     const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    const double devicePixels = static_cast<double>(dpi) / PaperResolution;
    CertificatePage::Paper paper{qFloor(page.width() / devicePixels), qFloor(page.height() / devicePixels),
                                 PaperResolution, 1 / devicePixels};
    CertificatePage trial(painter, palette, paper);
    const int end = trial.contentEnd(report, outcome);
    const double fit = std::min(1.0, static_cast<double>(trial.footerTop()) / end);

    painter.save();
    painter.scale(devicePixels, devicePixels);
    painter.translate(paper.width * (1 - fit) / 2, 0);
    painter.scale(fit, fit);
    paper.height = qRound(paper.height / fit);
    CertificatePage scaled(painter, palette, paper);
    scaled.paint(report, outcome);
    painter.restore();
    return scaled.text();
}
