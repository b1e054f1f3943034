#include "window/ability_window.h"

#include "catalogues/ability_catalogue.h"
#include "window/faces.h"
#include "window/palette.h"
#include "window/units.h"

#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

constexpr int ClientWidth = Pixels(10815);
constexpr int LineHeight = Pixels(600);
constexpr int BelowText = Pixels(1950); // of the window's height, all that isn't the description
constexpr int ButtonBelowText = Pixels(1095);

/// What a text takes when it is wrapped: its lines, and the pixels from top to bottom.
struct Extent {
    int lines = 0;
    int height = 0;
};

Extent WrappedExtent(const QString& text, const QFont& face, int width) {
    QTextDocument document;
    document.setDefaultFont(face);
    document.setDocumentMargin(0);
    document.setPlainText(text);
    document.setTextWidth(width);
    Extent extent;
    extent.height = static_cast<int>(std::ceil(document.size().height())); // lays the text out
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        extent.lines += std::max(1, block.layout()->lineCount());
    return extent;
}

} // namespace

AbilityWindow::AbilityWindow(Program& owner, QWidget* mainWindow)
    : SecondaryWindowView(owner, mainWindow, "frmAbility") {
    const int index = program.state.AbilityInfoIndex;
    const MainForm& form = program.form;
    setWindowTitle(QLatin1String("ABILITY_") +
                   QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(index)].token));

    const QString name = form.utbN(index).Text();
    const QRect namePlace = PixelRect(120, 120, 10575, 615);
    AddText(*this, "utbName", name, namePlace, FittingFace(ReadingFace(), name, namePlace.width()),
            Qt::AlignLeft | Qt::AlignVCenter);

    auto* description = new QPlainTextEdit(form.utbD(index).Text(), this);
    description->setObjectName(QStringLiteral("utbDesc"));
    description->setReadOnly(true);
    description->setFrameShape(QFrame::NoFrame);
    description->setFont(ReadingFace());
    description->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    description->document()->setDocumentMargin(0);
    QPalette ground = description->palette();
    ground.setColor(QPalette::Base, palette().color(QPalette::Window));
    description->setPalette(ground);
    constexpr int scrollBar = 20; // the text must not need one because it shows one
    constexpr int slack = 2;      // the field leaves a little room around its lines
    const Extent extent =
        WrappedExtent(form.utbD(index).Text(), ReadingFace(), Pixels(10575) - scrollBar);
    const int wanted = std::max(extent.lines * LineHeight, extent.height + slack);
    const int room = screen()->availableGeometry().height() - BelowText - LineHeight;
    const int height = std::min(wanted, std::max(room, LineHeight));
    if (height < wanted)
        description->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    description->setGeometry(Pixels(120), Pixels(960), Pixels(10575), height);

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
