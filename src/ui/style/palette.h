#pragma once

#include <QColor>

/// The colours that code paints and writes with; the style sheet names the same ones.
namespace palette {

inline constexpr QColor Text{0x1e, 0x29, 0x3b};
inline constexpr QColor MutedText{0x64, 0x74, 0x8b};
inline constexpr QColor DisabledText{0x9c, 0xa3, 0xaf};
inline constexpr QColor Primary{0x3b, 0x82, 0xf6};
inline constexpr QColor Success{0x22, 0xc5, 0x5e};
inline constexpr QColor Warning{0xf5, 0x9e, 0x0b};
inline constexpr QColor Error{0xef, 0x44, 0x44};
inline constexpr QColor Border{0xe2, 0xe8, 0xf0};

} // namespace palette
