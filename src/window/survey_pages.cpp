#include "window/survey_pages.h"

#include "text/fill.h"
#include "window/palette.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace Hesperin {

namespace {

constexpr int RowHeight = 22;

/// What both tables have in common: whole rows, one at a time, read-only.
void Dress(QTableView& table, const char* name) {
    table.setObjectName(QLatin1String(name));
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(RowHeight);
    table.horizontalHeader()->setHighlightSections(false);
}

/// Width of a column whose cells are wider than its heading; 0: the heading's.
int WidthOf(Column column) {
    switch (column) {
    case Column::Name:
        return 150;
    case Column::Town:
        return 100;
    case Column::File:
    case Column::Problem:
        return 260;
    case Column::Abilities:
        return 400;
    default:
        return 0;
    }
}

} // namespace

SurveyPages::SurveyPages(const Program& owner)
    : program(owner), rows(owner, view), findings(owner, view), table(new QTableView),
      findingsTable(new QTableView), picture(new DeviationView(owner, view, nullptr)),
      hint(new QLabel) {
    setObjectName(QStringLiteral("SurveyPages"));
    BuildTable();
    BuildFindings();
    auto* around = new QScrollArea;
    around->setWidget(picture);
    around->setWidgetResizable(true);
    around->setFrameShape(QFrame::NoFrame);
    around->setFocusPolicy(Qt::NoFocus);
    picture->choose = [this](std::size_t row) { Choose(row); };
    picture->open = [this](std::size_t row) { open(row); };

    auto* halves = new QSplitter(Qt::Vertical);
    halves->setObjectName(QStringLiteral("SurveyHalves"));
    halves->addWidget(table);
    halves->addWidget(around);
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 2);
    halves->setChildrenCollapsible(false);
    halves->setSizes({320, 260});
    addTab(halves, QString());
    addTab(findingsTable, QString());
}

void SurveyPages::BuildTable() {
    Dress(*table, "SurveyTable");
    table->setModel(&rows);
    QHeaderView& heading = *table->horizontalHeader();
    for (int place = 0; place < static_cast<int>(Column::Count); ++place)
        heading.moveSection(heading.visualIndex(static_cast<int>(
                                ColumnsInOrder()[static_cast<std::size_t>(place)])),
                            place);
    heading.setSectionsMovable(true);
    heading.setSectionsClickable(true);
    table->installEventFilter(this);
    hint->setObjectName(QStringLiteral("SurveyHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    (new QVBoxLayout(table->viewport()))->addWidget(hint);
    connect(&heading, &QHeaderView::sectionClicked, this, [this](int column) { SortBy(column); });
    connect(table, &QTableView::activated, this, [this](const QModelIndex& index) {
        open(view.Shown()[static_cast<std::size_t>(index.row())]);
    });
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { picture->Select(Chosen()); });
}

void SurveyPages::BuildFindings() {
    Dress(*findingsTable, "SurveyFindings");
    findingsTable->setModel(&findings);
    findingsTable->horizontalHeader()->setStretchLastSection(true);
    constexpr int widths[] = {130, 170, 60};
    for (int part = 0; part < static_cast<int>(std::size(widths)); ++part)
        findingsTable->setColumnWidth(part, widths[part]);
    connect(findingsTable, &QTableView::activated, this, [this](const QModelIndex& index) {
        if (const auto row = RowOfInnerPath(view.Whole(), findings.At(index.row()).file))
            open(*row);
    });
}

void SurveyPages::Load(std::shared_ptr<const Survey> survey) {
    Rearrange([&] {
        view = SurveyView(std::move(survey));
        view.Filter(chosenFilter);
        if (order)
            view.Sort(*order, program.state.messages);
    });
}

void SurveyPages::Filter(const SurveyFilter& filter) {
    chosenFilter = filter;
    Rearrange([&] { view.Filter(filter); });
}

/// The first click on a column sorts it rising, the next one falling, and so on.
void SurveyPages::SortBy(int column) {
    const bool again = order && order->column == static_cast<Column>(column);
    order = {static_cast<Column>(column), again && !order->falling};
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->horizontalHeader()->setSortIndicator(column, order->falling ? Qt::DescendingOrder
                                                                       : Qt::AscendingOrder);
    Rearrange([&] { view.Sort(*order, program.state.messages); });
}

/// The creature that was chosen stays so while it is shown.
template <typename Change>
void SurveyPages::Rearrange(Change change) {
    const auto chosen = Chosen();
    const QString file = chosen ? view.Whole().rows[*chosen].File() : QString();
    rows.Reset(change);
    findings.LookAgain();
    Refresh();
    const auto row = chosen ? RowOfInnerPath(view.Whole(), file) : std::nullopt;
    if (row && view.PlaceOf(*row))
        Choose(*row);
    else
        picture->Select(std::nullopt);
}

void SurveyPages::Refresh() {
    const Messages& messages = program.state.messages;
    picture->LookAgain();
    hint->setVisible(view.Shown().empty());
    hint->setText(!view.Loaded()              ? messages.SurveyWindowEmpty
                  : view.Whole().rows.empty() ? messages.SurveyWindowNothing
                                              : messages.SurveyWindowNoMatch);
    setTabText(0, messages.SurveyCreatures);
    setTabText(1, Fill(messages.SurveyWindowFindings, {QString::number(findings.rowCount({}))}));
}

void SurveyPages::Choose(std::size_t row) {
    const auto place = view.PlaceOf(row);
    if (!place)
        return;
    const QModelIndex old = table->currentIndex();
    const int column = old.isValid() ? old.column() : static_cast<int>(Column::Name);
    table->setCurrentIndex(rows.index(static_cast<int>(*place), column));
}

std::optional<std::size_t> SurveyPages::Chosen() const {
    const QModelIndex index = table->currentIndex();
    const auto place = static_cast<std::size_t>(index.row());
    if (!index.isValid() || place >= view.Shown().size())
        return std::nullopt;
    return view.Shown()[place];
}

/// The user may make them wider; another language fits them anew.
void SurveyPages::FitColumns() {
    if (std::exchange(fittedFor, program.state.LanguageId) == program.state.LanguageId)
        return;
    const QHeaderView& heading = *table->horizontalHeader();
    constexpr int mark = 8; // of the order, beside the heading
    for (int column = 0; column < static_cast<int>(Column::Count); ++column) {
        const int width = WidthOf(static_cast<Column>(column));
        table->setColumnWidth(column, width != 0 ? width : heading.sectionSizeHint(column) + mark);
    }
}

void SurveyPages::Retranslate() {
    const Messages& messages = program.state.messages;
    rows.Retranslate();
    findings.LookAgain();
    Refresh();
    FitColumns();
    table->setAccessibleName(messages.SurveyCreatures);
    findingsTable->setAccessibleName(
        QString(messages.SurveyWindowFindings).remove(QLatin1String(" (%1)")));
    picture->setAccessibleName(messages.SurveyPicture);
}

/// The space bar sorts by the column of the current cell.
bool SurveyPages::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space && table->currentIndex().isValid()) {
        SortBy(table->currentIndex().column());
        return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

} // namespace Hesperin
