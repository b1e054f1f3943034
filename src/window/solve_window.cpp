#include "window/solve_window.h"

#include "app/solve_now.h"
#include "app/take_over.h"
#include "localisation/error_text.h"
#include "localisation/explanation_words.h"
#include "text/numbers.h"
#include "window/palette.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>

namespace Hesperin {

namespace {

constexpr int OfferedChoices = 3; ///< values that are offered of a parameter
enum SolveColumns {
    NameColumn,
    NowColumn,
    FirstChoice,
    WordsColumn = FirstChoice + OfferedChoices,
    ColumnCount
};

// Of a cell whose value can be taken.
constexpr int ValueRole = Qt::UserRole;
constexpr int ParameterRole = Qt::UserRole + 1;

constexpr int SolveRowHeight = 26;

} // namespace

SolveWindow::SolveWindow(Program& owner)
    : CompanionWindow(owner, "SolveWindow"), goalLabel(new QLabel), goal(new QLineEdit),
      tierLabel(new QLabel), tier(new QComboBox), byScale(new QCheckBox), head(new QLabel),
      table(new QTableWidget), hint(new QLabel) {
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(10, 10, 10, 10);
    lines->setSpacing(10);
    lines->addWidget(BuildTop());
    head->setObjectName(QStringLiteral("SolveHead"));
    head->setTextFormat(Qt::PlainText);
    head->setWordWrap(true);
    head->setMinimumHeight(2 * fontMetrics().lineSpacing());
    head->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lines->addWidget(head);
    BuildTable();
    lines->addWidget(table, 1);
    lines->addWidget(hint);
    PlaceIn(Qt::BottomRightCorner, {740, 380});
}

QWidget* SolveWindow::BuildTop() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    goal->setObjectName(QStringLiteral("SolveGoal"));
    goal->setMaxLength(9);
    goal->setFixedWidth(90);
    goalLabel->setBuddy(goal);
    tier->setObjectName(QStringLiteral("SolveTier"));
    tier->addItem(QStringLiteral("—"));
    for (int one = 1; one <= ParameterRanges[Parameter::Tier].highest; ++one)
        tier->addItem(QString::number(one));
    tierLabel->setBuddy(tier);
    byScale->setObjectName(QStringLiteral("SolveByScale"));
    for (QWidget* widget : std::initializer_list<QWidget*>{goalLabel, goal, tierLabel, tier})
        row->addWidget(widget);
    row->addStretch();
    row->addWidget(byScale);
    connect(goal, &QLineEdit::textEdited, this, [this] {
        const QSignalBlocker still(tier);
        tier->setCurrentIndex(0);
        Refresh();
    });
    connect(tier, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index > 0)
            goal->clear();
        Refresh();
    });
    connect(byScale, &QCheckBox::toggled, this, [this] { Refresh(); });
    return line;
}

