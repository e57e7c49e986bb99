#pragma once

#include <QColor>

#include <array>

/// The colours that code paints and writes with. The style sheet names the same ones.
namespace palette {

inline constexpr QColor Text{0x1e, 0x29, 0x3b};
inline constexpr QColor MutedText{0x64, 0x74, 0x8b};
inline constexpr QColor FaintText{0x94, 0xa3, 0xb8};
inline constexpr QColor DisabledText{0x9c, 0xa3, 0xaf};
inline constexpr QColor Primary{0x3b, 0x82, 0xf6};
inline constexpr QColor PrimaryHovered{0x25, 0x63, 0xeb};
inline constexpr QColor PrimaryPressed{0x1d, 0x4e, 0xd8};
inline constexpr QColor SelectedText{0x1e, 0x40, 0xaf};
inline constexpr QColor Success{0x22, 0xc5, 0x5e};
inline constexpr QColor Caution{0xea, 0xb3, 0x08};
inline constexpr QColor Warning{0xf5, 0x9e, 0x0b};
inline constexpr QColor Error{0xef, 0x44, 0x44};
inline constexpr QColor Surface{0xff, 0xff, 0xff};
inline constexpr QColor Container{0xf8, 0xfa, 0xfc};
inline constexpr QColor Border{0xe2, 0xe8, 0xf0};
inline constexpr QColor StrongBorder{0xcb, 0xd5, 0xe1};
inline constexpr QColor WindowShadow{0x00, 0x00, 0x00, 60};

/// Of the cards of the home page, by their index.
inline constexpr std::array<QColor, 4> CardAccents{Primary, Success, QColor{0xa8, 0x55, 0xf7}, Error};

/// Of the cards of the method page.
inline constexpr QColor CardBorder{0xd1, 0xd5, 0xdb};
inline constexpr QColor CardHovered{0xfa, 0xfb, 0xfc};
inline constexpr QColor CardSelected{0xf0, 0xf7, 0xff};

/// Of the badges of security levels 1 to 5, and of any other level.
inline constexpr std::array<QColor, 5> LevelBadges{Success, QColor{0x84, 0xcc, 0x16}, Caution,
                                                   QColor{0xf9, 0x73, 0x16}, Error};
inline constexpr QColor UnknownLevelBadge{0x6b, 0x72, 0x80};

/// Of the buttons in the title bar, on its dark ground.
inline constexpr QColor CaptionHovered{0xff, 0xff, 0xff, 30};
inline constexpr QColor CaptionCloseHovered{0xe8, 0x11, 0x23};
inline constexpr QColor CaptionFocus{0x60, 0xa5, 0xfa};

} // namespace palette
