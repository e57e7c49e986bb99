#pragma once

#include "certificate/certificatepalette.h"
#include "model/joboutcome.h"

#include <QRect>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QFont)
QT_FORWARD_DECLARE_CLASS(QPainter)

struct CertificateRow;
struct CertificateSection;
struct WipeReport;

/// Paints one certificate from the top of the page to the bottom. For one use; the painter outlives it.
/// Positions are device pixels.
class CertificatePage
{
public:
    CertificatePage(QPainter &painter, const CertificatePalette &palette, int width, int height, int dpi);

    void paint(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);

    /// Everything that was written on the page.
    QString text() const { return m_text; }

private:
    int pixels(int millimetres) const;
    /// Over the whole width of the content, at the present position.
    QRect fullWidth(int heightMillimetres) const;
    void moveDown(int millimetres);

    void paintLogo();
    void paintTitles();
    void paintIdentity(const QString &certificateId);
    void paintRule();
    void paintOutcome(const OutcomeRecord &outcome, quint64 givenBytes);
    void paintSection(const CertificateSection &section);
    void paintHeading(const QString &title);
    void paintRow(const CertificateRow &row);
    void paintHighlightedRow(const CertificateRow &row);
    void paintDisclaimer();
    void paintFooter();

    void write(const QRect &box, int flags, const QString &text, const QFont &font, const QColor &colour);
    QColor colour(CertificateColour role) const { return colourOf(m_palette, role); }

    QPainter &m_painter;
    const CertificatePalette &m_palette;
    const int m_dpi;
    const int m_height;
    const int m_left;  ///< the margin on every side
    const int m_width; ///< of the content
    int m_y;
    QString m_text;
};
