#include "window/program_style.h"

#include <QIcon>

namespace Hesperin {

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton
               ? QIcon()
               : QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace Hesperin
