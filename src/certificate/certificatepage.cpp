#include "certificate/certificatepage.h"

#include "certificate/certificatefonts.h"
#include "certificate/certificateplan.h"
#include "certificate/certificaterenderer.h"
#include "certificate/paperlabels.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/wipereport.h"

#include <QDateTime>
#include <QPainter>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int margin = 20;
constexpr int labelWidth = 35;
constexpr int labelGap = 5;
constexpr int rowHeight = 6;
// The one length that does not grow with the resolution, because certificates of all versions cut long values
// at the same pixel.
constexpr int valueWidthPixels = 500;

constexpr int outcomeRoom = 8;
constexpr int outcomeGap = 2;
constexpr int mostOutcomeLines = 4;

constexpr int correctionGap = 3;

constexpr int centred = Qt::AlignCenter;
constexpr int leftCentred = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int outcomeFlags = Qt::AlignCenter | Qt::TextWordWrap;

const QColor ruleColour(0xe2, 0xe8, 0xf0);
const QColor disclaimerBackground(0xf1, 0xf5, 0xf9);

int toPixels(int millimetres, int dpi)
{
    return static_cast<int>(dpi * millimetres / millimetresPerInch);
}

} // namespace

CertificatePage::CertificatePage(QPainter &painter, const CertificatePalette &palette, const Paper &paper)
    : m_painter(painter)
    , m_palette(palette)
    , m_paper(paper)
    , m_left(toPixels(margin, paper.dpi))
    , m_width(paper.width - 2 * m_left)
    , m_y(m_left)
{}

void CertificatePage::paint(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
    layOut(report, outcome);
    paintFooter();
}

int CertificatePage::contentEnd(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    m_paints = false;
    layOut(report, outcome);
    m_paints = true;
    return m_y;
}

void CertificatePage::layOut(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    m_y = m_left;
    m_hasOutcome = outcome.has_value();
    paintLogo();
    paintTitles();
    paintIdentity(displayText(report.certificateId));
    paintRule();
    if (outcome)
        paintOutcome(*outcome);
    bool isFirst = true;
    for (const CertificateSection &section : certificatePlan(report, outcome, paperLabels)) {
        if (!isFirst)
            moveDown(5);
        isFirst = false;
        paintSection(section);
    }
    paintDisclaimer();
}

int CertificatePage::pixels(int millimetres) const
{
    return toPixels(millimetres, m_paper.dpi);
}

QFont CertificatePage::textFont(int points, QFont::Weight weight) const
{
    return certificatefonts::text(points * m_paper.letterScale, weight);
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
    if (m_paints) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(colour(CertificateColour::Primary));
        m_painter.drawEllipse(disc);
    }
    write(disc, centred, u"QV"_s, certificatefonts::logo(20 * m_paper.letterScale), Qt::white);
    moveDown(35);
}

void CertificatePage::paintTitles()
{
    // Descenders of a 22 point letter reach below the box.
    write(fullWidth(10), centred | Qt::TextDontClip, CertificateRenderer::tr("数据擦除证书"),
          textFont(22, QFont::Bold), colour(CertificateColour::Text));
    moveDown(12);
    write(fullWidth(6), centred, u"Data Wipe Certificate"_s, textFont(11),
          colour(CertificateColour::SecondaryText));
    moveDown(10);
}

void CertificatePage::paintIdentity(const QString &certificateId)
{
    moveDown(5);
    const QString now = displayTime(QDateTime::currentDateTime());
    const QString line = CertificateRenderer::tr("证书编号: ") + certificateId + u"    "_s +
                         CertificateRenderer::tr("生成时间: ") + now;
    write(fullWidth(8), centred, line, textFont(9), colour(CertificateColour::SecondaryText));
    moveDown(12);
}

void CertificatePage::paintRule()
{
    drawLine(QPen(ruleColour, 1), m_width);
    moveDown(outcomeRoom);
}

// Painted between the rule and the first section, in letters as large as those of the status, because the
// status may say that the job was completed. Text beyond one line moves the rest down.
void CertificatePage::paintOutcome(const OutcomeRecord &outcome)
{
    const QFont font = textFont(10, QFont::Bold);
    const QString text = outcomeText(outcome, font);
    if (text.isEmpty())
        return;
    const int further = heightOf(text, font) - heightOf(u"A"_s, font);
    const int room = pixels(outcomeRoom) - 1;
    const QRect box(m_left, m_y - room, m_width, room + further);
    write(box, outcomeFlags, text, font, colour(CertificateColour::Failure));
    if (further > 0)
        m_y += further + pixels(outcomeGap);
}

// Lists as many kinds of shortfall as a few lines hold, and says where to find the others.
QString CertificatePage::outcomeText(const OutcomeRecord &outcome, const QFont &font) const
{
    QString all = outcome.summary();
    const int mostHeight = mostOutcomeLines * heightOf(u"A"_s, font);
    if (heightOf(all, font) <= mostHeight)
        return all;
    QString text;
    for (qsizetype kinds = outcome.shortfallKinds().size() - 1; kinds > 0; --kinds) {
        text = outcome.summary(kinds) + u' ' + CertificateRenderer::tr("(全部内容见本程序历史记录)");
        if (heightOf(text, font) <= mostHeight)
            break;
    }
    return text;
}

