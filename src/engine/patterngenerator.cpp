#include "engine/patterngenerator.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <random>

// Compiles the loops twice, for every processor and for 256-bit vectors; the loader selects one. Sanitizers
// instrument that selection, which then runs before they are ready.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && defined(__ELF__) &&                   \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define QUORVEX_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define QUORVEX_VECTOR_CLONES
#endif

namespace {
constexpr int StateSize = 624;
constexpr int Shift = 397;

inline quint32 mixed(quint32 high, quint32 low)
{
    const quint32 word = (high & 0x80000000U) | (low & 0x7FFFFFFFU);
    return (word >> 1) ^ ((0U - (word & 1U)) & 0x9908B0DFU);
}

// Each new word depends on an old word Shift places ahead, cyclically. The loops are split where the index
// wraps around, so that none reads a word that it wrote less than a vector's width before.
QUORVEX_VECTOR_CLONES
void advance(quint32 *state)
{
    for (int i = 0; i < StateSize - Shift; ++i)
        state[i] = state[i + Shift] ^ mixed(state[i], state[i + 1]);
    for (int i = StateSize - Shift; i < StateSize - 1; ++i)
        state[i] = state[i + Shift - StateSize] ^ mixed(state[i], state[i + 1]);
    state[StateSize - 1] = state[Shift - 1] ^ mixed(state[StateSize - 1], state[0]);
}

QUORVEX_VECTOR_CLONES
void temper(const quint32 *__restrict state, quint32 *__restrict output)
{
    for (int i = 0; i < StateSize; ++i) {
        quint32 word = state[i];
        word ^= word >> 11;
        word ^= (word << 7) & 0x9D2C5680U;
        word ^= (word << 15) & 0xEFC60000U;
        word ^= word >> 18;
        output[i] = word;
    }
}
} // namespace

quint32 PatternGenerator::generate()
{
    if (m_next == StateWords)
        refill();
    return m_output[m_next++];
}

void PatternGenerator::fill(std::byte *data, qint64 size)
{
    std::size_t words = static_cast<std::size_t>(std::max<qint64>(size, 0) / 8) * 2;
    const auto tail = static_cast<std::size_t>(std::max<qint64>(size, 0) % 8);
    while (words > 0) {
        if (m_next == StateWords)
            refill();
        const std::size_t count = std::min(words, StateWords - m_next);
        qToLittleEndian<quint32>(m_output.data() + m_next, static_cast<qsizetype>(count), data);
        data += count * sizeof(quint32);
        m_next += count;
        words -= count;
    }
    if (tail > 0) {
        quint32 last[2];
        for (quint32 &word : last)
            word = qToLittleEndian(generate());
        std::memcpy(data, last, tail);
    }
}

void PatternGenerator::refill()
{
    static_assert(StateWords == StateSize);
    if (!m_isSeeded)
        std::seed_seq({m_seed}).generate(m_state.begin(), m_state.end());
    m_isSeeded = true;
    advance(m_state.data());
    temper(m_state.data(), m_output.data());
    m_next = 0;
}
