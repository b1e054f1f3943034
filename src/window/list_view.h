#pragma once

#include "form/combo_box.h"
#include "window/frame_view.h"
#include "window/view.h"

#include <QComboBox>

namespace Hesperin {

/// A drop-down list. It shows the list's text, which need not be one of the entries nor that of the
/// index. Keys and the drop-down start from the entry that has the text; the wheel changes nothing.
class ListView : public View<QComboBox, ComboBox>, public NamedInFrame {
public:
    ListView(ComboBox& list, QWidget* parent, const QRect& place, const QFont& wantedFont);

    /// The caption and the text shown.
    QString NameIn(const QString& caption) const override;

protected:
    void Sync() override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QStringList ShownItems() const;

    QFont wantedFont;
};

} // namespace Hesperin
