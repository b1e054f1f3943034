#include "window/tab_view.h"

#include "window/box_pages.h"
#include "window/file_view.h"
#include "window/parameters_page.h"
#include "window/results_panels.h"
#include "window/units.h"

namespace Hesperin {

namespace {

constexpr int BarHeight = 27;
constexpr int LongestCaption = 260; // pixels; a long file name is shortened in the middle

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

TabView::TabView(Program& owner, QWidget* parent)
    : QWidget(parent), program(owner), bar(new QTabBar(this)), stack(new QStackedWidget(this)) {
    TabControl& tablus = program.form.Tablus;
    setObjectName(tablus.Name());
    setGeometry(PixelRect(30, 0, 15315, 9255));
    bar->setObjectName(QStringLiteral("Tablus.Bar"));
    bar->setGeometry(0, 2, width(), BarHeight - 2);
    bar->setDrawBase(true);
    bar->setElideMode(Qt::ElideNone);
    stack->setGeometry(0, BarHeight, width(), height() - BarHeight);
    for (int page = 0; page < TabControl::PageCount; ++page) {
        auto* widget = new QWidget;
        widget->setObjectName(tablus.Tab(page).Name());
        stack->addWidget(widget);
        bar->addTab(QString());
        pages.push_back(std::make_unique<PageView>(tablus.Tab(page), page, *bar));
    }
    connect(bar, &QTabBar::currentChanged, this, [this](int page) { ShowPage(page); });
    ShowPage(0);
}

TabView::~TabView() = default;

void TabView::BuildAll() {
    for (int page = 0; page < TabControl::PageCount; ++page)
        BuildPage(page);
}

void TabView::BuildPage(int page) {
    if (std::exchange(built.at(static_cast<std::size_t>(page)), true))
        return;
    QWidget& widget = *stack->widget(page);
    switch (page) {
    case 0:
        BuildParametersPage(program.form, widget, BarHeight);
        BuildResultPanels(program, widget, BarHeight);
        break;
    case 1:
        BuildAbilitiesPage(program, widget, BarHeight);
        break;
    case 2:
        BuildSpellsPage(program, widget, BarHeight);
        break;
    case 3:
        BuildSpecabilitiesPage(program, widget, BarHeight);
        break;
    default:
        (new FileView(program.form.RTBData, &widget))
            ->setGeometry(PixelRect(120, 480, 15045, 8595).translated(0, -BarHeight));
    }
}

void TabView::ShowPage(int page) {
    BuildPage(page);
    stack->setCurrentIndex(page);
}

} // namespace Hesperin
