#pragma once

#include "certificate/certificatepalette.h"
#include "model/joboutcome.h"

#include <QFont>
#include <QRect>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QPen)

struct CertificateRow;
struct CertificateSection;
struct WipeReport;

/// Paints one certificate from the top of the page to the bottom. For one use; the painter outlives it.
/// Positions are device pixels.
class CertificatePage
{
public:
    /// The size and resolution of the page.
    struct Paper
    {
        int width;
        int height;
        int dpi;
        double letterScale = 1; ///< letter size relative to the painter's device, when its resolution differs
    };

    CertificatePage(QPainter &painter, const CertificatePalette &palette, const Paper &paper);

    /// Paints the whole page. The outcome may be unknown.
    void paint(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);

    /// The end of the content, which may be below the footer or the paper. Paints nothing.
    int contentEnd(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
    /// The lower limit for content that fits the page.
    int footerTop() const { return m_paper.height - m_left; }

    /// All text written on the page.
    QString text() const { return m_text; }

private:
    void layOut(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
    int pixels(int millimetres) const;
    QFont textFont(int points, QFont::Weight weight = QFont::Normal) const;
    /// A box over the whole width of the content, at the current position.
    QRect fullWidth(int heightMillimetres) const;
    void moveDown(int millimetres);

    void paintLogo();
    void paintTitles();
    void paintIdentity(const QString &certificateId);
    void paintRule();
    void paintOutcome(const OutcomeRecord &outcome);
    QString outcomeText(const OutcomeRecord &outcome, const QFont &font) const;
    int heightOf(const QString &text, const QFont &font) const;
    void paintSection(const CertificateSection &section);
    void paintHeading(const QString &title);
    void paintRow(const CertificateRow &row);
    void paintHighlightedRow(const CertificateRow &row);
    void paintCorrection(const CertificateRow &row, const QRect &valueBox, const QFont &font);
    void paintWhole(const QString &value, int left);
    int widthOf(const QString &text, const QFont &font) const;
    void paintDisclaimer();
    void paintFooter();

    void write(const QRect &box, int flags, const QString &text, const QFont &font, const QColor &colour);
    void drawLine(const QPen &pen, int length);
    QColor colour(CertificateColour role) const { return colourOf(m_palette, role); }

    QPainter &m_painter;
    const CertificatePalette &m_palette;
    const Paper m_paper;
    const int m_left;  ///< margin on every side
    const int m_width; ///< of the content
    int m_y;
    bool m_paints = true;
    bool m_hasOutcome = false;
    QString m_text;
};
