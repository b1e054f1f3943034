#include "window/tab_view.h"

#include "window/box_pages.h"
#include "window/file_view.h"
#include "window/find_bar.h"
#include "window/parameters_page.h"
#include "window/results_panels.h"
#include "window/standing_panel.h"
#include "window/units.h"
#include "window/window_fit.h"

#include <QApplication>

namespace Hesperin {

namespace {

constexpr int BarHeight = 27;
constexpr int LongestCaption = 260; // pixels; a long file name is shortened in the middle

/// Lets the tab key lead from `before` through the widgets of the page; a page that is built late
/// would come behind all others.
void QueueForTabKey(QWidget& before, const QWidget& page) {
    QWidget* last = &before;
    for (QWidget* widget : page.findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus)
            QWidget::setTabOrder(std::exchange(last, widget), widget);
}

} // namespace

/// Shows one page's caption and flags as a tab.
class TabView::PageView : public ControlView {
public:
    PageView(TabPage& shown, int place, QTabBar& tabs) : page(shown), index(place), bar(tabs) {
        page.SetView(this);
        Sync();
    }
    ~PageView() override { page.SetView(nullptr); }
    PageView(const PageView&) = delete;
    PageView& operator=(const PageView&) = delete;

    void Changed(Control&, Property) override { Sync(); }

private:
    void Sync() {
        const QFontMetrics metrics(bar.font());
        QString text = metrics.elidedText(page.Caption(), Qt::ElideMiddle, LongestCaption);
        bar.setTabText(index, text.replace(u'&', QLatin1String("&&"))); // no mnemonic
        bar.setTabToolTip(index, page.Caption());
        if (bar.currentIndex() == index && !page.On())
            bar.setCurrentIndex(0); // before the bar looks for a neighbour
        bar.setTabEnabled(index, page.Enabled());
        bar.setTabVisible(index, page.Visible());
    }

    TabPage& page;
    int index;
    QTabBar& bar;
};

TabView::TabView(Program& owner, QWidget* parent, const QRect& place, int pageWidth)
    : QWidget(parent), program(owner), bar(new QTabBar(this)), scroll(new QScrollArea(this)),
      stack(new QStackedWidget) {
    TabControl& tablus = program.form.Tablus;
    setObjectName(tablus.Name());
    setGeometry(place);
    bar->setObjectName(QStringLiteral("Tablus.Bar"));
    bar->setGeometry(0, 2, width(), BarHeight - 2);
    bar->setDrawBase(true);
    bar->setElideMode(Qt::ElideNone);
    stack->setFixedSize(pageWidth, WholeTabsHeight() - BarHeight);
    scroll->setObjectName(QStringLiteral("Tablus.Scroll"));
    scroll->setGeometry(0, BarHeight, width(), height() - BarHeight);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(stack);
    for (int page = 0; page < TabControl::PageCount; ++page) {
        auto* widget = new QWidget;
        widget->setObjectName(tablus.Tab(page).Name());
        stack->addWidget(widget);
        bar->addTab(QString());
        pages.push_back(std::make_unique<PageView>(tablus.Tab(page), page, *bar));
    }
    connect(qApp, &QApplication::focusChanged, this, &TabView::FollowFocus);
    connect(bar, &QTabBar::currentChanged, this, [this](int page) { ShowPage(page); });
    ShowPage(0);
}

TabView::~TabView() {
    disconnect(qApp, nullptr, this, nullptr); // the page in front loses the focus when it is gone
}

void TabView::BuildPage(int page) {
    if (std::exchange(built.at(static_cast<std::size_t>(page)), true))
        return;
    QWidget& widget = *stack->widget(page);
    widget.resize(stack->size());
    switch (static_cast<Page>(page)) {
    case Page::Parameters:
        BuildParametersPage(program.form, widget, BarHeight);
        BuildResultPanels(program, widget, BarHeight);
        standing = std::make_unique<StandingPanel>(program.form, widget, BarHeight);
        break;
    case Page::Abilities:
        BuildAbilitiesPage(program, widget, BarHeight);
        break;
    case Page::Spells:
        BuildSpellsPage(program.form, widget, BarHeight);
        break;
    case Page::Specabilities:
        BuildSpecabilitiesPage(program.form, widget, BarHeight);
        break;
    case Page::File:
        (new FileView(program.form.RTBData, &widget))
            ->setGeometry(PixelRect(120, 480, 15045, 8595)
                              .translated(0, -BarHeight)
                              .intersected(widget.rect())
                              .intersected({QPoint(), scroll->maximumViewportSize()}));
        break;
    case Page::Count:
        break;
    }
    QueueForTabKey(*bar, widget);
}

void TabView::ShowPage(int page) {
    BuildPage(page);
    if (finder != nullptr)
        finder->End();
    scroll->ensureVisible(0, 0); // unless what gets the focus now stands lower
    stack->setCurrentIndex(page);
}

void TabView::ShowNeighbour(int step) {
    int page = bar->currentIndex();
    do
        page = (page + step + bar->count()) % bar->count();
    while (!program.form.Tablus.Tab(page).On());
    bar->setCurrentIndex(page);
}

void TabView::FindAbility() {
    constexpr int page = static_cast<int>(Page::Abilities);
    bar->setCurrentIndex(page);
    if (finder == nullptr) {
        finder = new FindBar(program, *scroll, *stack->widget(page));
        setTabOrder(bar, &finder->Field());
    }
    finder->Begin();
}

void TabView::Follow() {
    if (finder != nullptr)
        finder->Follow();
}

/// The mouse has only reached what is in sight.
void TabView::FollowFocus(const QWidget* before, QWidget* now) {
    const bool byMouse = before == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!byMouse && stack->isAncestorOf(now))
        scroll->ensureWidgetVisible(now);
}

} // namespace Hesperin
