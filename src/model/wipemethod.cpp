#include "model/wipemethod.h"

#include <array>
#include <span>

namespace {
using enum PatternType;

constexpr PassPattern zeros{Zeros, 0x00, false};
constexpr PassPattern ones{Ones, 0xFF, false};
constexpr PassPattern randomBytes{Random, 0x00, false};

constexpr PassPattern byte(quint8 value)
{
    return {Custom, value, false};
}

constexpr PassPattern verified(PassPattern pass)
{
    pass.verify = true;
    return pass;
}

constexpr std::array nistPasses{verified(zeros)};
constexpr std::array hmgPasses{zeros, verified(randomBytes)};
constexpr std::array dodPasses{zeros, ones, randomBytes, zeros, ones, randomBytes, verified(randomBytes)};
constexpr std::array vsitrPasses{zeros, ones, zeros, ones, zeros, ones, verified(byte(0xAA))};

// Passes 5 to 31. Where the published sequence rotates a three-byte pattern, one byte of it fills the whole
// buffer, so that every fixed pass can be checked byte by byte.
constexpr std::array<quint8, 27> gutmannBytes{
    0x55, 0xAA, 0x92, 0x49, 0x24, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, //
    0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 0x92, 0x49, 0x24, 0x6D, 0xB6, 0xDB,
};

constexpr auto gutmannPasses = [] {
    constexpr std::size_t randomPasses = 4; // before the fixed ones and again after them
    std::array<PassPattern, randomPasses + gutmannBytes.size() + randomPasses> passes{};
    passes.fill(randomBytes);
    for (std::size_t i = 0; i < gutmannBytes.size(); ++i)
        passes[randomPasses + i] = byte(gutmannBytes[i]);
    passes.back().verify = true;
    return passes;
}();
static_assert(gutmannPasses.size() == 35);

struct Standard
{
    const char *name;
    const char *description;
    std::span<const PassPattern> passes;
    qint32 level;
};

// In the order of WipeMethod::Type.
constexpr std::array standards{
    Standard{"NIST 800-88",
             QT_TRANSLATE_NOOP("WipeMethod", "美国国家标准技术研究院标准，单次覆写，适用于大多数场景"),
             nistPasses, 1},
    Standard{"British HMG IS5", QT_TRANSLATE_NOOP("WipeMethod", "英国政府安全标准，2次覆写"), hmgPasses, 2},
    Standard{"DoD 5220.22-M", QT_TRANSLATE_NOOP("WipeMethod", "美国国防部标准，7次覆写，军事级别安全"),
             dodPasses, 4},
    Standard{"German VSITR", QT_TRANSLATE_NOOP("WipeMethod", "德国联邦信息安全办公室标准，7次覆写"),
             vsitrPasses, 4},
    Standard{"Gutmann", QT_TRANSLATE_NOOP("WipeMethod", "Peter Gutmann提出的最高安全标准，35次覆写"),
             gutmannPasses, 5},
};

// Indexed by level, from 1.
constexpr std::array levelNames{
    QT_TRANSLATE_NOOP("WipeMethod", "基础"), QT_TRANSLATE_NOOP("WipeMethod", "标准"),
    QT_TRANSLATE_NOOP("WipeMethod", "增强"), QT_TRANSLATE_NOOP("WipeMethod", "高级"),
    QT_TRANSLATE_NOOP("WipeMethod", "最高"),
};

const Standard &standardOf(qint32 type)
{
    const bool known = type >= 0 && type < static_cast<qint32>(standards.size());
    return standards[static_cast<std::size_t>(known ? type : qint32{WipeMethod::Nist80088})];
}
} // namespace

WipeMethod::WipeMethod()
    : WipeMethod(Nist80088)
{}

WipeMethod::WipeMethod(qint32 number)
    : type(number)
{
    const Standard &standard = standardOf(number);
    name = QLatin1String(standard.name);
    description = tr(standard.description);
    passes = QList<PassPattern>(standard.passes.begin(), standard.passes.end());
    level = standard.level;
}

WipeMethod WipeMethod::fromType(qint32 type)
{
    return WipeMethod(type);
}

QList<WipeMethod> WipeMethod::allMethods()
{
    QList<WipeMethod> methods;
    for (qint32 number = 0; number < static_cast<qint32>(standards.size()); ++number)
        methods.append(fromType(number));
    return methods;
}

QString WipeMethod::levelName() const
{
    if (level < 1 || level > static_cast<qint32>(levelNames.size()))
        return tr("未知");
    return tr(levelNames[static_cast<std::size_t>(level - 1)]);
}
