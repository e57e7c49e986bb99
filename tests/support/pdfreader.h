#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

// Reads back what Qt's PDF writer wrote: objects by the tables at the end of the file, newest first, and the
// text of the page as a reader program extracts it, through the fonts' own tables.
class PdfReader
{
public:
    explicit PdfReader(const QByteArray &pdf);

    bool isReadable() const { return !m_objects.isEmpty(); }
    int tables() const { return m_tables; }

    QByteArray object(int number) const { return m_objects.value(number); }

    QList<QByteArray> objectsWith(const QByteArray &text) const;

    // The number behind "/Key 12 0 R".
    static int reference(const QByteArray &object, const QByteArray &key);

    QByteArray stream(int number) const;

    // What the page shows, also where it is cut or lies below the paper. A line for each piece.
    QString text() const;

private:
    qsizetype numberAt(qsizetype at) const;
    void readTable(qsizetype at);
    void readObject(int number, qsizetype at);
    static QHash<int, QString> glyphNames(const QByteArray &table);

    QByteArray m_pdf;
    QMap<int, QByteArray> m_objects;
    int m_tables = 0;
};
