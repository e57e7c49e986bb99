#include "pseudolocale.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QChar accented(QChar letter)
{
    static const QString plain = u"AaCcDdEeGgHhIiJjKkLlNnOoRrSsTtUuWwYyZz"_s;
    static const QString accents = u"ÅåÇçĎďËëĠġĤĥÎîĴĵĶķĻļÑñÖöŘřŠšŤťÛûŴŵÝýŽž"_s;
    const qsizetype at = plain.indexOf(letter);
    return at < 0 ? letter : accents.at(at);
}

} // namespace

QString pseudoText(const QString &text)
{
    static const QRegularExpression kept(u"<[^>]*>|%L?\\d+|%n|&\\w+;|\\(\\*[^)]*\\)|;;|\\\\n"_s);
    QString result;
    qsizetype letters = 0;
    qsizetype from = 0;
    const auto addAccented = [&](qsizetype to) {
        for (; from < to; ++from) {
            result += accented(text.at(from));
            letters += text.at(from).isLetter() ? 1 : 0;
        }
    };
    for (auto match = kept.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        addAccented(one.capturedStart());
        result += one.captured();
        from = one.capturedEnd();
    }
    addAccented(text.size());
    // Words of seven letters, as lines are broken between words.
    for (qsizetype more = (letters + 1) / 2; more > 0; more -= 7)
        result += u' ' + QString(std::min<qsizetype>(more, 7), u'ö');
    return result;
}

QString PseudoLocale::translate(const char *context, const char *sourceText, const char *disambiguation,
                                int n) const
{
    const QString english = m_english.translate(context, sourceText, disambiguation, n);
    return english.isNull() ? english : pseudoText(english);
}
