// An otherwise empty window that writes the texts of the first picture in their faces, with no
// control at all: what any window that shows these texts pays. Run by the start benchmark.
#include "app/handlers/form_load.h"
#include "window/early_start.h"
#include "window/fonts.h"

#include "end_after_first_picture.h"

#include <QApplication>
#include <QMainWindow>
#include <QPainter>

using namespace Hesperin;

namespace {

class WrittenTexts : public QMainWindow {
public:
    explicit WrittenTexts(const MainForm& shown) : form(shown) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (const MenuEntry* menu :
             {&form.mnuFile, &form.mnuOptions, &form.mnuInfo, &form.mnuEdit, &form.mnuBalance})
            Write(painter, QApplication::font(), menu->Caption());
        for (int page = 0; page < TabControl::PageCount; ++page)
            if (form.Tablus.Tab(page).Visible())
                Write(painter, QApplication::font(), form.Tablus.Tab(page).Caption());
        for (const Control* control : form.Controls())
            if (!InPicture(*control))
                continue;
            else if (const auto* frame = dynamic_cast<const Frame*>(control))
                Write(painter, CaptionFont(), frame->Caption());
            else if (const auto* label = dynamic_cast<const Label*>(control))
                Write(painter, IsSmall(*label) ? CaptionFont() : HeadingFont(), label->Caption());
            else if (const auto* list = dynamic_cast<const ComboBox*>(control))
                Write(painter, HeadingFont(), list->Text());
            else if (const auto* field = dynamic_cast<const TextField*>(control))
                Write(painter, FigureFont(), field->Text());
            else if (const auto* button = dynamic_cast<const Button*>(control))
                Write(painter, FigureFont(), button->Caption());
    }

private:
    static bool InPicture(const Control& control) {
        for (const Control* part = &control; part != nullptr; part = part->Parent())
            if (!part->Visible())
                return false;
        return true;
    }

    bool IsSmall(const Label& label) const {
        return &label == &form.lblMin || &label == &form.lblMax;
    }

    void Write(QPainter& painter, const QFont& face, const QString& text) {
        constexpr int step = 12;
        y = (y + step) % height();
        painter.setFont(face);
        painter.drawText(0, y, text);
    }

    const MainForm& form;
    int y = 0;
};

} // namespace

int main(int argc, char** argv) {
    EarlyStart early;
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    early.Await();
    Program program(early.platform);
    if (!Form_Load(program, {std::nullopt, false}))
        return 1;
    WrittenTexts window(program.form);
    window.setFixedSize(1030, 704);
    window.show();
    const EndAfterFirstPicture end(window);
    return QApplication::exec();
}
