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

    /// Writes the page as a PDF file: whole, or not at all. On false whatever lay under the name is as it
    /// was. A file is replaced, also behind a link; what else may stand there: platform::WholeFile. A
    /// folder in which no file can be made is refused.
    ///
    /// All of a longer page lies on the paper, smaller and in the middle.
    ///
    /// Of a job that is known not to be complete each of these says so, and where the outcome knows better
    /// than the report what was written, counted and read back, that stands beside it; values that are cut
    /// stand below once more, whole. A report whose outcome is not known says what it says itself.
    bool exportToPdf(const WipeReport &report, const QString &filePath,
                     const std::optional<OutcomeRecord> &outcome = {}) const;

    /// False without a printer, or when it does not take the job. Sets the paper to A4 and the resolution to
    /// that of the file, so that both look alike; so do they on a printer that keeps its own. Defined in the
    /// library ui/certificate, which links Qt's printing.
    bool print(const WipeReport &report, QPrinter *printer,
               const std::optional<OutcomeRecord> &outcome = {}) const;

    /// Paints one page of width by height device pixels. `dpi` is the resolution of the painter's own device:
    /// letters take their size from there. What does not fit the page is painted below it.
    void render(QPainter &painter, const WipeReport &report, int width, int height, int dpi,
                const std::optional<OutcomeRecord> &outcome = {}) const;

private:
    CertificatePalette m_palette;
};
