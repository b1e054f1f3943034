#pragma once

#include "app/program.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>

#include <vector>

namespace Hesperin {

class BoxView;

/// The field above the boxes of the abilities' page while the user looks for one. What doesn't
/// match is dimmed; Enter goes on from box to box of those that match, where Space ticks; what is
/// typed there goes on in the field; Escape ends.
class FindBar : public QWidget {
public:
    /// Lies over the top of `scroll`, in which `page` scrolls, the page with all its boxes.
    FindBar(Program& program, QScrollArea& scroll, QWidget& page);

    /// Shows the field, with what was looked for last.
    void Begin();

    /// Everything is as before.
    void End();

    /// What the program knows has changed, its language for instance.
    void Follow();

    /// Where the tab key comes in.
    QWidget& Field() const { return *field; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Search();
    void Go(int step);
    bool TakeKey(const QKeyEvent& event, bool fromBox);
    void ShowFound();

    Program& program;
    QScrollArea& scroll;
    QLineEdit* field;
    QLabel* count;
    std::vector<BoxView*> boxes; ///< of the abilities, from 1
    std::vector<int> found;
    int current = 0; ///< the ability that the focus went to last; 0: none
    QPointer<QWidget> before;
    std::uint8_t languageId = 0;
};

} // namespace Hesperin
