#include "window/palette.h"

namespace Hesperin {

namespace {

QColor Softened(QRgb ink) {
    const QColor colour(ink);
    const QColor ground(Colours::FieldOff);
    return {(colour.red() + 2 * ground.red()) / 3, (colour.green() + 2 * ground.green()) / 3,
            (colour.blue() + 2 * ground.blue()) / 3};
}

} // namespace

QPalette ProgramPalette() {
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Button})
        palette.setColor(role, QColor(Colours::Ground));
    for (const auto role :
         {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::ToolTipText})
        palette.setColor(role, QColor(Colours::Text));
    for (const auto role : {QPalette::Base, QPalette::ToolTipBase})
        palette.setColor(role, QColor(Colours::Field));
    palette.setColor(QPalette::AlternateBase, QColor(Colours::Ground));
    palette.setColor(QPalette::PlaceholderText, QColor(Colours::TextOff));
    palette.setColor(QPalette::Light, QColor(Colours::Field));
    palette.setColor(QPalette::Midlight, QColor(Colours::FieldOff));
    palette.setColor(QPalette::Mid, QColor(Colours::Line));
    palette.setColor(QPalette::Dark, QColor(Colours::Line));
    palette.setColor(QPalette::Shadow, QColor(Colours::TextOff));
    palette.setColor(QPalette::Highlight, QColor(Colours::Accent));
    palette.setColor(QPalette::HighlightedText, QColor(Colours::Field));
    palette.setColor(QPalette::Link, QColor(Colours::Accent));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, QColor(Colours::TextOff));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(Colours::FieldOff));
    return palette;
}

QPalette InkPalette(QRgb ink) {
    QPalette palette = ProgramPalette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, QColor(ink));
        palette.setColor(QPalette::Inactive, role, QColor(ink));
        palette.setColor(QPalette::Disabled, role, Softened(ink));
    }
    return palette;
}

} // namespace Hesperin
