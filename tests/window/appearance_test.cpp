// No text is cut off and none is lost on its ground, in either language.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QStyleOptionButton>

#include <cmath>

namespace Hesperin {

namespace {

/// A window with all that it can show: every page on, every panel shown, results filled in.
struct FullWindow : WindowInUse {
    explicit FullWindow(Language language) : WindowInUse(language) {
        form.Abilities(29).SetTicked(true);
        form.Abilities(147).SetTicked(true);
        form.frmAM.SetVisible(true);
        for (const Control* control : form.Controls())
            if (control->Name().startsWith("lbl"))
                if (auto* label = dynamic_cast<Label*>(form.Find(control->Name())))
                    if (label->Caption().isEmpty())
                        label->SetCaption(QString("-32768"));
    }
};

/// Room for the text of a button or a box.
template <typename Button>
int RoomOf(const Button& button, QStyle::SubElement contents) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    return button.style()->subElementRect(contents, &option, &button).width();
}

QString TooWide(const QWidget& widget, const QString& text, int room) {
    const int width = QFontMetrics(widget.font()).horizontalAdvance(text);
    return width <= room ? QString() : QString("%1 wide, room for %2").arg(width).arg(room);
}

TEST(Texts, FitIntoTheirWidgets) {
    for (const Language language : {English, Russian}) {
        const FullWindow use(language);
        int checked = 0;
        const auto expectFits = [&](const QWidget& widget, const QString& text, int room) {
            ++checked;
            EXPECT_FALSE(text.isEmpty()) << widget.objectName().toStdString();
            EXPECT_EQ(TooWide(widget, text, room), "")
                << widget.objectName().toStdString() << ": " << text.toStdString();
        };
        for (const Control* control : use.form.Controls()) {
            QWidget* widget = use.window->WidgetOf(*control);
            if (const auto* label = qobject_cast<QLabel*>(widget))
                expectFits(*label, label->text(), label->contentsRect().width());
            else if (const auto* button = qobject_cast<QPushButton*>(widget))
                expectFits(*button, button->text(), RoomOf(*button, QStyle::SE_PushButtonContents));
            else if (const auto* box = qobject_cast<QCheckBox*>(widget))
                expectFits(*box, box->text(), RoomOf(*box, QStyle::SE_CheckBoxContents));
        }
        EXPECT_EQ(checked, 27 + 5 + 320);
    }
}

TEST(Texts, OfFramesStandWhollyInTheirLines) {
    constexpr int rows = 8;   // of the picture, above the line
    constexpr int margin = 6; // right of the caption
    for (const Language language : {English, Russian}) {
        const FullWindow use(language);
        int checked = 0;
        for (const Control* control : use.form.Controls()) {
            auto* frame = qobject_cast<QGroupBox*>(use.window->WidgetOf(*control));
            if (frame == nullptr)
                continue;
            ++checked;
            const QImage picture = frame->grab().toImage();
            const QRgb ground = frame->palette().color(QPalette::Window).rgb();
            int ink = 0, inkInMargin = 0;
            for (int x = 0; x < picture.width(); ++x)
                for (int y = 0; y < rows; ++y)
                    if (picture.pixel(x, y) != ground)
                        ++(x < picture.width() - margin ? ink : inkInMargin);
            EXPECT_GT(ink, 0) << control->Name().toStdString();
            EXPECT_EQ(inkInMargin, 0) << control->Name().toStdString();
        }
        EXPECT_EQ(checked, 49);
    }
}

TEST(Texts, InFieldsShrinkUntilTheyFit) {
    const WindowInUse use;
    use.Type("txtNC", "Swamp_drake_of_the_deep");
    for (const Control* control : use.form.Controls()) {
        auto* field = qobject_cast<QLineEdit*>(use.window->WidgetOf(*control));
        if (field == nullptr || field->text().isEmpty())
            continue;
        const auto* model = dynamic_cast<const TextField*>(control);
        const QString longest = model->MaxLength() == 0 ? field->text() : QString(model->MaxLength(), u'0');
        const_cast<TextField*>(model)->SetText(longest);
        EXPECT_EQ(TooWide(*field, field->text(), field->contentsRect().width() - 4), "")
            << control->Name().toStdString();
        EXPECT_LE(QFontMetrics(field->font()).height(), field->height());
    }
}

TEST(Texts, InDropDownsAreWholeInBothLanguages) {
    constexpr int mark = 28; // column of the mark beside the entry that is chosen
    for (const Language language : {English, Russian}) {
        const FullWindow use(language);
        for (const Control* control : use.form.Controls()) {
            auto* list = qobject_cast<QComboBox*>(use.window->WidgetOf(*control));
            if (list == nullptr)
                continue;
            list->showPopup();
            const QAbstractItemView& view = *list->view();
            ASSERT_TRUE(QTest::qWaitFor([&] { return view.isVisible(); }));
            for (int entry = 0; entry < list->count(); ++entry)
                EXPECT_EQ(TooWide(view, list->itemText(entry), view.viewport()->width() - mark), "")
                    << control->Name().toStdString() << ' ' << list->itemText(entry).toStdString();
            list->hidePopup();
        }
    }
}

/// How far apart two colours are in lightness, from 1 (the same) to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto lightness = [](const QColor& colour) {
        const auto part = [](double value) { return std::pow(value, 2.2); };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF()) + 0.05;
    };
    const double a = lightness(one), b = lightness(other);
    return std::max(a, b) / std::min(a, b);
}

TEST(Texts, AreNotLostOnTheirGround) {
    constexpr double least = 1.5;
    const FullWindow use(English);
    int checked = 0;
    for (const Control* control : use.form.Controls()) {
        const QWidget* widget = use.window->WidgetOf(*control);
        if (widget == nullptr)
            continue;
        const bool field =
            qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
        const bool button =
            qobject_cast<const QPushButton*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const auto colour = [&](QPalette::ColorRole role) { return widget->palette().color(group, role); };
            const QColor ink = colour(field ? QPalette::Text : button ? QPalette::ButtonText : QPalette::WindowText);
            const QColor ground = colour(field ? QPalette::Base : button ? QPalette::Button : QPalette::Window);
            EXPECT_GE(Contrast(ink, ground), least) << control->Name().toStdString() << ' ' << group;
            ++checked;
        }
    }
    EXPECT_GT(checked, 3 * 500);
}

TEST(Texts, HaveTheirColours) {
    const struct {
        const char* name;
        QColor ink;
    } cases[] = {
        {"txtAttack", {0, 0, 255}},         {"txtMana", {0, 0, 255}},       {"txtPower", {192, 0, 192}},
        {"txtGemf", {192, 0, 192}},         {"txtNC", {0, 64, 0}},          {"lblPowerRolvane", {255, 0, 0}},
        {"lblCostHesperin", {0, 192, 192}}, {"lblExpAverage", {0, 192, 0}}, {"lblPowerS", {255, 128, 0}},
        {"lblCostD", {255, 128, 0}},
    };
    const FullWindow use(English);
    for (const auto& test : cases) {
        const QWidget& widget = use.Find(test.name);
        EXPECT_EQ(widget.palette().color(widget.foregroundRole()).rgb(), test.ink.rgb()) << test.name;
    }
}

} // namespace

} // namespace Hesperin
