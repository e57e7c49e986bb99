#include "certificate/glyphnames.h"

#include <QList>
#include <QMap>
#include <QString>

#include <algorithm>
#include <optional>

namespace {

// The glyph number within its font, and the text of the glyph.
using GlyphTexts = QMap<int, QString>;

constexpr int LastGlyph = 0xFFFF;

QByteArray between(const QByteArray &text, QByteArrayView start, QByteArrayView end, qsizetype from = 0)
{
    const qsizetype first = text.indexOf(start, from);
    if (first < 0)
        return {};
    const qsizetype begin = first + start.size();
    const qsizetype last = text.indexOf(end, begin);
    return last < 0 ? QByteArray() : text.mid(begin, last - begin);
}

// The structure of the file as Qt's writer builds it, with one object table at the end.
class PdfObjects
{
public:
    explicit PdfObjects(const QByteArray &pdf)
        : m_pdf(pdf)
    {
        constexpr qsizetype entrySize = 20;
        const qsizetype last = pdf.lastIndexOf("startxref\n");
        m_table = last < 0 ? -1 : between(pdf, "startxref\n", "%%EOF", last).trimmed().toLongLong();
        if (m_table <= 0 || !pdf.mid(m_table, 7).startsWith("xref\n0 "))
            return;
        const qsizetype countAt = m_table + 7;
        const qsizetype lineEnd = pdf.indexOf('\n', countAt);
        const qsizetype count = std::min(pdf.mid(countAt, lineEnd - countAt).trimmed().toLongLong(),
                                         (pdf.size() - lineEnd) / entrySize);
        for (qsizetype i = 0; i < count; ++i)
            m_offsets.append(pdf.mid(lineEnd + 1 + i * entrySize, 10).toLongLong());
        m_trailer = between(pdf, "trailer\n<<\n", ">>", lineEnd);
    }

    bool isReadable() const { return !m_trailer.isEmpty(); }
    qsizetype table() const { return m_table; }
    QByteArray trailer() const { return m_trailer; }

    // The content of the object's stream; nothing without a stream that is stored uncompressed.
    std::optional<QByteArray> plainStream(qsizetype number) const
    {
        if (number <= 0 || number >= m_offsets.size())
            return std::nullopt;
        const qsizetype start = m_offsets[number];
        const qsizetype stream = m_pdf.indexOf("stream\n", start);
        const QByteArray head = m_pdf.mid(start, stream - start);
        if (stream < 0 || head.contains("endobj") || head.contains("/Filter"))
            return std::nullopt;
        return m_pdf.mid(stream + 7, between(head, "/Length ", ">>").trimmed().toLongLong());
    }

