#include "cli/io/table.h"

#include "model/codepoints.h"

#include <algorithm>
#include <array>

namespace cli {

namespace {

constexpr int ColumnGap = 2;

struct CharacterRange
{
    char32_t first;
    char32_t last;
};

// Hangul, CJK with its punctuation and kana, compatibility and full-width forms, and the ideographs of planes
// 2 and 3.
constexpr std::array WideRanges{
    CharacterRange{0x1100, 0x115F}, CharacterRange{0x2E80, 0xA4CF},   CharacterRange{0xAC00, 0xD7A3},
    CharacterRange{0xF900, 0xFAFF}, CharacterRange{0xFE30, 0xFE6F},   CharacterRange{0xFF00, 0xFF60},
    CharacterRange{0xFFE0, 0xFFE6}, CharacterRange{0x1F300, 0x1F64F}, CharacterRange{0x20000, 0x3FFFD},
};

int widthOf(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing)
        return 0;
    const bool isWide =
        std::any_of(WideRanges.begin(), WideRanges.end(), [character](const CharacterRange &range) {
            return character >= range.first && character <= range.last;
        });
    return isWide ? 2 : 1;
}

} // namespace

int displayWidth(const QString &text)
{
    int width = 0;
    forEachCodePoint(text, [&width](char32_t character) { width += widthOf(character); });
    return width;
}

QString clipped(const QString &text, int columns)
{
    QString result;
    int width = 0;
    forEachCodePoint(text, [&](char32_t character) {
        width += widthOf(character);
        if (width <= columns)
            result += QChar::fromUcs4(character);
    });
    return result;
}

QString Table::text(int indent) const
{
    QList<int> widths;
    for (const QStringList &row : m_rows) {
        // The last cell of a row needs no padding.
        for (qsizetype i = 0; i + 1 < row.size(); ++i) {
            if (i == widths.size())
                widths.append(0);
            widths[i] = std::max(widths.at(i), displayWidth(row.at(i)));
        }
    }

    QString result;
    for (const QStringList &row : m_rows) {
        QString line(indent, u' ');
        for (qsizetype i = 0; i < row.size(); ++i) {
            line += row.at(i);
            if (i + 1 < row.size())
                line += QString(widths.at(i) - displayWidth(row.at(i)) + ColumnGap, u' ');
        }
        while (line.endsWith(u' '))
            line.chop(1);
        result += line + u'\n';
    }
    return result;
}

} // namespace cli
