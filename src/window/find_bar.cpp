#include "window/find_bar.h"

#include "reports/find_abilities.h"
#include "text/fill.h"
#include "window/box_view.h"
#include "window/fonts.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int Height = 21; // the free strip above the boxes
constexpr QRect FieldPlace(6, 0, 300, Height);
constexpr QRect CountPlace(316, 0, 400, Height);

AllAbilityWords WordsOf(const MainForm& form) {
    AllAbilityWords words;
    for (int i = 1; i <= Ability::Count; ++i)
        words[static_cast<std::size_t>(i)] = {form.utbN(i).Text(), form.utbD(i).Text()};
    return words;
}

/// Whether the key writes something.
bool Writes(const QKeyEvent& event) {
    const QString text = event.text();
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return modifiers == Qt::NoModifier && !text.isEmpty() && text.at(0).isPrint();
}

} // namespace

FindBar::FindBar(Program& owner, QScrollArea& around, QWidget& page)
    : QWidget(around.parentWidget()), program(owner), scroll(around), field(new QLineEdit(this)),
      count(new QLabel(this)), boxes(Ability::Count + 1) {
    setGeometry(scroll.x(), scroll.y(), scroll.viewport()->width(), Height);
    setAutoFillBackground(true);
    field->setObjectName(QStringLiteral("FindAbility"));
    field->setGeometry(FieldPlace);
    field->setAcceptDrops(false); // a file belongs to the window
    count->setObjectName(QStringLiteral("FindAbility.Count"));
    count->setGeometry(CountPlace);
    for (QWidget* text : {static_cast<QWidget*>(field), static_cast<QWidget*>(count)})
        text->setFont(BoxFont());
    for (const CheckBox& box : program.form.Abilities) {
        auto* view = static_cast<BoxView*>(page.findChild<QCheckBox*>(box.Name()));
        boxes[static_cast<std::size_t>(box.ArrayIndex())] = view;
        view->installEventFilter(this);
        connect(view, &QCheckBox::clicked, this, [this, view] {
            if (isVisible()) // though the rule of the box may have sent the focus to a field
                view->setFocus();
        });
    }
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [this] { Search(); });
    hide();
}

void FindBar::Begin() {
    if (!isVisible())
        before = QApplication::focusWidget();
    languageId = program.state.LanguageId;
    field->setAccessibleName(program.form.mnuFindAbility.Caption());
    show();
    raise();
    field->setFocus();
    field->selectAll();
    Search();
}

void FindBar::End() {
    if (!isVisible())
        return;
    const bool wasInField = field->hasFocus();
    for (std::size_t i = 1; i < boxes.size(); ++i)
        boxes[i]->SetStanding(BoxView::Standing::Plain);
    current = 0;
    hide();
    if (wasInField && before != nullptr && before->isVisible())
        before->setFocus();
    else if (wasInField)
        boxes[found.empty() ? 1 : static_cast<std::size_t>(found.front())]->setFocus();
}

void FindBar::Follow() {
    if (!isVisible() || languageId == program.state.LanguageId)
        return;
    languageId = program.state.LanguageId;
    field->setAccessibleName(program.form.mnuFindAbility.Caption());
    Search();
}

void FindBar::Search() {
    current = 0;
    found = FindAbilities(field->text(), WordsOf(program.form));
    ShowFound();
}

void FindBar::ShowFound() {
    for (int i = 1; i <= Ability::Count; ++i)
        boxes[static_cast<std::size_t>(i)]->SetStanding(
            !std::binary_search(found.begin(), found.end(), i) ? BoxView::Standing::Dimmed
            : i == current                                     ? BoxView::Standing::Marked
                                                               : BoxView::Standing::Plain);
    const Messages& messages = program.state.messages;
    const auto place = std::find(found.begin(), found.end(), current);
    QString text;
    if (found.empty())
        text = messages.MsgNotFound;
    else if (place != found.end())
        text = Fill(messages.MsgFound,
                    {QString::number(place - found.begin() + 1), QString::number(found.size())});
    else
        text = Fill(messages.MsgFound,
                    {QString::number(found.size()), QString::number(Ability::Count)});
    count->setText(text);
}

/// To the next box that matches, or the one before; behind the last comes the first.
void FindBar::Go(int step) {
    if (found.empty())
        return;
    if (step > 0) {
        const auto next = std::upper_bound(found.begin(), found.end(), current);
        current = next == found.end() ? found.front() : *next;
    } else {
        const auto next = std::lower_bound(found.begin(), found.end(), current);
        current = next == found.begin() ? found.back() : *(next - 1);
    }
    BoxView& box = *boxes[static_cast<std::size_t>(current)];
    box.setFocus(Qt::TabFocusReason); // with the mark that tells where it is
    scroll.ensureWidgetVisible(&box, 0, 2 * Height);
    ShowFound();
}

bool FindBar::TakeKey(const QKeyEvent& event, bool fromBox) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Go((event.modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
        return true;
    case Qt::Key_Escape:
        End();
        return true;
    case Qt::Key_Backspace:
        break;
    case Qt::Key_Space: // in a box it ticks
        return false;
    default:
        if (!Writes(event))
            return false;
    }
    if (!fromBox)
        return false;
    field->setFocus();
    field->end(false);
    QKeyEvent typed(event.type(), event.key(), event.modifiers(), event.text());
    QCoreApplication::sendEvent(field, &typed);
    return true;
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (!isVisible())
        return false;
    if (event->type() == QEvent::KeyPress)
        return TakeKey(*static_cast<const QKeyEvent*>(event), watched != field);
    if (event->type() == QEvent::FocusIn && watched != field) {
        const auto box = std::find(boxes.begin(), boxes.end(), watched);
        current = static_cast<int>(box - boxes.begin());
        ShowFound();
    }
    return false;
}

} // namespace Hesperin
