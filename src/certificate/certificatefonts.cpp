#include "certificate/certificatefonts.h"

#include <QFontDatabase>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// Simplified Chinese first, as the source texts are. The other families add Hangul, kana and traditional
// characters.
const QStringList &textFamilies()
{
    static const QStringList families{
        u"Microsoft YaHei"_s,  u"Noto Sans CJK SC"_s,   u"Noto Sans SC"_s,        u"Source Han Sans SC"_s,
        u"PingFang SC"_s,      u"Microsoft JhengHei"_s, u"Malgun Gothic"_s,       u"Yu Gothic"_s,
        u"Noto Sans CJK TC"_s, u"WenQuanYi Zen Hei"_s,  u"Droid Sans Fallback"_s, u"DejaVu Sans"_s,
    };
    return families;
}

} // namespace

QFont certificatefonts::text(double points, QFont::Weight weight)
{
    QFont font(textFamilies(), -1, weight);
    font.setPointSizeF(points);
    // A PDF can only be searched for characters that have their own glyph, and shaping replaces glyphs by
    // ligatures and alternative digits.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

QFont certificatefonts::logo(double points)
{
    QFont font({u"Arial"_s, u"Liberation Sans"_s, u"Helvetica"_s, u"DejaVu Sans"_s}, -1, QFont::Bold);
    font.setPointSizeF(points);
    return font;
}

QList<QRawFont> certificatefonts::rawTextFonts()
{
    constexpr int anySize = 10;
    QList<QRawFont> fonts;
    for (const QString &family : textFamilies()) {
        if (!QFontDatabase::hasFamily(family))
            continue;
        for (const QFont::Weight weight : {QFont::Normal, QFont::Bold})
            fonts.append(QRawFont::fromFont(QFont(family, anySize, weight)));
    }
    return fonts;
}
