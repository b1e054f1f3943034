#pragma once

#include "form/control.h"

namespace Hesperin {

/// The settings of the common file dialog. The file name stays in it between commands.
class FileDialog : public Control {
public:
    using Control::Control;

    QString InitialDirectory;
    QString Filter;           ///< description and pattern with a bar between: "Files (*.xdb)|*.xdb"
    QString DefaultExtension; ///< without a full stop
    QString FileName;

protected:
    QString Content() const override { return FileName; }
};

} // namespace Hesperin
