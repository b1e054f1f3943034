#pragma once

#include "form/text_field.h"
#include "window/palette.h"
#include "window/view.h"

#include <QLineEdit>

namespace Hesperin {

/// A field of text. Typed keys pass the field's key filter and its longest text; a paste passes.
/// What has been typed since it got the focus can be taken back by itself before the program's
/// steps. Whoever gives it the focus, its content is selected then, so that typing replaces it.
class FieldView : public View<QLineEdit, TextField> {
public:
    FieldView(TextField& field, QWidget* parent, const QRect& place, const QFont& wantedFont,
              Colour colour);

protected:
    void Sync() override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    /// Whether `typed` may come in where the selection stands now.
    bool Admits(const QString& typed) const;
    void FitFont();

    /// From now on the key that takes typing back goes to the program's steps.
    void ForgetTyping();

    QFont wantedFont;
    Colour colour;
    bool isLeftForAWhile = false;  ///< the focus comes back as it went
    bool hasFocusByPress = false;  ///< of the mouse button that is going down
    bool selectsOnRelease = false; ///< unless the mouse drags a selection before
};

} // namespace Hesperin
