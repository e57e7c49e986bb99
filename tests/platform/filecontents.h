#pragma once

#include <QByteArray>
#include <QFile>
#include <QRandomGenerator>
#include <QString>
#include <QTest>

#include <algorithm>

// Files as tests make and read them, by other means than the backend's.

inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(QStringLiteral("cannot read %1: %2").arg(path, file.errorString())), __FILE__,
                     __LINE__);
        return {};
    }
    return file.readAll();
}

inline bool makeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
}

inline QByteArray randomBytes(QRandomGenerator &random, qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(random.generate());
    return bytes;
}

// A generator whose seed is printed.
inline QRandomGenerator printedRandom()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    return QRandomGenerator(seed);
}

// For comparing long contents: the first position at which two differ, -1 when they are equal.
inline qsizetype firstDifference(const QByteArray &a, const QByteArray &b)
{
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return inA == a.end() && inB == b.end() ? -1 : inA - a.begin();
}
