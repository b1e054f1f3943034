#include "window/secondary_window.h"

#include "window/fonts.h"

#include <QLabel>
#include <QScreen>

namespace Hesperin {

SecondaryWindowView::SecondaryWindowView(Program& owner, QWidget* mainWindow, const char* name)
    : QDialog(mainWindow, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      program(owner) {
    setObjectName(QLatin1String(name));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
}

QPushButton& SecondaryWindowView::AddButton(const char* name, const QString& caption,
                                            const QRect& place) {
    button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setGeometry(place);
    button->setFont(FittingFont(FigureFont(), caption, place.width() - 12));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, [this] { Close(); });
    return *button;
}

void SecondaryWindowView::ShowCentred(QSize size) {
    setFixedSize(size);
    move(screen()->availableGeometry().center() - QPoint(size.width() / 2, size.height() / 2));
    show();
    button->setFocus();
}

void SecondaryWindowView::Close() {
    program.form.frmMain.SetEnabled(true);
    done(Accepted);
}

QLabel* AddText(QWidget& window, const char* name, const QString& text, const QRect& place,
                const QFont& font, Qt::Alignment alignment) {
    auto* label = new QLabel(text, &window);
    label->setObjectName(QLatin1String(name));
    label->setGeometry(place);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment);
    label->setFont(font);
    return label;
}

} // namespace Hesperin