    // The numbers of the streams that name the glyphs of a font.
    QList<qsizetype> namingStreams() const
    {
        QList<qsizetype> numbers;
        constexpr QByteArrayView key = "/ToUnicode ";
        for (qsizetype at = m_pdf.indexOf(key); at >= 0; at = m_pdf.indexOf(key, at + 1)) {
            const qsizetype number = between(m_pdf, key, " 0 R", at).toLongLong();
            if (number > 0 && !numbers.contains(number))
                numbers.append(number);
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

private:
    const QByteArray &m_pdf;
    qsizetype m_table = -1;
    QList<qsizetype> m_offsets;
    QByteArray m_trailer;
};

QString utf16FromHex(const QByteArray &digits)
{
    QString text;
    for (qsizetype i = 0; i + 4 <= digits.size(); i += 4)
        text += QChar(digits.mid(i, 4).toUShort(nullptr, 16));
    return text;
}

// Reads "<first> <last> <text of first>" and "<first> <last> [<text> <text> ...]".
GlyphTexts readRanges(const QByteArray &block)
{
    QList<QByteArray> tokens;
    QByteArray spaced = block;
    spaced.replace("[", " [ ").replace("]", " ] ").replace("<", " ").replace(">", " ");
    tokens = spaced.simplified().split(' ');

    GlyphTexts texts;
    for (qsizetype i = 0; i + 2 < tokens.size(); ++i) {
        const int first = tokens[i].toInt(nullptr, 16);
        const int last = std::min(tokens[i + 1].toInt(nullptr, 16), LastGlyph);
        i += 2;
        if (tokens[i] == "[") {
            int glyph = first;
            for (++i; i < tokens.size() && tokens[i] != "]"; ++i)
                texts.insert(glyph++, utf16FromHex(tokens[i]));
            continue;
        }
        const ushort base = tokens[i].toUShort(nullptr, 16);
        for (int glyph = first; glyph <= last; ++glyph)
            texts.insert(glyph, QString(QChar(static_cast<ushort>(base + glyph - first))));
    }
    return texts;
}

QByteArray hex16(int number)
{
    return QByteArray::number(number, 16).rightJustified(4, '0').toUpper();
}

QByteArray writeNames(const GlyphTexts &texts)
{
    constexpr int mostInBlock = 100; // the format's limit
    QByteArray blocks;
    QByteArray lines;
    int count = 0;
    const auto closeBlock = [&] {
        if (count > 0)
            blocks += QByteArray::number(count) + " beginbfchar\n" + lines + "endbfchar\n";
        lines.clear();
        count = 0;
    };
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        lines += '<' + hex16(text.key()) + "> <";
        for (const QChar unit : text.value())
            lines += hex16(unit.unicode());
        lines += ">\n";
        if (++count == mostInBlock)
            closeBlock();
    }
    closeBlock();
    return blocks;
}

// The corrected names; nothing when they were right, or when their form is unknown.
std::optional<QByteArray> correctedNames(const QByteArray &names, const GlyphTextCorrection &correctedText)
{
    const qsizetype block = names.indexOf(" beginbfrange");
    const qsizetype begin = names.lastIndexOf('\n', block) + 1;
    constexpr QByteArrayView endMark = "endbfrange\n";
    const qsizetype end = names.lastIndexOf(endMark);
    if (block < 0 || end < block)
        return std::nullopt;

    GlyphTexts texts;
    for (qsizetype at = block; at >= 0; at = names.indexOf(" beginbfrange", at + 1))
        texts.insert(readRanges(between(names, " beginbfrange", "endbfrange", at)));
    bool changed = false;
    for (QString &text : texts) {
        const QString corrected = correctedText(text);
        changed = changed || corrected != text;
        text = corrected;
    }
    if (!changed)
        return std::nullopt;
    return names.left(begin) + writeNames(texts) + names.mid(end + endMark.size());
}

} // namespace

// An incremental update: the corrected streams follow the old end with their own table, which points to the
// old one. The writer's bytes stay unchanged.
QByteArray withGlyphNames(const QByteArray &pdf, const GlyphTextCorrection &correctedText)
{
    const PdfObjects objects(pdf);
    if (!objects.isReadable())
        return pdf;

    QByteArray result = pdf;
    QByteArray table = "xref\n";
    for (const qsizetype number : objects.namingStreams()) {
        const std::optional<QByteArray> names = objects.plainStream(number);
        const std::optional<QByteArray> corrected =
            names ? correctedNames(*names, correctedText) : std::nullopt;
        if (!corrected)
            continue;
        table += QByteArray::number(number) + " 1\n" +
                 QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
        result += QByteArray::number(number) + " 0 obj\n<< /Length " + QByteArray::number(corrected->size()) +
                  " >>\nstream\n" + *corrected + "\nendstream\nendobj\n";
    }
    if (result.size() == pdf.size())
        return pdf;
    const QByteArray tableAt = QByteArray::number(result.size());
    return result + table + "trailer\n<<\n" + objects.trailer() + "/Prev " +
           QByteArray::number(objects.table()) + "\n>>\nstartxref\n" + tableAt + "\n%%EOF\n";
}
