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
};

} // namespace Hesperin
