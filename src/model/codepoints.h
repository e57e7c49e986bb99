#pragma once

#include <QStringView>

/// Calls `visit(char32_t)` for each code point, in order. A surrogate without its partner is passed as it is.
template <typename Visitor>
void forEachCodePoint(QStringView text, Visitor visit)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            visit(QChar::surrogateToUcs4(unit, text[i + 1]));
            ++i;
        } else {
            visit(char32_t(unit.unicode()));
        }
    }
}
