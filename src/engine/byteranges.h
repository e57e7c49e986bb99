#pragma once

#include <QList>
#include <QtGlobal>

// Bytes of a drive, as ranges that neither overlap nor touch, ascending.
class ByteRanges
{
public:
    struct Range
    {
        qint64 begin = 0;
        qint64 end = 0; // behind the last byte

        qint64 length() const { return end - begin; }
        bool operator==(const Range &) const = default;
    };

    // An empty range adds nothing.
    void add(const Range &range);

    // The bytes that are in both.
    ByteRanges intersected(const ByteRanges &other) const;

    const QList<Range> &ranges() const { return m_ranges; }
    qint64 length() const;

private:
    QList<Range> m_ranges;
};
