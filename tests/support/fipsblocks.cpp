#include "support/fipsblocks.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>

namespace fips {

namespace {

constexpr int LongestCounted = 6; // longer runs count as runs of this length
constexpr int LongRun = 26;

struct Interval
{
    int least;
    int most;
};
constexpr std::array<Interval, LongestCounted> RunIntervals{
    {{2315, 2685}, {1114, 1386}, {527, 723}, {240, 384}, {103, 209}, {103, 209}}};

bool isMonobitRight(QByteArrayView block)
{
    int ones = 0;
    for (const char byte : block)
        ones += std::popcount(static_cast<unsigned char>(byte));
    return 9725 < ones && ones < 10275;
}

bool isPokerRight(QByteArrayView block)
{
    std::array<qint64, 16> counts{};
    for (const char byte : block) {
        const auto value = static_cast<unsigned char>(byte);
        ++counts[value & 0x0FU];
        ++counts[value >> 4U];
    }
    qint64 squares = 0;
    for (const qint64 count : counts)
        squares += count * count;
    const double x = 16.0 / 5000.0 * static_cast<double>(squares) - 5000.0;
    return 2.16 < x && x < 46.17;
}

// The numbers of runs of zeros and of ones, by their lengths, and the length of the longest run.
struct Runs
{
    std::array<std::array<int, LongestCounted>, 2> counts{};
    int longest = 0;

    void end(unsigned bit, int length)
    {
        ++counts[bit][static_cast<std::size_t>(std::min(length, LongestCounted) - 1)];
        longest = std::max(longest, length);
    }
};

Runs runsOf(QByteArrayView block)
{
    Runs runs;
    unsigned current = static_cast<unsigned char>(block.front()) & 1U;
    int length = 0;
    for (const char byte : block) {
        unsigned rest = static_cast<unsigned char>(byte);
        int left = 8;
        while (left > 0) {
            const int same = std::min(left, current ? std::countr_one(rest) : std::countr_zero(rest));
            length += same;
            left -= same;
            rest >>= same;
            if (left > 0) {
                runs.end(current, length);
                current ^= 1U;
                length = 0;
            }
        }
    }
    runs.end(current, length);
    return runs;
}

bool areRunsRight(const Runs &runs)
{
    for (const auto &counts : runs.counts) {
        for (std::size_t i = 0; i < counts.size(); ++i) {
            if (counts[i] < RunIntervals[i].least || counts[i] > RunIntervals[i].most)
                return false;
        }
    }
    return true;
}

// The share of truly random blocks that fail. Of a million blocks from the kernel's generator 805 did:
// monobit 93, poker 89, runs 324, long run 302. By calculation it is 103 for monobit, 99 for poker and 298
// for the long run. These are five standard deviations from the 805.
constexpr double LeastShare = 0.00066;
constexpr double MostShare = 0.00095;

constexpr double OneSide = 5e-10;

double poisson(double mean, qint64 count)
{
    return std::exp(static_cast<double>(count) * std::log(mean) - mean -
                    std::lgamma(static_cast<double>(count) + 1.0));
}

} // namespace

Failures failuresOf(QByteArrayView block)
{
    Q_ASSERT(block.size() == BlockBytes);
    const Runs runs = runsOf(block);
    return {.monobit = !isMonobitRight(block),
            .poker = !isPokerRight(block),
            .runs = !areRunsRight(runs),
            .longRun = runs.longest >= LongRun};
}

void Count::add(QByteArrayView data)
{
    for (; data.size() >= BlockBytes; data = data.sliced(BlockBytes)) {
        const Failures failures = failuresOf(data.first(BlockBytes));
        ++blocks;
        failed += failures.any();
        monobit += failures.monobit;
        poker += failures.poker;
        runs += failures.runs;
        longRun += failures.longRun;
    }
}

QByteArray Count::text() const
{
    return QByteArray::number(failed) + " of " + QByteArray::number(blocks) + " blocks fail (monobit " +
           QByteArray::number(monobit) + ", poker " + QByteArray::number(poker) + ", runs " +
           QByteArray::number(runs) + ", long run " + QByteArray::number(longRun) + ')';
}

// Failing blocks are rare and independent, so their number follows Poisson's distribution.
Bounds boundsFor(qint64 blocks)
{
    Bounds bounds;
    const double fewest = static_cast<double>(blocks) * LeastShare;
    double below = poisson(fewest, 0);
    while (below < OneSide)
        below += poisson(fewest, ++bounds.least);
    const double mostMean = static_cast<double>(blocks) * MostShare;
    double above = 1.0;
    for (qint64 count = 0; above >= OneSide; ++count) {
        above -= poisson(mostMean, count);
        bounds.most = count;
    }
    return bounds;
}

} // namespace fips
