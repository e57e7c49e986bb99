#pragma once

#include <QByteArray>
#include <QByteArrayView>

// The four statistical tests of FIPS 140-2 (2001, section 4.9.1, with the intervals of change notice 1) on a
// block of 20,000 bits: monobit, poker, runs and long run. Change notice 2 withdrew them, because a block
// that passes says nothing of a generator that can be predicted: every decent generator passes, and about 8
// in 10,000 truly random blocks fail. They show a generator that is stuck, repeats short stretches or has
// lost entropy.
//
// Bits are counted from the lowest of a byte, as the data is stored.
namespace fips {

inline constexpr qsizetype BlockBytes = 2500;

// Which tests a block fails.
struct Failures
{
    bool monobit = false;
    bool poker = false;
    bool runs = false;
    bool longRun = false;

    bool any() const { return monobit || poker || runs || longRun; }
};

// The block has BlockBytes bytes.
Failures failuresOf(QByteArrayView block);

struct Count
{
    qint64 blocks = 0;
    qint64 failed = 0;
    qint64 monobit = 0;
    qint64 poker = 0;
    qint64 runs = 0;
    qint64 longRun = 0;

    // Adds the whole blocks of the data.
    void add(QByteArrayView data);
    QByteArray text() const;
};

// The bounds between which the number of failing blocks lies when the bits are random. Each is left by chance
// with a probability below half a billionth. The lower one is 0 when there are too few blocks to expect one.
struct Bounds
{
    qint64 least = 0;
    qint64 most = 0;
};
Bounds boundsFor(qint64 blocks);

} // namespace fips
