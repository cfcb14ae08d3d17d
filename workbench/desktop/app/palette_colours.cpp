#include "workbench/desktop/app/palette_colours.h"

namespace workbench::desktop {

QPalette paletteOf(const Look& look) {
    QPalette colours;
    colours.setColor(QPalette::Window, look.panel);
    colours.setColor(QPalette::WindowText, look.text);
    colours.setColor(QPalette::Base, look.field);
    colours.setColor(QPalette::AlternateBase, look.title);
    colours.setColor(QPalette::Text, look.fieldText);
    colours.setColor(QPalette::PlaceholderText, look.dimText);
    colours.setColor(QPalette::Button, look.title);
    colours.setColor(QPalette::ButtonText, look.text);
    colours.setColor(QPalette::Highlight, look.accent);
    colours.setColor(QPalette::HighlightedText, look.accentText);
    colours.setColor(QPalette::ToolTipBase, look.balloon);
    colours.setColor(QPalette::ToolTipText, look.balloonText);
    colours.setColor(QPalette::Link, look.link);
    // The lines that styles draw between parts.
    colours.setColor(QPalette::Light, look.title);
    colours.setColor(QPalette::Midlight, look.title);
    colours.setColor(QPalette::Mid, look.line);
    colours.setColor(QPalette::Dark, look.line);
    colours.setColor(QPalette::Shadow, look.frame);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, look.dimText);
    return colours;
}

}  // namespace workbench::desktop
