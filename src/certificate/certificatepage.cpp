#include "certificate/certificatepage.h"

#include "certificate/certificatecontent.h"
#include "certificate/certificatefonts.h"
#include "certificate/certificaterenderer.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/wipereport.h"

#include <QDateTime>
#include <QPainter>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int margin = 20;
constexpr int labelWidth = 35;
constexpr int labelGap = 5;
constexpr int rowHeight = 6;
// The one length that does not grow with the resolution: the certificates of all versions cut long values
// at the same pixel.
constexpr int valueWidthPixels = 500;

constexpr std::array outcomePoints{10, 9, 8, 7, 6, 5, 4, 3};

constexpr int centred = Qt::AlignCenter;
constexpr int leftCentred = Qt::AlignLeft | Qt::AlignVCenter;

const QColor ruleColour(0xe2, 0xe8, 0xf0);
const QColor disclaimerBackground(0xf1, 0xf5, 0xf9);

int toPixels(int millimetres, int dpi)
{
    return static_cast<int>(dpi * millimetres / millimetresPerInch);
}

} // namespace

CertificatePage::CertificatePage(QPainter &painter, const CertificatePalette &palette, int width, int height,
                                 int dpi)
    : m_painter(painter)
    , m_palette(palette)
    , m_dpi(dpi)
    , m_height(height)
    , m_left(toPixels(margin, dpi))
    , m_width(width - 2 * m_left)
    , m_y(m_left)
{}

void CertificatePage::paint(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);

    paintLogo();
    paintTitles();
    paintIdentity(displayText(report.certificateId));
    paintRule();
    if (outcome)
        paintOutcome(*outcome, report.bytesWritten);
    bool isFirst = true;
    for (const CertificateSection &section : certificateContent(report)) {
        if (!isFirst)
            moveDown(5);
        isFirst = false;
        paintSection(section);
    }
    paintDisclaimer();
    paintFooter();
}

int CertificatePage::pixels(int millimetres) const
{
    return toPixels(millimetres, m_dpi);
}

QRect CertificatePage::fullWidth(int heightMillimetres) const
{
    return {m_left, m_y, m_width, pixels(heightMillimetres)};
}

void CertificatePage::moveDown(int millimetres)
{
    m_y += pixels(millimetres);
}

void CertificatePage::paintLogo()
{
    const QRect disc(m_left + m_width / 2 - pixels(15), m_y, pixels(30), pixels(30));
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(colour(CertificateColour::Primary));
    m_painter.drawEllipse(disc);
    write(disc, centred, u"QV"_s, certificatefonts::logo(), Qt::white);
    moveDown(35);
}

void CertificatePage::paintTitles()
{
    // Descenders of a 22 point letter reach below the box.
    write(fullWidth(10), centred | Qt::TextDontClip, CertificateRenderer::tr("数据擦除证书"),
          certificatefonts::text(22, QFont::Bold), colour(CertificateColour::Text));
    moveDown(12);
    write(fullWidth(6), centred, u"Data Wipe Certificate"_s, certificatefonts::text(11),
          colour(CertificateColour::SecondaryText));
    moveDown(10);
}

void CertificatePage::paintIdentity(const QString &certificateId)
{
    moveDown(5);
    const QString now = displayTime(QDateTime::currentDateTime());
    const QString line = CertificateRenderer::tr("证书编号: ") + certificateId + u"    "_s +
                         CertificateRenderer::tr("生成时间: ") + now;
    write(fullWidth(8), centred, line, certificatefonts::text(9), colour(CertificateColour::SecondaryText));
    moveDown(12);
}

void CertificatePage::paintRule()
{
    m_painter.setPen(QPen(ruleColour, 1));
    m_painter.drawLine(m_left, m_y, m_left + m_width, m_y);
    moveDown(8);
}

