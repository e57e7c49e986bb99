#include "certificate/certificaterenderer.h"

#include "certificate/certificatefonts.h"
#include "certificate/certificatepage.h"
#include "certificate/certificatepaper.h"
#include "certificate/searchablepdf.h"
#include "model/version.h"
#include "model/wipereport.h"
#include "platform/wholefile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

CertificateRenderer::CertificateRenderer()
    : m_palette{QColor(0x3b, 0x82, 0xf6), QColor(0x1e, 0x29, 0x3b), QColor(0x64, 0x74, 0x8b),
                QColor(0xf8, 0xfa, 0xfc), QColor(0x22, 0xc5, 0x5e), QColor(0xef, 0x44, 0x44)}
{}

bool CertificateRenderer::exportToPdf(const WipeReport &report, const QString &filePath,
                                      const std::optional<OutcomeRecord> &outcome) const
{
    platform::WholeFile file(filePath);
    if (!file.open())
        return false;

    // Painted in memory, because the PDF writer does not report a failed write to the file.
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(PaperResolution);
    writer.setTitle(u"%1 %2"_s.arg(tr("数据擦除证书"), report.certificateId));
    writer.setCreator(programTitle());

    QPainter painter(&writer);
    if (!painter.isActive())
        return false;
    const QString text = paintOnPaper(painter, m_palette, {writer.width(), writer.height()},
                                      writer.resolution(), report, outcome);
    if (!painter.end())
        return false;
    return file.commit(withSearchableText(buffer.data(), text, certificatefonts::rawTextFonts()));
}

void CertificateRenderer::render(QPainter &painter, const WipeReport &report, int width, int height, int dpi,
                                 const std::optional<OutcomeRecord> &outcome) const
{
    CertificatePage(painter, m_palette, {width, height, dpi}).paint(report, outcome);
}
