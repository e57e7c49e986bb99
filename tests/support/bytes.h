#pragma once

#include <QByteArray>
#include <QRandomGenerator>

QByteArray randomBytes(QRandomGenerator &random, qsizetype size);

// A generator whose seed is printed.
QRandomGenerator printedRandom();

// For comparing long contents: the first position at which two differ, -1 when they are equal.
qsizetype firstDifference(const QByteArray &a, const QByteArray &b);
