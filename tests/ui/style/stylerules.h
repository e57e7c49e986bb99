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

    // The declarations of "a: b; c: d" that are missing from the rule for the selector. The declarations of
    // a sheet without selectors belong to an empty selector.
    QStringList missing(const QString &selector, const QString &declarations) const;

private:
    static QSet<QString> declarationsOf(const QString &text);

    QMap<QString, QSet<QString>> m_rules;
};
