#pragma once

#include "certificate/certificatepalette.h"
#include "model/joboutcome.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QPrinter)

struct WipeReport;

/// Paints the certificate of a finished job onto one A4 page. Needs a QGuiApplication and no widget.
/// A small value.
class CertificateRenderer
{
    Q_DECLARE_TR_FUNCTIONS(CertificateRenderer)

public:
    CertificateRenderer();

    /// Writes the page as a PDF file completely, or returns false and leaves the existing file unchanged. A
    /// file is replaced, also behind a link; for other existing entries see platform::WholeFile. Fails in a
    /// folder in which no file can be created.
    ///
    /// A page that is too long for the paper is scaled down and centred.
    ///
    /// For an incomplete job every output says so. Where the outcome has better figures than the report for
    /// the bytes written, the files counted and the samples read back, they stand beside those of the report.
    /// Cut values are repeated in full below. Without an outcome the report is shown as it is.
    bool exportToPdf(const WipeReport &report, const QString &filePath,
                     const std::optional<OutcomeRecord> &outcome = {}) const;

    /// Returns false without a printer, or when it refuses the job. Sets the paper to A4 and the resolution
    /// to that of the PDF file, so that both look alike, even on a printer that keeps its own resolution.
    /// Defined in the library ui/certificate, which links Qt's printing.
    bool print(const WipeReport &report, QPrinter *printer,
               const std::optional<OutcomeRecord> &outcome = {}) const;

    /// Paints one page of width by height device pixels. `dpi` is the resolution of the painter's own device,
    /// which determines the size of letters. Content that does not fit is painted below the page.
    void render(QPainter &painter, const WipeReport &report, int width, int height, int dpi,
                const std::optional<OutcomeRecord> &outcome = {}) const;

private:
    CertificatePalette m_palette;
};
