#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QLatin1String>
#include <QList>
#include <QString>
#include <QStringView>

#include <concepts>

/// Writes one JSON value as UTF-8; its keys keep the order in which they are written.
///
///     JsonWriter writer(JsonWriter::Layout::Compact);
///     writer.beginObject().member(u"event", u"pass").member(u"pass", 2).endObject();
///     const QByteArray line = writer.text();
///
/// The calls must form a value (asserted): in an object each value follows a key, and each begin has its end.
/// A char pointer or a 64-bit integer does not compile as a value. JSON readers store numbers as doubles,
/// which hold integers exactly only up to 2^53, so larger ones are written with decimal().
class JsonWriter
{
public:
    enum class Layout {
        Indented, ///< four spaces a level, a line feed at the end
        Compact,  ///< no white space, one line without a line feed
    };

    explicit JsonWriter(Layout layout = Layout::Indented);

    JsonWriter &beginObject();
    JsonWriter &endObject();
    JsonWriter &beginArray();
    JsonWriter &endArray();

    JsonWriter &key(QStringView name);

    /// A lone surrogate is written as U+FFFD.
    JsonWriter &value(QStringView text);
    JsonWriter &value(QLatin1String text);
    JsonWriter &value(int number);
    /// The shortest text that reads back as the same number; null when not finite.
    JsonWriter &value(double number);
    JsonWriter &value(std::same_as<bool> auto truth) { return literal(truth ? "true" : "false"); }
    JsonWriter &nullValue() { return literal("null"); }
    /// The integer as a decimal string.
    JsonWriter &decimal(std::integral auto number) { return value(QString::number(number)); }

    /// Writes a finished JSON object or array in this writer's layout. Keys keep their order; numbers and
    /// strings keep their spelling. Writes nothing and returns false when `json` is neither.
    [[nodiscard]] bool raw(const QByteArray &json);

    /// key() and value() in one.
    template <typename Value>
    JsonWriter &member(QStringView name, const Value &content)
    {
        return key(name).value(content);
    }
    /// key() and decimal() in one.
    JsonWriter &decimalMember(QStringView name, std::integral auto number)
    {
        return key(name).decimal(number);
    }

    /// The text of the finished value.
    QByteArray text() const;

private:
    struct Level
    {
        bool isObject = false;
        bool isEmpty = true;
    };

    JsonWriter &begin(char bracket, bool isObject);
    JsonWriter &end(char bracket);
    JsonWriter &keyToken(QByteArrayView token);
    JsonWriter &literal(QByteArrayView token);
    void beforeValue();
    void beforeEntry();
    void startLine();

    Layout m_layout;
    QByteArray m_text;
    QList<Level> m_levels;
    bool m_hasKey = false; ///< a key waits for its value
};