void SolveWindow::BuildTable() {
    table->setObjectName(QStringLiteral("SolveTable"));
    table->setColumnCount(ColumnCount);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(SolveRowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setMinimumSectionSize(56);
    table->installEventFilter(this);
    connect(table, &QTableWidget::itemClicked, this,
            [this](const QTableWidgetItem* item) { Take(item); });
}

void SolveWindow::ShowWithGoal() {
    if (goal->text().isEmpty() && tier->currentIndex() == 0) {
        const double inFile = TextToNumber(program.form.txtPower.Text());
        goal->setText(inFile >= 1 ? program.form.txtPower.Text()
                                  : program.form.lblPowerAverage.Caption());
    }
    ComeForward();
    goal->setFocus();
    goal->selectAll();
}

void SolveWindow::Retranslate() {
    const Messages& messages = program.state.messages;
    setWindowTitle(messages.SolveWindowTitle);
    goalLabel->setText(messages.SolveWindowGoal);
    tierLabel->setText(messages.SolveWindowTier);
    byScale->setText(messages.SolveWindowByScale);
    for (const QLabel* label : {goalLabel, tierLabel})
        label->buddy()->setAccessibleName(QString(label->text()).remove(u'&'));
    table->setAccessibleName(messages.SolveWindowTitle);
    hint->setText(messages.SolveWindowHint);
    table->setHorizontalHeaderLabels({messages.SolveWindowParameter, messages.SolveWindowNow,
                                      messages.SolveWindowTake, QString(), QString(),
                                      messages.SolveWindowGives});
    table->horizontalHeaderItem(WordsColumn)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeaderItem(NameColumn)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

std::optional<SolveGoal> SolveWindow::Goal() const {
    return ReadSolveGoal(tier->currentIndex() > 0
                             ? QLatin1String("Tier=") + tier->currentText()
                             : QLatin1String("Power=") + goal->text().trimmed());
}

void SolveWindow::Refresh() {
    Retranslate();
    const bool surveyed = program.survey != nullptr;
    byScale->setEnabled(surveyed);
    const auto wanted = Goal();
    if (!wanted) {
        table->setRowCount(0);
        head->setText(program.state.messages.SolveWindowNoGoal);
        return;
    }
    const auto report = SolveNow(program, *wanted, surveyed && byScale->isChecked());
    if (!report) {
        table->setRowCount(0);
        head->setText(ErrorReason(program.state.messages, report.Why()));
        return;
    }
    ShowReport(*report);
}

void SolveWindow::ShowReport(const SolveReport& report) {
    head->setText(SolveHead(report, program.state.LanguageId));
    table->setRowCount(static_cast<int>(report.solutions.size()));
    for (int row = 0; row < table->rowCount(); ++row)
        ShowRow(row, report);
}

void SolveWindow::ShowRow(int row, const SolveReport& report) {
    const Solution& solution = report.solutions[static_cast<std::size_t>(row)];
    const std::uint8_t language = program.state.LanguageId;
    const std::int16_t current = report.parameters[solution.parameter];
    const auto put = [&](int column, const QString& words, Qt::Alignment alignment) {
        auto* item = table->item(row, column);
        if (item == nullptr)
            table->setItem(row, column, item = new QTableWidgetItem);
        item->setText(words);
        item->setTextAlignment(alignment | Qt::AlignVCenter);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setData(ValueRole, {});
        return item;
    };
    put(NameColumn, ParameterIn(language, solution.parameter), Qt::AlignLeft);
    put(NowColumn, QString::number(current), Qt::AlignRight);
    const QString words = SolutionText(solution, language);
    put(WordsColumn, words, Qt::AlignLeft)->setToolTip(words); // for a narrow window
    const auto choices = ChoicesOf(solution, current, OfferedChoices);
    for (std::size_t i = 0; i < OfferedChoices; ++i) {
        const bool some = i < choices.size();
        auto* item = put(FirstChoice + static_cast<int>(i),
                         some ? QString::number(choices[i]) : QString(), Qt::AlignCenter);
        if (!some) {
            item->setFlags(Qt::NoItemFlags);
            continue;
        }
        QFont link = table->font();
        link.setUnderline(true);
        item->setFont(link);
        item->setForeground(QColor(Colours().Accent));
        item->setData(ValueRole, choices[i]);
        item->setData(ParameterRole, static_cast<int>(solution.parameter));
    }
}

void SolveWindow::Take(const QTableWidgetItem* item) {
    if (item == nullptr || !item->data(ValueRole).isValid() || !program.form.frmMain.Enabled())
        return; // no value, or a secondary window locks the main one
    const auto parameter = static_cast<Parameter>(item->data(ParameterRole).toInt());
    TakeParameter(program, parameter, static_cast<std::int16_t>(item->data(ValueRole).toInt()));
}

bool SolveWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
            Take(table->currentItem());
            return true;
        }
    }
    return CompanionWindow::eventFilter(watched, event);
}

} // namespace Hesperin
