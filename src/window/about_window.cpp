#include "window/about_window.h"

#include "system/version_record.h"
#include "window/fonts.h"
#include "window/palette.h"
#include "window/units.h"

#include <QLabel>
#include <QPainter>

namespace Hesperin {

namespace {

constexpr QSize AboutClient(Pixels(8385), Pixels(5055));

/// A picture on black and its mask, light where the background is to stay.
struct MaskedPicture {
    const char* mask;
    const char* colour;
    QPoint place;
};

constexpr MaskedPicture Pictures[] = {
    {":/label_mask.png", ":/label_color.png", {5, 5}},
    {":/talmir_mask.png", ":/talmir_color.png", {10, 40}},
};

/// The mask clears the shape in the background, then the picture is painted into it.
QImage DrawPictures() {
    QImage surface(AboutClient, QImage::Format_RGB32);
    surface.fill(Colours().AboutBackground);
    QPainter painter(&surface);
    for (const MaskedPicture& picture : Pictures) {
        const auto load = [](const char* name) {
            return QImage(QLatin1String(name)).convertToFormat(QImage::Format_RGB32);
        };
        painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
        painter.drawImage(picture.place, load(picture.mask));
        painter.setCompositionMode(QPainter::RasterOp_SourceOrDestination);
        painter.drawImage(picture.place, load(picture.colour));
    }
    return surface;
}

/// The largest font up to `font` in which the text, wrapped, fits into `room`.
QFont FittingWrapped(QFont font, const QString& text, QSize room) {
    const auto height = [&] {
        return QFontMetrics(font)
            .boundingRect(QRect(0, 0, room.width(), 0), Qt::TextWordWrap, text)
            .height();
    };
    while (font.pixelSize() > 9 && height() > room.height())
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

} // namespace

AboutWindow::AboutWindow(Program& owner, QWidget* mainWindow)
    : SecondaryWindowView(owner, mainWindow, "frmAbout"), pictures(DrawPictures()) {
    const Messages& messages = program.state.messages;
    const QString product = QString::fromUtf16(VersionRecord::ProductName);
    setWindowTitle(program.form.mnuAbout.Caption());
    setAccessibleDescription(QStringLiteral("A golden dragon carries a balance on its wings."));

    const auto add = [this](const char* name, const QString& text, const QRect& place,
                            const QFont& font, Qt::Alignment alignment) {
        constexpr int side = 6;
        constexpr int above = 2;
        QLabel* label = AddText(*this, name, text, place, font, alignment);
        label->setWordWrap(true);
        label->setContentsMargins(side, above, side, above);
        label->setAutoFillBackground(true);
        label->setFont(FittingWrapped(font, text, place.size() - QSize(2 * side, 2 * above)));
    };
    add("utbInfo",
        VersionRecord::TitleAndVersion() + QLatin1String(" - ") +
            QString::fromUtf16(VersionRecord::LegalNotice),
        PixelRect(720, 120, 7575, 495), HeadingFont(), Qt::AlignCenter);
    add("utbWhatis", messages.MsgWhatIs + product + u'?', PixelRect(4080, 720, 4215, 375),
        HeadingFont(), Qt::AlignCenter);
    add("utbAbout", product + messages.MsgAppDescription, PixelRect(4080, 1200, 4215, 3735),
        FigureFont(), Qt::AlignLeft | Qt::AlignTop);
    AddButton("cmdQuit", program.form.mnuQuit.Caption(), PixelRect(1080, 4560, 1815, 375));
    ShowCentred(AboutClient);
}

void AboutWindow::paintEvent(QPaintEvent*) {
    QPainter(this).drawImage(rect(), pictures);
}

} // namespace Hesperin
