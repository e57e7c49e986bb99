#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

// A page as read by poppler's independent programs. Positions are points from the upper left corner of the
// paper.
struct PaperWords
{
    struct Word
    {
        QString text;
        QRectF box;
    };

    QSizeF paper;
    int pages = 0;
    QList<Word> words; // only words on the paper; poppler leaves out the others

    static bool isPossible();
    static PaperWords of(const QString &pdf);
    // The rightmost visible position within the box.
    static double visibleEnd(const QString &pdf, const QRectF &box);

    // All characters but blanks, sorted, because the division of a text into words depends on the reader.
    QString characters() const;
    // The box of the first word with that text.
    QRectF boxOf(const QString &text) const;
    // Words outside the paper, or over other words.
    QStringList problems() const;
};

QString sortedCharacters(QString text);
