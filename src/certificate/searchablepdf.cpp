#include "certificate/searchablepdf.h"

#include "certificate/glyphnames.h"

#include <QHash>
#include <QRawFont>
#include <QSet>

namespace {

// The painted characters, and for each look-alike the painted one.
class PaintedCharacters
{
public:
    PaintedCharacters(const QString &painted, const QList<QRawFont> &fonts)
        : m_fonts(fonts)
    {
        for (const QChar character : painted)
            m_characters.insert(character);
        for (const QRawFont &font : fonts) {
            QHash<quint32, QChar> byGlyph;
            for (const QChar character : std::as_const(m_characters)) {
                if (const quint32 glyph = glyphOf(font, character); glyph != 0)
                    byGlyph.insert(glyph, character);
            }
            m_byGlyph.append(byGlyph);
        }
    }

    QString textFor(const QString &named) const
    {
        if (named.size() != 1 || m_characters.contains(named[0]))
            return named;
        for (qsizetype i = 0; i < m_fonts.size(); ++i) {
            const auto painted = m_byGlyph[i].constFind(glyphOf(m_fonts[i], named[0]));
            if (painted != m_byGlyph[i].constEnd())
                return *painted;
        }
        // A ligature is named by all its letters.
        return named.normalized(QString::NormalizationForm_KC);
    }

private:
    static quint32 glyphOf(const QRawFont &font, QChar character)
    {
        const QList<quint32> glyphs = font.glyphIndexesForString(QString(character));
        return glyphs.size() == 1 ? glyphs.constFirst() : 0;
    }

    QList<QRawFont> m_fonts;
    QSet<QChar> m_characters;
    QList<QHash<quint32, QChar>> m_byGlyph; // one for each font
};

} // namespace

QByteArray withSearchableText(const QByteArray &pdf, const QString &painted, const QList<QRawFont> &fonts)
{
    const PaintedCharacters characters(painted, fonts);
    return withGlyphNames(pdf, [&characters](const QString &named) { return characters.textFor(named); });
}
