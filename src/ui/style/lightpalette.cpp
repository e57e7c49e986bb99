#include "ui/style/lightpalette.h"

#include "ui/style/palette.h"

#include <QColor>

QPalette lightPalette()
{
    constexpr QColor container(0xf8, 0xfa, 0xfc);
    constexpr QColor disabled(0x94, 0xa3, 0xb8);
    const QColor surface(Qt::white);

    QPalette light(palette::Text, surface, Qt::white, QColor(0x94, 0xa3, 0xb8), QColor(0xcb, 0xd5, 0xe1),
                   palette::Text, Qt::white, surface, container);
    light.setColor(QPalette::AlternateBase, container);
    light.setColor(QPalette::Midlight, container);
    light.setColor(QPalette::Shadow, palette::MutedText);
    light.setColor(QPalette::Highlight, palette::Primary);
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::PlaceholderText, palette::MutedText);
    light.setColor(QPalette::ToolTipBase, palette::Text);
    light.setColor(QPalette::ToolTipText, container);
    light.setColor(QPalette::Link, QColor(0x25, 0x63, 0xeb));
    light.setColor(QPalette::LinkVisited, QColor(0x1e, 0x40, 0xaf));
    for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        light.setColor(QPalette::Disabled, text, disabled);
    return light;
}