// Between the rule and the first section, where nothing else has to move: what stands further down may
// already pass the end of the page. Letters are as large as the room allows.
void CertificatePage::paintOutcome(const OutcomeRecord &outcome, quint64 givenBytes)
{
    const QString summary = outcome.summary();
    QStringList lines{summary, outcome.writtenText(givenBytes)};
    lines.removeAll(QString());
    if (lines.isEmpty())
        return;
    const QString text = lines.join(u'\n');
    const QRect box(m_left, m_y - pixels(8) + 1, m_width, pixels(8) - 1);
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    QFont font;
    for (const int points : outcomePoints) {
        font = certificatefonts::text(points, QFont::Bold);
        m_painter.setFont(font);
        if (box.contains(m_painter.boundingRect(box, flags, text)))
            break;
    }
    write(box, flags, text, font,
          colour(summary.isEmpty() ? CertificateColour::SecondaryText : CertificateColour::Failure));
}

void CertificatePage::paintSection(const CertificateSection &section)
{
    paintHeading(section.title);
    for (const CertificateRow &row : section.rows) {
        if (row.verdict)
            paintHighlightedRow(row);
        else
            paintRow(row);
    }
}

void CertificatePage::paintHeading(const QString &title)
{
    write(fullWidth(7), leftCentred, title, certificatefonts::text(12, QFont::Bold),
          colour(CertificateColour::Text));
    moveDown(7);
    m_painter.setPen(QPen(colour(CertificateColour::Primary), 0));
    m_painter.drawLine(m_left, m_y, m_left + pixels(40), m_y);
    moveDown(5);
}

void CertificatePage::paintRow(const CertificateRow &row)
{
    const QRect labelBox(m_left, m_y, pixels(labelWidth), pixels(rowHeight));
    const QRect valueBox(m_left + pixels(labelWidth) + pixels(labelGap), m_y, valueWidthPixels,
                         pixels(rowHeight));
    const QFont font = certificatefonts::text(10);
    write(labelBox, leftCentred, row.label + u':', font, colour(CertificateColour::SecondaryText));
    write(valueBox, leftCentred, row.value, font, colour(CertificateColour::Text));
    moveDown(7);
}

void CertificatePage::paintHighlightedRow(const CertificateRow &row)
{
    const QRect labelBox(m_left, m_y, pixels(labelWidth), pixels(rowHeight));
    const int indent = pixels(labelWidth) + pixels(labelGap);
    const QRect valueBox(m_left + indent, m_y, m_width - indent, pixels(rowHeight));
    const QFont strong = certificatefonts::text(10, QFont::Bold);
    const bool good = row.verdict == Verdict::Good;
    write(labelBox, leftCentred, row.label, row.strongLabel ? strong : certificatefonts::text(9),
          colour(CertificateColour::SecondaryText));
    write(valueBox, leftCentred, row.value, strong,
          colour(good ? CertificateColour::Success : CertificateColour::Failure));
    moveDown(8);
}

void CertificatePage::paintDisclaimer()
{
    moveDown(15);
    const QRect box = fullWidth(30);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(disclaimerBackground);
    m_painter.drawRoundedRect(box, pixels(2), pixels(2));
    const int inset = pixels(3);
    write(box.adjusted(inset, inset, -inset, -inset), Qt::AlignLeft | Qt::TextWordWrap,
          CertificateRenderer::tr(
              "声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。"
              "擦除过程符合相关数据保护法规的要求。本证书由 Quorvex "
              "软件自动生成，可作为数据销毁的合规性证明文件。"),
          certificatefonts::text(8), colour(CertificateColour::SecondaryText));
}

void CertificatePage::paintFooter()
{
    const QRect box(m_left, m_height - m_left, m_width, pixels(5));
    write(box, centred, u"Quorvex Pro v2.1.0 - "_s + CertificateRenderer::tr("专业数据擦除工具"),
          certificatefonts::text(8), colour(CertificateColour::SecondaryText));
}

void CertificatePage::write(const QRect &box, int flags, const QString &text, const QFont &font,
                            const QColor &colour)
{
    m_painter.setFont(font);
    m_painter.setPen(colour);
    m_painter.drawText(box, flags, text);
    m_text += text;
}
