#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace cli {

/// The width of the text on a terminal in columns: two for wide East Asian characters, none for combining
/// marks.
int displayWidth(const QString &text);

/// The beginning of the text that fits into that many columns.
QString clipped(const QString &text, int columns);

/// A table of text in aligned columns.
class Table
{
public:
    void addRow(const QStringList &cells) { m_rows.append(cells); }
    /// Adds a line below the last row; it is not aligned with the columns.
    void addLine(const QString &line) { m_rows.append(QStringList{line}); }

    /// The table with each line indented by that many blanks and ended by a line feed; no line has trailing
    /// blanks.
    QString text(int indent = 0) const;

private:
    QList<QStringList> m_rows;
};

} // namespace cli
