#include "model/displaytext.h"

#include "model/codepoints.h"

using namespace Qt::StringLiterals;

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

QString hexadecimal(char32_t number)
{
    return QString::number(static_cast<uint>(number), 16).toUpper();
}

// The mark contains no backslash, which separates folders on some systems, and no angle bracket, which is
// markup.
QString markOf(char32_t codePoint)
{
    // A byte of a name that is not UTF-8 is decoded as U+DC00 plus the byte.
    if (codePoint >= 0xDC80 && codePoint <= 0xDCFF)
        return u"[0x%1]"_s.arg(hexadecimal(codePoint - 0xDC00));
    return u"[U+%1]"_s.arg(hexadecimal(codePoint).rightJustified(4, u'0'));
}

} // namespace

QString displayText(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    forEachCodePoint(text, [&shown](char32_t codePoint) {
        if (isShown(codePoint))
            shown += QChar::fromUcs4(codePoint);
        else
            shown += markOf(codePoint);
    });
    return shown;
}
