#include "window/frame_view.h"

#include "window/fonts.h"
#include "window/outline.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPainter>

namespace Hesperin {

namespace {

constexpr int CaptionLeft = 8;
constexpr int CaptionGap = 3; // between caption and line

} // namespace

FrameView::FrameView(Frame& frame, QWidget* parent, const QFont& captionFont, const QRect& place)
    : View(frame, parent), wantedFont(captionFont) {
    setGeometry(place);
    SyncAll();
}

void FrameView::Sync() {
    const QString caption = control.Caption().trimmed();
    setAccessibleName(caption);
    NameFields();
    fitting = FittingFont(wantedFont, caption, width() - 2 * CaptionLeft);
    captionPlace = {CaptionLeft, 0, QFontMetrics(fitting).horizontalAdvance(caption) + 1,
                    QFontMetrics(wantedFont).height()};
    update();
}

void FrameView::NameFields() {
    const QString caption = control.Caption().trimmed();
    for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool takesFocus = child->focusPolicy() != Qt::NoFocus;
        if (const auto* named = dynamic_cast<NamedInFrame*>(child))
            child->setAccessibleName(named->NameIn(caption));
        else if (takesFocus)
            child->setAccessibleName(caption);
    }
    for (const QLabel* label : findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        if (label->buddy() != nullptr)
            label->buddy()->setAccessibleName(caption + u' ' + label->text());
}

void FrameView::NameFieldsAround(const QWidget& child) {
    if (auto* frame = dynamic_cast<FrameView*>(child.parentWidget()))
        frame->NameFields();
}

void FrameView::paintEvent(QPaintEvent*) {
    const int lineTop = captionPlace.height() / 2;
    QPainter painter(this);
    DrawOutline(painter, rect().adjusted(0, lineTop, 0, 0));
    painter.setFont(fitting);
    painter.fillRect(captionPlace.adjusted(-CaptionGap, 0, CaptionGap, 0), palette().window());
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    painter.drawText(captionPlace, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                     control.Caption().trimmed());
}

} // namespace Hesperin
