#include "window/long_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace Hesperin {

void LetLongTextScroll(QMessageBox& box) {
    constexpr int mostLines = 24;
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    const qsizetype place = label == nullptr || grid == nullptr ? -1 : grid->indexOf(label);
    if (place < 0 || box.text().count(u'\n') < mostLines)
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(static_cast<int>(place), &row, &column, &rows, &columns);
    grid->removeWidget(label);
    auto* area = new QScrollArea(&box);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(label);
    area->setWidgetResizable(true);
    area->setMinimumSize(label->sizeHint().width() + area->verticalScrollBar()->sizeHint().width(),
                         mostLines * label->fontMetrics().lineSpacing());
    grid->addWidget(area, row, column, rows, columns);
}

} // namespace Hesperin
