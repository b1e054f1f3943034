#pragma once

#include "form/combo_box.h"
#include "window/view.h"

#include <QComboBox>

namespace Hesperin {

/// A drop-down list. It shows the list's text, which need not be one of the entries.
class ListView : public View<QComboBox, ComboBox> {
public:
    ListView(ComboBox& list, QWidget* parent, const QRect& place, const QFont& face);

protected:
    void Sync() override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QStringList ShownItems() const;

    QFont face;
};

} // namespace Hesperin
