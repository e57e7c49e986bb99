#include "support/pdfreader.h"

#include <QRegularExpression>
#include <QtEndian>

namespace {

QList<QRegularExpressionMatch> matches(const char *pattern, const QByteArray &text)
{
    QList<QRegularExpressionMatch> found;
    auto all = QRegularExpression(QLatin1String(pattern)).globalMatch(QString::fromLatin1(text));
    while (all.hasNext())
        found.append(all.next());
    return found;
}

} // namespace

PdfReader::PdfReader(const QByteArray &pdf)
    : m_pdf(pdf)
{
    const qsizetype last = pdf.lastIndexOf("startxref\n");
    readTable(numberAt(last + 10));
}

QList<QByteArray> PdfReader::objectsWith(const QByteArray &text) const
{
    QList<QByteArray> found;
    for (const QByteArray &object : m_objects) {
        if (object.contains(text))
            found.append(object);
    }
    return found;
}

int PdfReader::reference(const QByteArray &object, const QByteArray &key)
{
    const qsizetype at = object.indexOf(key);
    return at < 0 ? -1 : object.mid(at + key.size()).trimmed().split(' ').constFirst().toInt();
}

QByteArray PdfReader::stream(int number) const
{
    const QByteArray whole = object(number);
    const qsizetype start = whole.indexOf("stream\n");
    if (start < 0)
        return {};
    const QByteArray head = whole.left(start);
    const bool isIndirect =
        QRegularExpression(QStringLiteral("/Length \\d+ 0 R")).match(QString::fromLatin1(head)).hasMatch();
    const int length = reference(head, "/Length ");
    const int size = isIndirect ? object(length).split('\n').value(1).toInt() : length;
    const QByteArray bytes = whole.mid(start + 7, size);
    if (!head.contains("/FlateDecode"))
        return bytes;
    QByteArray packed(4, '\0');
    qToBigEndian<quint32>(64 * 1024 * 1024, packed.data());
    return qUncompress(packed + bytes);
}

QString PdfReader::text() const
{
    const QByteArray page = objectsWith("/Type /Page\n").value(0);
    const QByteArray resources = object(reference(page, "/Resources"));
    QHash<QByteArray, QHash<int, QString>> names;
    for (const auto &match : matches("/(F\\d+) (\\d+) 0 R", resources)) {
        const int naming = reference(object(match.captured(2).toInt()), "/ToUnicode");
        names.insert(match.captured(1).toLatin1(), glyphNames(stream(naming)));
    }
    QString text;
    QByteArray font;
    for (const QByteArray &line : stream(reference(page, "/Contents")).split('\n')) {
        if (line.startsWith("/F") && line.contains(" Tf"))
            font = line.mid(1, line.indexOf(' ') - 1);
        for (const auto &match : matches("<([0-9A-F]{4})> Tj", line))
            text += names.value(font).value(match.captured(1).toInt(nullptr, 16));
        if (line == "ET")
            text += QLatin1Char('\n');
    }
    return text;
}

qsizetype PdfReader::numberAt(qsizetype at) const
{
    return m_pdf.mid(at, 12).trimmed().split('\n').value(0).toLongLong();
}

void PdfReader::readTable(qsizetype at)
{
    if (!m_pdf.mid(at).startsWith("xref\n"))
        return;
    ++m_tables;
    const qsizetype trailer = m_pdf.indexOf("trailer\n", at);
    const QList<QByteArray> lines = m_pdf.mid(at + 5, trailer - at - 5).split('\n');
    int number = 0;
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() == 2)
            number = fields[0].toInt();
        if (fields.size() == 3) {
            if (fields[2] == "n" && !m_objects.contains(number))
                readObject(number, fields[0].toLongLong());
            ++number;
        }
    }
    const QByteArray end = m_pdf.mid(trailer, m_pdf.indexOf(">>", trailer) - trailer);
    if (end.contains("/Prev "))
        readTable(reference(end, "/Prev"));
}

void PdfReader::readObject(int number, qsizetype at)
{
    const QByteArray name = QByteArray::number(number) + " 0 obj\n";
    if (m_pdf.mid(at, name.size()) == name)
        m_objects.insert(number, m_pdf.mid(at, m_pdf.indexOf("\nendobj", at) - at + 1));
}

QHash<int, QString> PdfReader::glyphNames(const QByteArray &table)
{
    QHash<int, QString> names;
    for (const auto &match : matches("\n<([0-9A-F]{4})> <([0-9A-F]+)>(?=\n)", table)) {
        QString name;
        for (qsizetype i = 0; i < match.captured(2).size(); i += 4)
            name += QChar(match.captured(2).mid(i, 4).toUShort(nullptr, 16));
        names.insert(match.captured(1).toInt(nullptr, 16), name);
    }
    for (const auto &match : matches("<([0-9A-F]{4})> <([0-9A-F]{4})> \\[(.*?)\\]", table)) {
        int glyph = match.captured(1).toInt(nullptr, 16);
        for (const auto &name : matches("<([0-9A-F]{4})>", match.captured(3).toLatin1()))
            names.insert(glyph++, QString(QChar(name.captured(1).toUShort(nullptr, 16))));
    }
    return names;
}
