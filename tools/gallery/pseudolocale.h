#pragma once

#include <QString>
#include <QTranslator>

/// A language that nobody speaks, made from the English catalogue as it is read: every letter with an accent,
/// every text longer by half. What is cut in it, will be cut in some language to come; what stands there
/// without accents is not translated. For checks, never shipped.
class PseudoLocale : public QTranslator
{
public:
    static constexpr QLatin1StringView Code{"pseudo"};

    /// Takes the compiled English catalogue. False when it cannot be read.
    bool loadEnglish(const QString &catalogue) { return m_english.load(catalogue); }

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return m_english.isEmpty(); }

private:
    QTranslator m_english;
};

/// The text with accents and longer by half. Markup, places such as %1, marks of shortcuts and the patterns
/// of file filters stay.
QString pseudoText(const QString &text);
