#include "support/bytes.h"

#include <QtGlobal>

#include <algorithm>

QByteArray randomBytes(QRandomGenerator &random, qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(random.generate());
    return bytes;
}

QRandomGenerator printedRandom()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    return QRandomGenerator(seed);
}

qsizetype firstDifference(const QByteArray &a, const QByteArray &b)
{
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return inA == a.end() && inB == b.end() ? -1 : inA - a.begin();
}
