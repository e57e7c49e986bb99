#pragma once

#include <QByteArray>
#include <QRandomGenerator>

QByteArray randomBytes(QRandomGenerator &random, qsizetype size);

// A random generator; its seed is printed.
QRandomGenerator printedRandom();

// The first position at which two contents differ, -1 when they are equal.
qsizetype firstDifference(const QByteArray &a, const QByteArray &b);