int CertificatePage::heightOf(const QString &text, const QFont &font) const
{
    m_painter.setFont(font);
    return m_painter.boundingRect(QRect(0, 0, m_width, 1), outcomeFlags, text).height();
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
    write(fullWidth(7), leftCentred, title, textFont(12, QFont::Bold), colour(CertificateColour::Text));
    moveDown(7);
    drawLine(QPen(colour(CertificateColour::Primary), 0), pixels(40));
    moveDown(5);
}

void CertificatePage::paintRow(const CertificateRow &row)
{
    const QRect labelBox(m_left, m_y, pixels(labelWidth), pixels(rowHeight));
    const QRect valueBox(m_left + pixels(labelWidth) + pixels(labelGap), m_y, valueWidthPixels,
                         pixels(rowHeight));
    const QFont font = textFont(10);
    write(labelBox, leftCentred, CertificateRenderer::tr("%1:").arg(row.label), font,
          colour(CertificateColour::SecondaryText));
    write(valueBox, leftCentred, row.value, font, colour(CertificateColour::Text));
    if (!row.correction.isEmpty())
        paintCorrection(row, valueBox, font);
    moveDown(7);
    if (m_hasOutcome && widthOf(row.value, font) > valueBox.width())
        paintWhole(row.value, valueBox.left());
}

void CertificatePage::paintHighlightedRow(const CertificateRow &row)
{
    const QRect labelBox(m_left, m_y, pixels(labelWidth), pixels(rowHeight));
    const int indent = pixels(labelWidth) + pixels(labelGap);
    const QRect valueBox(m_left + indent, m_y, m_width - indent, pixels(rowHeight));
    const QFont strong = textFont(10, QFont::Bold);
    const bool good = row.verdict == Verdict::Good;
    write(labelBox, leftCentred, row.label, row.item == CertificateItem::Status ? strong : textFont(9),
          colour(CertificateColour::SecondaryText));
    write(valueBox, leftCentred, row.value, strong,
          colour(good ? CertificateColour::Success : CertificateColour::Failure));
    if (!row.correction.isEmpty())
        paintCorrection(row, valueBox, strong);
    moveDown(8);
}

// Painted right behind the value.
void CertificatePage::paintCorrection(const CertificateRow &row, const QRect &valueBox, const QFont &font)
{
    const int value = std::min(widthOf(row.value, font), valueBox.width());
    const int left = valueBox.left() + value + pixels(correctionGap);
    const QRect box(left, m_y, m_left + m_width - left, pixels(rowHeight));
    write(box, leftCentred, row.correction, font,
          colour(row.verdict ? CertificateColour::Text : CertificateColour::SecondaryText));
}

// A cut serial number or hash proves nothing, so the whole value is painted once more below.
void CertificatePage::paintWhole(const QString &value, int left)
{
    constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;
    const QFont font = textFont(8);
    m_painter.setFont(font);
    const QRect room(left, m_y, m_left + m_width - left, 1);
    const QRect box(room.topLeft(), QSize(room.width(), m_painter.boundingRect(room, flags, value).height()));
    write(box, flags, value, font, colour(CertificateColour::SecondaryText));
    m_y += box.height() + pixels(1);
}

int CertificatePage::widthOf(const QString &text, const QFont &font) const
{
    m_painter.setFont(font);
    return m_painter.boundingRect(QRect(0, 0, 1, 1), Qt::AlignLeft | Qt::TextSingleLine, text).width();
}

void CertificatePage::paintDisclaimer()
{
    moveDown(15);
    const QRect box = fullWidth(30);
    if (m_paints) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(disclaimerBackground);
        m_painter.drawRoundedRect(box, pixels(2), pixels(2));
    }
    const int inset = pixels(3);
    write(box.adjusted(inset, inset, -inset, -inset), Qt::AlignLeft | Qt::TextWordWrap,
          CertificateRenderer::tr(
              "声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。"
              "擦除过程符合相关数据保护法规的要求。本证书由 Quorvex "
              "软件自动生成，可作为数据销毁的合规性证明文件。"),
          textFont(8), colour(CertificateColour::SecondaryText));
    m_y += box.height();
}

void CertificatePage::paintFooter()
{
    const QRect box(m_left, footerTop(), m_width, pixels(5));
    write(box, centred, u"Quorvex Pro v2.1.0 - "_s + CertificateRenderer::tr("专业数据擦除工具"), textFont(8),
          colour(CertificateColour::SecondaryText));
}

void CertificatePage::write(const QRect &box, int flags, const QString &text, const QFont &font,
                            const QColor &colour)
{
    if (!m_paints)
        return;
    m_painter.setFont(font);
    m_painter.setPen(colour);
    m_painter.drawText(box, flags, text);
    m_text += text;
}

void CertificatePage::drawLine(const QPen &pen, int length)
{
    if (!m_paints)
        return;
    m_painter.setPen(pen);
    m_painter.drawLine(m_left, m_y, m_left + length, m_y);
}
