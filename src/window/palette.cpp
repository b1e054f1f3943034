#include "window/palette.h"

#include <QApplication>
#include <QWidget>

#include <utility>

namespace Hesperin {

// clang-format off
const ColourTable GivenColours{
    .Background = 0xFFF1EEE6, .Field = 0xFFFFFDF8,       .FieldOff = 0xFFE9E5DA,
    .Line = 0xFFBDB39B,       .OutlineBase = 0xFFF1EEE6, .Text = 0xFF2B2620,
    .TextOff = 0xFF8F877A,    .Accent = 0xFF33508F,
    .Parameter = 0xFF0000FF,  .InFile = 0xFFC000C0,      .Name = 0xFF004000,
    .Rolvane = 0xFFFF0000,    .Hesperin = 0xFF00C0C0,    .Average = 0xFF00C000,
    .Alternative = 0xFFFF8000,
    .AboutBackground = 0xFF000080, .StatusTitle = 0xFFFFFFFF, .StatusShadow = 0xFFFF0000,
    .FocusLine = 0x00000000,
    .OwnParts = 1, .BackgroundParts = 2,
};

const ColourTable HighContrastColours{
    .Background = 0xFFF1EEE6, .Field = 0xFFFFFDF8,       .FieldOff = 0xFFE9E5DA,
    .Line = 0xFF7A7159,       .OutlineBase = 0xFF94896D, .Text = 0xFF2B2620,
    .TextOff = 0xFF524C43,    .Accent = 0xFF33508F,
    .Parameter = 0xFF0000CC,  .InFile = 0xFF800080,      .Name = 0xFF004000,
    .Rolvane = 0xFFC00000,    .Hesperin = 0xFF006C6C,    .Average = 0xFF007000,
    .Alternative = 0xFF9C4E00,
    .AboutBackground = 0xFF000080, .StatusTitle = 0xFFFFFFFF, .StatusShadow = 0xFFB00000,
    .FocusLine = 0xFF33508F,
    .OwnParts = 3, .BackgroundParts = 1,
};
// clang-format on

namespace {

const ColourTable* inUse = &GivenColours;

/// The widgets whose palette gives the colour of the window to nothing but their outlines.
constexpr const char* OutlinedWidgets[] = {"QLineEdit", "QAbstractButton", "QTabBar", "QScrollBar"};

QColor Softened(QRgb text) {
    const ColourTable& table = Colours();
    const auto mixed = [&](int (*part)(QRgb)) {
        return (table.OwnParts * part(text) + table.BackgroundParts * part(table.FieldOff)) /
               (table.OwnParts + table.BackgroundParts);
    };
    return {mixed(qRed), mixed(qGreen), mixed(qBlue)};
}

} // namespace

const ColourTable& Colours() {
    return *inUse;
}

void UseColours(const ColourTable& table) {
    if (std::exchange(inUse, &table) == &table)
        return;
    QApplication::setPalette(ProgramPalette()); // first: it takes away those of kinds of widgets
    for (const char* widget : OutlinedWidgets)
        QApplication::setPalette(OutlinedPalette(), widget);
    QEvent change(QEvent::ApplicationPaletteChange); // the toolkit tells it to windows only
    for (QWidget* widget : QApplication::allWidgets())
        QCoreApplication::sendEvent(widget, &change);
}

QPalette ProgramPalette() {
    const ColourTable& table = Colours();
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Button})
        palette.setColor(role, QColor(table.Background));
    for (const auto role :
         {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::ToolTipText})
        palette.setColor(role, QColor(table.Text));
    for (const auto role : {QPalette::Base, QPalette::ToolTipBase})
        palette.setColor(role, QColor(table.Field));
    palette.setColor(QPalette::AlternateBase, QColor(table.Background));
    palette.setColor(QPalette::PlaceholderText, QColor(table.TextOff));
    palette.setColor(QPalette::Light, QColor(table.Field));
    palette.setColor(QPalette::Midlight, QColor(table.FieldOff));
    palette.setColor(QPalette::Mid, QColor(table.Line));
    palette.setColor(QPalette::Dark, QColor(table.Line));
    palette.setColor(QPalette::Shadow, QColor(table.TextOff));
    palette.setColor(QPalette::Highlight, QColor(table.Accent));
    palette.setColor(QPalette::HighlightedText, QColor(table.Field));
    palette.setColor(QPalette::Link, QColor(table.Accent));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, QColor(table.TextOff));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(table.FieldOff));
    return palette;
}

QPalette OutlinedPalette() {
    QPalette palette = ProgramPalette();
    palette.setColor(QPalette::Window, QColor(Colours().OutlineBase));
    return palette;
}

QPalette TextPalette(QPalette palette, Colour colour) {
    const QRgb text = Colours().*colour;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, QColor(text));
        palette.setColor(QPalette::Inactive, role, QColor(text));
        palette.setColor(QPalette::Disabled, role, Softened(text));
    }
    return palette;
}

} // namespace Hesperin
