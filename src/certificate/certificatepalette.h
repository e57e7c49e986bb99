#pragma once

#include <QColor>

#include <array>

/// Roles of the painted page's colours, in the order in which a palette holds them.
enum class CertificateColour : std::size_t {
    Primary,
    Text,
    SecondaryText,
    LightBackground, ///< not used on the page
    Success,
    Failure,
};

using CertificatePalette = std::array<QColor, 6>;

inline QColor colourOf(const CertificatePalette &palette, CertificateColour role)
{
    return palette[static_cast<std::size_t>(role)];
}
