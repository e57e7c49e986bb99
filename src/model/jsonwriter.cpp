#include "model/jsonwriter.h"

#include "model/codepoints.h"

#include <QJsonDocument>

#include <cmath>

namespace {
constexpr int indentWidth = 4;
constexpr char32_t replacementCharacter = 0xFFFD;

QString controlEscape(char32_t control)
{
    switch (control) {
    case '\b':
        return QStringLiteral("\\b");
    case '\f':
        return QStringLiteral("\\f");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(static_cast<uint>(control), 4, 16, QLatin1Char('0'));
    }
}

QByteArray quoted(QStringView text)
{
    QString result;
    result.reserve(text.size() + 2);
    result += QLatin1Char('"');
    forEachCodePoint(text, [&result](char32_t codePoint) {
        if (codePoint < 0x20)
            result += controlEscape(codePoint);
        else if (codePoint == '"' || codePoint == '\\')
            result += QLatin1Char('\\') + QChar(codePoint);
        else
            result += QChar::fromUcs4(QChar::isSurrogate(codePoint) ? replacementCharacter : codePoint);
    });
    result += QLatin1Char('"');
    return result.toUtf8();
}

/// Splits a well-formed JSON text into its tokens, without white space.
class TokenReader
{
public:
    explicit TokenReader(QByteArrayView json)
        : m_json(json)
    {
        static constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
        if (m_json.startsWith(byteOrderMark))
            m_json = m_json.sliced(byteOrderMark.size());
    }

    /// Empty at the end.
    QByteArrayView next()
    {
        while (m_position < m_json.size() && isOneOf(m_json[m_position], " \t\r\n"))
            ++m_position;
        const qsizetype start = m_position;
        if (start == m_json.size())
            return {};
        if (m_json[start] == '"')
            skipString();
        else if (isOneOf(m_json[start], "{}[]:,"))
            ++m_position;
        else
            skipWord();
        return m_json.sliced(start, m_position - start);
    }

private:
    static bool isOneOf(char character, QByteArrayView set) { return set.contains(character); }

    void skipString()
    {
        for (++m_position; m_json[m_position] != '"'; ++m_position) {
            if (m_json[m_position] == '\\')
                ++m_position;
        }
        ++m_position;
    }

    void skipWord()
    {
        while (m_position < m_json.size() && !isOneOf(m_json[m_position], " \t\r\n{}[]:,"))
            ++m_position;
    }

    QByteArrayView m_json;
    qsizetype m_position = 0;
};

/// Qt's reader accepts control characters such as line feeds inside strings, but a line of compact output
/// must not contain them.
QByteArray withEscapedControls(QByteArrayView token)
{
    QByteArray result;
    for (const char character : token) {
        if (static_cast<uchar>(character) < 0x20)
            result += controlEscape(static_cast<uchar>(character)).toLatin1();
        else
            result += character;
    }
    return result;
}
} // namespace

JsonWriter::JsonWriter(Layout layout)
    : m_layout(layout)
{}

JsonWriter &JsonWriter::beginObject()
{
    return begin('{', true);
}

JsonWriter &JsonWriter::endObject()
{
    Q_ASSERT(!m_levels.isEmpty() && m_levels.last().isObject);
    return end('}');
}

JsonWriter &JsonWriter::beginArray()
{
    return begin('[', false);
}

JsonWriter &JsonWriter::endArray()
{
    Q_ASSERT(!m_levels.isEmpty() && !m_levels.last().isObject);
    return end(']');
}

JsonWriter &JsonWriter::key(QStringView name)
{
    return keyToken(quoted(name));
}

JsonWriter &JsonWriter::value(QStringView text)
{
    return literal(quoted(text));
}

JsonWriter &JsonWriter::value(QLatin1String text)
{
    return value(QString(text));
}

JsonWriter &JsonWriter::value(int number)
{
    return literal(QByteArray::number(number));
}

JsonWriter &JsonWriter::value(double number)
{
    if (!std::isfinite(number))
        return nullValue();
    return literal(QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
}

bool JsonWriter::raw(const QByteArray &json)
{
    if (QJsonDocument::fromJson(json).isNull())
        return false;
    TokenReader tokens(json);
    for (QByteArrayView token = tokens.next(); !token.isEmpty(); token = tokens.next()) {
        const bool isKey = !m_levels.isEmpty() && m_levels.last().isObject && !m_hasKey;
        switch (token.front()) {
        case '{':
            beginObject();
            break;
        case '}':
            endObject();
            break;
        case '[':
            beginArray();
            break;
        case ']':
            endArray();
            break;
        case ':':
        case ',':
            break; // written together with the tokens that they separate
        default:
            isKey ? keyToken(withEscapedControls(token)) : literal(withEscapedControls(token));
        }
    }
    return true;
}

QByteArray JsonWriter::text() const
{
    Q_ASSERT(m_levels.isEmpty() && !m_text.isEmpty());
    return m_layout == Layout::Indented ? m_text + '\n' : m_text;
}

JsonWriter &JsonWriter::begin(char bracket, bool isObject)
{
    beforeValue();
    m_text += bracket;
    m_levels.append({isObject, true});
    return *this;
}

JsonWriter &JsonWriter::end(char bracket)
{
    Q_ASSERT(!m_hasKey);
    m_levels.removeLast();
    startLine();
    m_text += bracket;
    return *this;
}

JsonWriter &JsonWriter::keyToken(QByteArrayView token)
{
    Q_ASSERT(!m_levels.isEmpty() && m_levels.last().isObject && !m_hasKey);
    beforeEntry();
    m_text += token;
    m_text += m_layout == Layout::Indented ? ": " : ":";
    m_hasKey = true;
    return *this;
}

JsonWriter &JsonWriter::literal(QByteArrayView token)
{
    beforeValue();
    m_text += token;
    return *this;
}

void JsonWriter::beforeValue()
{
    if (m_levels.isEmpty()) {
        Q_ASSERT(m_text.isEmpty());
        return;
    }
    Q_ASSERT(m_levels.last().isObject == m_hasKey);
    if (!m_hasKey)
        beforeEntry();
    m_hasKey = false;
}

void JsonWriter::beforeEntry()
{
    Level &level = m_levels.last();
    if (!level.isEmpty)
        m_text += ',';
    level.isEmpty = false;
    startLine();
}

void JsonWriter::startLine()
{
    if (m_layout == Layout::Compact)
        return;
    m_text += '\n';
    m_text.append(m_levels.size() * indentWidth, ' ');
}
