#pragma once

#include "engine/program.h"

#include <QStackedWidget>
#include <QTabBar>

namespace Hesperin {

/// The tab control with its five pages. A page that is off has no tab; when it was in front, page 0
/// comes forward. A page is built when it is first shown.
class TabView : public QWidget {
public:
    TabView(Program& program, QWidget* parent);
    ~TabView() override;
    TabView(const TabView&) = delete;
    TabView& operator=(const TabView&) = delete;

    /// Builds the pages that haven't been shown yet, for those who look at all widgets.
    void BuildAll();

private:
    class PageView;

    void BuildPage(int page);
    void ShowPage(int page);

    Program& program;
    QTabBar* bar;
    QStackedWidget* stack;
    std::array<bool, TabControl::PageCount> built{};
    std::vector<std::unique_ptr<PageView>> pages;
};

} // namespace Hesperin
