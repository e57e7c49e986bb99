#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

// The rules of a style sheet. Order, blanks, line ends and comments do not matter.
class StyleRules
{
public:
    explicit StyleRules(const QString &sheet);

    // The declarations of "a: b; c: d" that the rule for the selector lacks. A sheet without selectors has
    // its declarations under an empty one.
    QStringList missing(const QString &selector, const QString &declarations) const;

private:
    static QSet<QString> declarationsOf(const QString &text);

    QMap<QString, QSet<QString>> m_rules;
};
