#include "window/ability_window.h"

#include "catalogue/ability_catalogue.h"
#include "window/fonts.h"
#include "window/palette.h"
#include "window/units.h"

#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

constexpr int ClientWidth = Pixels(10815);
constexpr int LineHeight = Pixels(600);
constexpr int BelowText = Pixels(1950); // of the window's height, all that isn't the description
constexpr int ButtonBelowText = Pixels(1095);

/// The pixels that a text takes from top to bottom when it is wrapped to that width.
int WrappedHeight(const QTextDocument& shown, int width) {
    QTextDocument text; // a view that isn't up yet would wrap its own to another width
    text.setDefaultFont(shown.defaultFont());
    text.setDefaultTextOption(shown.defaultTextOption());
    text.setDocumentMargin(shown.documentMargin());
    text.setPlainText(shown.toPlainText());
    text.setTextWidth(width);
    const int height = static_cast<int>(std::ceil(text.size().height())); // lays the text out
    int lines = 0;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        lines += std::max(1, block.layout()->lineCount());
    return std::max(lines * LineHeight, height);
}

} // namespace

AbilityWindow::AbilityWindow(Program& owner, QWidget* mainWindow)
    : SecondaryWindowView(owner, mainWindow, "frmAbility") {
    const int index = program.state.AbilityInfoIndex;
    const MainForm& form = program.form;
    setWindowTitle(AbilityPrefix.toString() +
                   QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(index)].token));

    const QString name = form.utbN(index).Text();
    const QRect namePlace = PixelRect(120, 120, 10575, 615);
    AddText(*this, "utbName", name, namePlace, FittingFont(ReadingFont(), name, namePlace.width()),
            Qt::AlignLeft | Qt::AlignVCenter);

    // Not a QPlainTextEdit, which finds some pixels to scroll sideways where there are none.
    auto* description = new QTextEdit(this);
    description->setObjectName(QStringLiteral("utbDesc"));
    description->setReadOnly(true);
    description->setFrameShape(QFrame::NoFrame);
    description->setFont(ReadingFont());
    description->document()->setDocumentMargin(0);
    description->setPlainText(form.utbD(index).Text());
    QPalette colours = description->palette();
    colours.setColor(QPalette::Base, palette().color(QPalette::Window));
    description->setPalette(colours);
    constexpr int width = Pixels(10575);
    const int wanted = WrappedHeight(*description->document(), width);
    const int room = screen()->availableGeometry().height() - BelowText - LineHeight;
    const int height = std::min(wanted, std::max(room, LineHeight));
    description->setGeometry(Pixels(120), Pixels(960), width, height);

    AddButton("cmdQuit", form.mnuQuit.Caption(),
              {Pixels(4440), height + ButtonBelowText, Pixels(1815), Pixels(375)});
    ShowCentred({ClientWidth,
                 height + BelowText - Pixels(345)}); // a window's height has its title bar in it
}

void AbilityWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QColor(Colours().Line));
    painter.drawLine(Pixels(120), Pixels(840), Pixels(10680), Pixels(840));
}

} // namespace Hesperin
