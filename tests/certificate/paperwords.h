#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

// A page as poppler's programs, which are not ours, see it. Points, from the upper left corner of the paper.
struct PaperWords
{
    struct Word
    {
        QString text;
        QRectF box;
    };

    QSizeF paper;
    int pages = 0;
    QList<Word> words; // only those on the paper: poppler passes over the others

    static bool isPossible();
    static PaperWords of(const QString &pdf);
    // How far to the right something can be seen within the box.
    static double visibleEnd(const QString &pdf, const QRectF &box);

    // All characters but blanks, in the order of their numbers: how a text falls into words is not ours.
    QString characters() const;
    // Of the first word that has that text.
    QRectF boxOf(const QString &text) const;
    // What lies outside the paper or over something else.
    QStringList problems() const;
};

QString sortedCharacters(QString text);
