#include "ui/style/lightpalette.h"

#include "ui/style/palette.h"

QPalette lightPalette()
{
    QPalette light(palette::Text, palette::Surface, Qt::white, palette::FaintText, palette::StrongBorder,
                   palette::Text, Qt::white, palette::Surface, palette::Container);
    light.setColor(QPalette::AlternateBase, palette::Container);
    light.setColor(QPalette::Midlight, palette::Container);
    light.setColor(QPalette::Shadow, palette::MutedText);
    light.setColor(QPalette::Highlight, palette::Primary);
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::PlaceholderText, palette::MutedText);
    light.setColor(QPalette::ToolTipBase, palette::Text);
    light.setColor(QPalette::ToolTipText, palette::Container);
    light.setColor(QPalette::Link, palette::PrimaryHovered);
    light.setColor(QPalette::LinkVisited, palette::SelectedText);
    for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        light.setColor(QPalette::Disabled, text, palette::FaintText);
    return light;
}
