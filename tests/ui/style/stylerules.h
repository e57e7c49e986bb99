#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

// A style sheet by its rules, however it is written down: order, blanks and line ends mean nothing.
class StyleRules
{
public:
    explicit StyleRules(const QString &sheet);

    // Those of "a: b; c: d" that the rule for the selector does not hold. A bare list of declarations, which
    // speaks of the widget itself, is found under an empty selector.
    QStringList missing(const QString &selector, const QString &declarations) const;

private:
    static QSet<QString> declarationsOf(const QString &text);

    QMap<QString, QSet<QString>> m_rules;
};
