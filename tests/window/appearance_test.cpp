// Everything stands whole in the window, no text is cut off and none is lost on its background.
#include "form/form_lists.h"
#include "window/agreement.h"
#include "window/palette.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>

#include <cmath>

namespace Hesperin {

namespace {

/// A window with all that it can show: every page on, every panel shown, results filled in.
struct FullWindow : WindowInUse {
    explicit FullWindow(Language language, const QByteArray& contrast = "")
        : WindowInUse(language, [&](const QString& place) { WriteFile(place + "/contrast.ini", contrast); }) {
        for (const int ability : {29, 147})
            form.Abilities(ability).SetTicked(true);
        form.frmAM.SetVisible(true);
        for (const ResultRow& row : ResultRows)
            (form.*row.place.label).SetCaption(QString("-32768"));
        QTest::qWait(1); // the mark of what isn't saved follows
    }
};

void ExpectFits(const QWidget& widget, const QString& text, int room) {
    EXPECT_LE(QFontMetrics(widget.font()).horizontalAdvance(text), room) << text.toStdString();
}

/// The text of a button or a box has room in it.
template <typename Button>
void ExpectButtonFits(const Button& button, QStyle::SubElement contents) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    ExpectFits(button, button.text(), button.style()->subElementRect(contents, &option, &button).width());
}

/// The caption stands wholly in the line of the frame.
void ExpectWhole(QGroupBox& frame) {
    constexpr int rows = 8;   // of the picture, above the line
    constexpr int margin = 6; // right of the caption
    const QImage picture = frame.grab().toImage();
    int coloured[] = {0, 0}; // in the margin, left of it
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < rows; ++y)
            coloured[x < picture.width() - margin] += picture.pixelColor(x, y) != QColor(Colours().Background);
    EXPECT_TRUE(coloured[0] == 0 && coloured[1] > 0);
}

TEST(Texts, FitIntoTheirWidgets) {
    for (const Language language : {English, Russian}) {
        const FullWindow use(language);
        EXPECT_EQ(use.ForEach<QLabel>([](auto& l) { ExpectFits(l, l.text(), l.contentsRect().width()); }), 27);
        EXPECT_EQ(use.ForEach<QPushButton>([](auto& b) { ExpectButtonFits(b, QStyle::SE_PushButtonContents); }), 5);
        EXPECT_EQ(use.ForEach<QCheckBox>([](auto& box) { ExpectButtonFits(box, QStyle::SE_CheckBoxContents); }), 320);
        EXPECT_EQ(use.ForEach<QGroupBox>(ExpectWhole), 49);
        const int lists = use.ForEach<QComboBox>([](QComboBox& list) {
            constexpr int mark = 28; // column of the mark beside the entry that is chosen
            list.showPopup();
            ASSERT_TRUE(QTest::qWaitFor([&] { return list.view()->isVisible(); }));
            for (int entry = 0; entry < list.count(); ++entry)
                ExpectFits(*list.view(), list.itemText(entry), list.view()->viewport()->width() - mark);
            list.hidePopup();
        });
        EXPECT_EQ(lists, 9);
    }
}

TEST(Fields, ShrinkTheirTextUntilItFits) {
    const FullWindow use(English);
    const auto& nameField = use.Find<QLineEdit>("txtNC");
    use.ForEach<QLineEdit>([&](const QLineEdit& field) {
        EXPECT_EQ(field.font() == nameField.font(), &field == &nameField) << "the name has a font of its own";
    });
    QString name; // somewhat too wide, whatever the font
    while (QFontMetrics(nameField.font()).horizontalAdvance(name) < nameField.width() * 5 / 4)
        name += u'm';
    for (Control* control : use.form.Controls())
        if (auto* field = dynamic_cast<TextField*>(control))
            field->SetText(field == &use.form.txtNC ? name : QString(field->MaxLength(), u'0'));
    use.ForEach<QLineEdit>([](const QLineEdit& field) {
        ExpectFits(field, field.text(), field.contentsRect().width() - 4);
        EXPECT_LE(QFontMetrics(field.font()).height(), field.height());
    });
}

/// How far apart two colours are in lightness, from 1 (the same) to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto lightness = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF()) + 0.05;
    };
    const double a = lightness(one), b = lightness(other);
    return std::max(a, b) / std::min(a, b);
}

