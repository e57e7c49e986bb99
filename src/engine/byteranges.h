#pragma once

#include <QList>
#include <QtGlobal>

/// Byte ranges of a drive, ascending, that neither overlap nor touch.
class ByteRanges
{
public:
    struct Range
    {
        qint64 begin = 0;
        qint64 end = 0; ///< behind the last byte

        qint64 length() const { return end - begin; }
        bool operator==(const Range &) const = default;
    };

    /// An empty range adds nothing.
    void add(const Range &range);

    /// The bytes that are in both sets.
    ByteRanges intersected(const ByteRanges &other) const;

    const QList<Range> &ranges() const { return m_ranges; }
    /// The sum of the lengths of all ranges.
    qint64 length() const;

private:
    QList<Range> m_ranges;
};
