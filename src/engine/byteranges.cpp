#include "engine/byteranges.h"

#include <algorithm>

void ByteRanges::add(const Range &range)
{
    if (range.length() <= 0)
        return;
    const auto first = std::find_if(m_ranges.begin(), m_ranges.end(),
                                    [&range](const Range &known) { return known.end >= range.begin; });
    const auto last =
        std::find_if(first, m_ranges.end(), [&range](const Range &known) { return known.begin > range.end; });
    Range joined = range;
    for (auto known = first; known != last; ++known) {
        joined.begin = std::min(joined.begin, known->begin);
        joined.end = std::max(joined.end, known->end);
    }
    m_ranges.insert(m_ranges.erase(first, last), joined);
}

ByteRanges ByteRanges::intersected(const ByteRanges &other) const
{
    ByteRanges both;
    for (const Range &range : m_ranges) {
        for (const Range &of : other.m_ranges)
            both.add({std::max(range.begin, of.begin), std::min(range.end, of.end)});
    }
    return both;
}

qint64 ByteRanges::length() const
{
    qint64 sum = 0;
    for (const Range &range : m_ranges)
        sum += range.length();
    return sum;
}
