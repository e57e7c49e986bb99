#include "certificate/certificatepaper.h"
#include "certificate/certificaterenderer.h"

#include <QPainter>
#include <QPrinter>

// Defined apart from the rest of the class: what only writes files does not link the printing library.
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
