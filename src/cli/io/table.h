#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace cli {

// Columns that the text takes on a terminal: two for wide East Asian characters, none for combining marks.
int displayWidth(const QString &text);

// The beginning of the text that fits into so many columns.
QString clipped(const QString &text, int columns);

// Rows of cells in aligned columns.
class Table
{
public:
    void addRow(const QStringList &cells) { m_rows.append(cells); }
    // A line of its own below the row that was added last; it does not take part in the alignment.
    void addLine(const QString &line) { m_rows.append(QStringList{line}); }

    // Each line indented by so many blanks and with a line feed at its end, none with blanks there.
    QString text(int indent = 0) const;

private:
    QList<QStringList> m_rows;
};

} // namespace cli
