#include "window/status_window.h"

#include "system/version_record.h"
#include "window/fonts.h"
#include "window/palette.h"
#include "window/units.h"

#include <QLabel>
#include <QPainter>

namespace Hesperin {

namespace {

constexpr QSize SmallestClient(Pixels(6450), Pixels(4650)); // taller when the words need it
constexpr int TitleHeight = Pixels(960); // a dark background, on which the white title can be read
constexpr QRect WordsPlace = PixelRect(120, 4200, 6210, 375);

} // namespace

StatusWindow::StatusWindow(Program& owner, QWidget* mainWindow, const QString& message)
    : SecondaryWindowView(owner, mainWindow, "frmStatus") {
    setWindowTitle(QStringLiteral("Average values"));
    AddButton("Command1", QStringLiteral("OK"), PixelRect(4200, 2880, 2235, 375));
    AddText(*this, "Label1", QStringLiteral("Последнее выполненное действие: "),
            PixelRect(120, 3600, 4575, 375), CaptionFont(), Qt::AlignLeft | Qt::AlignVCenter);

    QFont font = BoxFont();
    font.setPixelSize(13);
    QLabel* words =
        AddText(*this, "lblStatus", message, WordsPlace, font, Qt::AlignLeft | Qt::AlignTop);
    words->setWordWrap(true);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int height = std::max(WordsPlace.height(), words->heightForWidth(WordsPlace.width()));
    words->resize(WordsPlace.width(), height);
    ShowCentred(SmallestClient + QSize(0, height - WordsPlace.height()));
}

void StatusWindow::paintEvent(QPaintEvent*) {
    constexpr int copies = 6;
    QFont font = FigureFont();
    font.setPixelSize(32);
    QPainter painter(this);
    painter.fillRect(0, 0, width(), TitleHeight, QColor(Colours().AboutBackground));
    painter.setFont(font);
    painter.setPen(QColor(Colours().StatusShadow));
    const QString title = QString::fromUtf16(VersionRecord::Title);
    for (int copy = 0; copy < copies; ++copy) {
        if (copy == copies - 1)
            painter.setPen(QColor(Colours().StatusTitle));
        painter.drawText(copy + 10, copy + 10 + QFontMetrics(font).ascent(), title);
    }
}

} // namespace Hesperin
