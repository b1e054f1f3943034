#pragma once

#include <QProxyStyle>

namespace Hesperin {

/// The same look on every desktop.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle();

    /// The menu bar asks for the arrow of what doesn't fit, which this window never shows; making
    /// it would load the readers of all picture formats that the system has.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;

    // The outlines of the colours in use: the style draws all of them in a shade of the window.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

    using QProxyStyle::polish;

    /// Makes every message box, the toolkit's own too, wide enough for its title.
    void polish(QWidget* widget) override;
};

} // namespace Hesperin