/// Expects this contrast, at least, of each text with its background.
void ExpectTexts(const FullWindow& use, double least) {
    use.ForEach<QWidget>([&](const QWidget& widget) {
        const bool field = qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget);
        const bool button = qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QComboBox*>(&widget);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const auto colour = [&](QPalette::ColorRole role) { return widget.palette().color(group, role); };
            const QColor text = colour(field ? QPalette::Text : button ? QPalette::ButtonText : QPalette::WindowText);
            const QColor behind = field    ? colour(QPalette::Base)
                                  : button ? colour(QPalette::Button)
                                           : use.window->palette().color(group, QPalette::Window);
            EXPECT_GE(Contrast(text, behind), least) << group;
        }
    });
}

TEST(Window, FitsTheScreenAndHoldsItsControlsWhole) {
    const struct {
        QSize available, window;
        bool scrollsDown, scrollsAside;
    } cases[] = {
        {{1920, 1080}, {1030, 704}, false, false}, {{1030, 741}, {1030, 704}, false, false},
        {{1366, 720}, {1030, 683}, false, false},  {{1366, 696}, {1044, 659}, true, false},
        {{1280, 648}, {1044, 611}, true, false},   {{1024, 768}, {1024, 704}, false, false},
        {{1024, 696}, {1024, 659}, true, false},   {{800, 600}, {800, 563}, true, true},
    };
    for (const auto& [available, window, scrollsDown, scrollsAside] : cases) {
        SCOPED_TRACE(available.width() * 10000 + available.height());
        const WindowInUse use(Russian, {}, available);
        EXPECT_EQ(use.window->size(), window);
        EXPECT_EQ(use.window->minimumSize(), use.window->maximumSize());
        const auto& scroll = use.Find<QScrollArea>("Tablus.Scroll");
        EXPECT_EQ(scroll.verticalScrollBar()->isVisible(), scrollsDown);
        EXPECT_EQ(scroll.horizontalScrollBar()->isVisible(), scrollsAside);
        use.ForEach<QWidget>(
            [](const QWidget& widget) { EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry())); });
    }
}

TEST(Colours, LoseNoTextOnItsBackground) { ExpectTexts(FullWindow(English), 1.5); }

/// The contrast with the window of what stands out most in a part of the widget's picture.
double Strongest(QWidget& widget, const QRect& part) {
    const QImage picture = widget.grab(part).toImage();
    double strongest = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            strongest = std::max(strongest, Contrast(picture.pixelColor(x, y), QColor(Colours().Background)));
    return strongest;
}

TEST(Colours, OfHighContrastStandOut) {
    const struct {
        Colour colour, background;
        double least;
    } pairs[] = {
        {&ColourTable::StatusTitle, &ColourTable::AboutBackground, 4.5},
        {&ColourTable::StatusTitle, &ColourTable::StatusShadow, 4.5},
        {&ColourTable::Accent, &ColourTable::Field, 4.5}, // a selected text
        {&ColourTable::TextOff, &ColourTable::FieldOff, 4.5},
        {&ColourTable::Alternative, &ColourTable::Background, 4.5},
        {&ColourTable::Line, &ColourTable::Background, 3},
        {&ColourTable::FocusLine, &ColourTable::Background, 3},
    };
    for (const auto& [colour, background, least] : pairs)
        EXPECT_GE(Contrast(HighContrastColours.*colour, HighContrastColours.*background), least) << &pairs;

    for (const bool fromStart : {false, true}) {
        const FullWindow use(English, fromStart ? "HIGH" : "GIVEN");
        const QImage given = use.window->grab().toImage();
        const auto change = [&] { use.Pick({"mnuOptions", "mnuHighContrast"}); };
        if (!fromStart)
            change();
        ExpectTexts(use, 4.5);
        use.ForEach<QLabel>(
            [](QLabel& label) { EXPECT_TRUE(label.text().isEmpty() || Strongest(label, label.rect()) >= 4.5); });
        use.ForEach<QWidget>([](QWidget& widget) { // outlines, at the left edge
            const QRect edge(0, 5, 3, widget.height() - 10);
            const bool page = widget.objectName().startsWith("Tablus");
            EXPECT_TRUE(page || qobject_cast<QLabel*>(&widget) || Strongest(widget, edge) >= 3);
        });
        EXPECT_GE(Strongest(use.Find("Tablus.Bar"), {0, 5, 3, 10}), 3);
        change();
        EXPECT_EQ(use.window->grab().toImage() == given, !fromStart);
    }
}

} // namespace

} // namespace Hesperin
