#pragma once

#include "app/program.h"
#include "window/standing_panel.h"

#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>

namespace Hesperin {

class FindBar;

/// The tab control with its five pages. A page that is off has no tab; when it was in front, the
/// first page comes forward. A page is built when it is first shown; where there is no room for it,
/// it scrolls.
class TabView : public QWidget {
public:
    /// `pageWidth` pixels are wanted for the pages; their height is the given one.
    TabView(Program& program, QWidget* parent, const QRect& place, int pageWidth);
    ~TabView() override;
    TabView(const TabView&) = delete;
    TabView& operator=(const TabView&) = delete;

    /// Brings the next page forward that is on, or the one before (`step` is 1 or -1); behind the
    /// last comes the first.
    void ShowNeighbour(int step);

    /// Brings the abilities forward and lets the user look for one.
    void FindAbility();

    /// What the user does has changed something.
    void Follow();

private:
    class PageView;

    void BuildPage(int page);
    void ShowPage(int page);
    void FollowFocus(const QWidget* before, QWidget* now);

    Program& program;
    QTabBar* bar;
    QScrollArea* scroll;
    QStackedWidget* stack;
    FindBar* finder = nullptr; ///< from its first use on
    std::array<bool, TabControl::PageCount> built{};
    std::vector<std::unique_ptr<PageView>> pages;
    std::unique_ptr<StandingPanel> standing;
};

} // namespace Hesperin
