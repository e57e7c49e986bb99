#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The pseudo-random source of overwrite data. It yields the sequence of QRandomGenerator(seed), produced in
/// whole blocks so that a random pass is not slower than the device. Not for secrets. One thread at a time.
class PatternGenerator
{
public:
    /// The state is set up by the first draw, so that construction costs nothing.
    explicit PatternGenerator(quint32 seed)
        : m_seed(seed)
    {}

    /// The next 32 bits.
    quint32 generate();
    /// Fills size bytes with 64-bit words, each made of two draws (low half first) and stored little-endian.
    /// A size that is no multiple of 8 ends with the first bytes of one more word; the rest of that word is
    /// dropped.
    void fill(std::byte *data, qint64 size);

private:
    static constexpr std::size_t StateWords = 624;

    void refill();

    quint32 m_seed;
    bool m_isSeeded = false;
    std::array<quint32, StateWords> m_state;
    std::array<quint32, StateWords> m_output; ///< tempered words of the current block
    std::size_t m_next = StateWords;
};
