#include "ui/style/stylerules.h"

#include <QRegularExpression>

StyleRules::StyleRules(const QString &text)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    const QString sheet = QString(text).remove(comment);
    if (!sheet.contains(u'{')) {
        m_rules.insert(QString(), declarationsOf(sheet));
        return;
    }
    for (const QString &rule : sheet.split(u'}', Qt::SkipEmptyParts)) {
        const QStringList selectors = rule.section(u'{', 0, 0).split(u',');
        const QSet<QString> declarations = declarationsOf(rule.section(u'{', 1));
        for (const QString &selector : selectors)
            m_rules[selector.simplified()].unite(declarations);
    }
}

QStringList StyleRules::missing(const QString &selector, const QString &declarations) const
{
    return (declarationsOf(declarations) - m_rules.value(selector)).values();
}

QSet<QString> StyleRules::declarationsOf(const QString &text)
{
    QSet<QString> all;
    for (const QString &one : text.split(u';', Qt::SkipEmptyParts)) {
        const QString name = one.section(u':', 0, 0).simplified();
        if (!name.isEmpty())
            all.insert(name + QStringLiteral(": ") + one.section(u':', 1).simplified());
    }
    return all;
}
