#include "certificate/certificatepaper.h"
#include "certificate/certificaterenderer.h"

#include <QPainter>
#include <QPrinter>

// In a separate library, so that programs that only write files do not link the printing library.
bool CertificateRenderer::print(const WipeReport &report, QPrinter *printer,
                                const std::optional<OutcomeRecord> &outcome) const
{
    if (printer == nullptr)
        return false;
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setResolution(PaperResolution);
    QPainter painter(printer);
    if (!painter.isActive())
        return false;
    paintOnPaper(painter, m_palette, {printer->width(), printer->height()}, printer->resolution(), report,
                 outcome);
    return true;
}
