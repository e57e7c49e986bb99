#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

// Reads the output of Qt's PDF writer. It takes objects from the tables at the end of the file, newest
// first, and the text of the page through the fonts' tables, as a reader program does.
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

    // The text on the page, including clipped text and text below the paper. One line for each piece.
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
