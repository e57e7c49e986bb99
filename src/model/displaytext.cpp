#include "model/displaytext.h"

#include "model/codepoints.h"

namespace {
bool isShown(char32_t codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}
} // namespace

QString displayText(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    forEachCodePoint(text, [&shown](char32_t codePoint) {
        if (isShown(codePoint))
            shown += QChar::fromUcs4(codePoint);
    });
    return shown;
}
