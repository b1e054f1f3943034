#pragma once

#include "window/survey_window.h"
#include "window/window_in_use.h"

#include <QHeaderView>

namespace Hesperin {

/// The window of the survey, opened by the menu, and what the user's hands do with it.
class SurveyInUse {
public:
    explicit SurveyInUse(const WindowInUse& beside) : use(beside), window(Open(beside)) {}

    const WindowInUse& use;
    SurveyWindow& window;

    template <typename T = QWidget>
    T& Find(const QString& name) const {
        auto* found = window.findChild<T*>(name);
        if (found == nullptr)
            qFatal("no %s", qPrintable(name));
        return *found;
    }

    void Press(const QString& name) const { WindowInUse::Click(Find(name)); }

    /// A key of the window itself.
    void Key(Qt::Key key) const {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the survey did not come forward");
        QTest::keyClick(window.windowHandle(), key);
    }

    QTableView& Table() const { return Find<QTableView>("SurveyTable"); }

    int Count() const { return Table().model()->rowCount(); }

    QString Cell(int row, Column column) const {
        return Table().model()->index(row, static_cast<int>(column)).data().toString();
    }

    QStringList Names() const {
        QStringList names;
        for (int row = 0; row < Count(); ++row)
            names.append(Cell(row, Column::Name));
        return names;
    }

    QString Chosen() const {
        return Table().currentIndex().isValid() ? Cell(Table().currentIndex().row(), Column::Name) : QString();
    }

    void ClickHeading(Column column) const {
        const QHeaderView& heading = *Table().horizontalHeader();
        const int section = static_cast<int>(column);
        Table().scrollTo(Table().model()->index(0, section));
        WindowInUse::Click(*heading.viewport(), {heading.sectionViewportPosition(section) + 9, heading.height() / 2});
    }

    /// The middle of a cell that is in sight, in the table's viewport.
    QPoint PlaceOf(int row) const {
        return Table().visualRect(Table().model()->index(row, static_cast<int>(Column::Name))).center();
    }

private:
    static SurveyWindow& Open(const WindowInUse& use) {
        use.Pick({"mnuBalance", "mnuSurvey"});
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* survey = dynamic_cast<SurveyWindow*>(top); survey && survey->isVisible()) {
                if (!QTest::qWaitForWindowExposed(survey))
                    qFatal("the survey did not come up");
                return *survey;
            }
        qFatal("no survey");
    }
};

} // namespace Hesperin
