#include "window/list_view.h"

#include "window/fonts.h"

#include <QStylePainter>
#include <QWheelEvent>

namespace Hesperin {

ListView::ListView(ComboBox& list, QWidget* parent, const QRect& place, const QFont& listFont)
    : View(list, parent), wantedFont(listFont) {
    setGeometry(place);
    setFont(wantedFont);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this,
            [this](int index) { control.Select(static_cast<std::int16_t>(index)); });
    SyncAll();
}

void ListView::Sync() {
    if (ShownItems() != control.Items()) {
        clear();
        addItems(control.Items());
    }
    setCurrentIndex(static_cast<int>(control.Items().indexOf(control.Text())));
    FrameView::NameFieldsAround(*this);
    update();
}

QString ListView::NameIn(const QString& caption) const {
    return (caption + u' ' + control.Text()).trimmed();
}

QStringList ListView::ShownItems() const {
    QStringList items;
    for (int index = 0; index < count(); ++index)
        items.append(itemText(index));
    return items;
}

void ListView::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = control.Text();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const int room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    painter.setFont(FittingFont(wantedFont, option.currentText, room - 4));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ListView::changeEvent(QEvent* event) {
    // The list that drops down inherits its font; the toolkit would build it now, only to tell it.
    if (event->type() == QEvent::FontChange)
        update();
    else
        QComboBox::changeEvent(event);
}

void ListView::wheelEvent(QWheelEvent* event) {
    event->ignore(); // it belongs to what scrolls around the list
}

} // namespace Hesperin
