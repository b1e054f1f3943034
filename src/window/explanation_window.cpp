#include "window/explanation_window.h"

#include "app/last_explanation.h"
#include "form/form_lists.h"
#include "reports/explanation_text.h"
#include "text/fill.h"
#include "window/explanation_page.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int AllFigures = static_cast<int>(std::size(ResultRows));
constexpr EnumArray<Method, QString Messages::*> NamesOfMethods{
    {{&Messages::FigureByRolvane, &Messages::FigureByHesperin, &Messages::FigureOnAverage}}};

QLabel* PlainLabel(QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* HeadingLabel() {
    auto* label = PlainLabel(new QLabel);
    QFont font = label->font();
    font.setPixelSize(13);
    font.setBold(true);
    label->setFont(font);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return label;
}

void Stack(QVBoxLayout& lines, std::initializer_list<QWidget*> widgets) {
    for (QWidget* widget : widgets)
        lines.addWidget(widget);
    lines.addStretch(1);
    lines.setSpacing(6); // else that of the layout around it
}

const ExplainedChapter* FindChapter(const std::vector<ExplainedChapter>& chapters, Chapter wanted) {
    const auto found = std::find_if(chapters.begin(), chapters.end(),
                                    [wanted](const auto& one) { return one.chapter == wanted; });
    return found == chapters.end() ? nullptr : &*found;
}

} // namespace

ExplanationWindow::ExplanationWindow(Program& owner)
    : CompanionWindow(owner, "ExplanationWindow"), figureLabel(new QLabel), figures(new QComboBox),
      copy(new QPushButton), copyMarkdown(new QPushButton), text(new QTextBrowser),
      bandsHeading(HeadingLabel()), bands(new TierBands), bandsWords(PlainLabel(new QLabel)),
      gainsHeading(HeadingLabel()), gains(new GainBars) {
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(10, 10, 10, 10);
    lines->setSpacing(10);
    lines->addWidget(BuildTop());
    text->setObjectName(QStringLiteral("ExplanationText"));
    text->setOpenLinks(false);
    text->document()->setDocumentMargin(8);
    text->setMinimumHeight(140);
    text->installEventFilter(this);
    lines->addWidget(text, 1);
    below = BuildBottom();
    lines->addWidget(below);
    installEventFilter(this);
    PlaceIn(Qt::TopRightCorner, {800, 720});
}

QWidget* ExplanationWindow::BuildTop() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    figures->setObjectName(QStringLiteral("ExplanationFigure"));
    figures->setMaxVisibleItems(AllFigures + 1);
    figures->setMinimumWidth(260);
    figureLabel->setBuddy(figures);
    copy->setObjectName(QStringLiteral("ExplanationCopy"));
    copyMarkdown->setObjectName(QStringLiteral("ExplanationCopyMarkdown"));
    row->addWidget(figureLabel);
    row->addWidget(figures);
    row->addStretch();
    row->addWidget(copy);
    row->addWidget(copyMarkdown);
    connect(copy, &QPushButton::clicked, this, [this] { CopyText(); });
    connect(copyMarkdown, &QPushButton::clicked, this, [this] { CopyMarkdown(); });
    connect(figures, &QComboBox::currentIndexChanged, this, [this] {
        if (const auto chosen = Chosen())
            program.state.explained = *chosen;
        Refresh();
    });
    return line;
}

QWidget* ExplanationWindow::BuildBottom() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    auto* left = new QVBoxLayout;
    bandsWords->setObjectName(QStringLiteral("ExplanationBand"));
    Stack(*left, {bandsHeading, bands, bandsWords});
    auto* right = new QVBoxLayout;
    Stack(*right, {gainsHeading, gains});
    row->addLayout(left, 4);
    row->addLayout(right, 3);
    return line;
}

std::optional<ResultKey> ExplanationWindow::Chosen() const {
    const int index = figures->currentIndex();
    if (index < 0 || index >= AllFigures)
        return std::nullopt;
    const ResultRow& row = ResultRows[index];
    return ResultKey{row.method, row.figure};
}

void ExplanationWindow::ShowAsked() {
    OfferResults();
    const auto* row =
        std::find_if(std::begin(ResultRows), std::end(ResultRows), [this](const ResultRow& one) {
            return ResultKey{one.method, one.figure} == program.state.explained;
        });
    figures->setCurrentIndex(static_cast<int>(row - std::begin(ResultRows)));
    ComeForward();
}

/// The results by their names, with what they are.
void ExplanationWindow::OfferResults() {
    const QSignalBlocker still(figures);
    const Messages& messages = program.state.messages;
    if (figures->count() == 0)
        for (int i = 0; i <= AllFigures; ++i)
            figures->addItem(QString());
    for (int i = 0; i < AllFigures; ++i) {
        const ResultRow& row = ResultRows[i];
        const MainForm& form = program.form;
        figures->setItemText(
            i, Fill(messages.*NamesOfMethods[row.method],
                    {(form.*row.place.frame).Caption(), (form.*row.place.label).Caption()})
                   .trimmed());
    }
    figures->setItemText(AllFigures, messages.ExplanationWindowAll);
}

void ExplanationWindow::Retranslate() {
    const Messages& messages = program.state.messages;
    setWindowTitle(program.form.mnuExplain.Caption());
    figureLabel->setText(messages.ExplanationWindowFigure);
    figures->setAccessibleName(QString(messages.ExplanationWindowFigure).remove(u'&'));
    copy->setText(messages.ExplanationWindowCopy);
    copyMarkdown->setText(messages.ExplanationWindowMarkdown);
    text->setAccessibleName(windowTitle());
    OfferResults();
}

void ExplanationWindow::Refresh() {
    Retranslate();
    explanation = ExplainLast(program);
    for (QWidget* widget : std::initializer_list<QWidget*>{copy, copyMarkdown, below})
        widget->setEnabled(explanation.has_value());
    const std::uint8_t language = program.state.LanguageId;
    ShowPage(explanation ? ChaptersOf(*explanation, language, Chosen())
                         : std::vector<ExplainedChapter>());
    ShowBelow(explanation
                  ? ChaptersOf(*explanation, language, ResultKey{Method::Average, Figure::Power})
                  : std::vector<ExplainedChapter>());
}

void ExplanationWindow::ShowPage(const std::vector<ExplainedChapter>& chapters) {
    std::vector<ExplainedChapter> shown;
    std::copy_if(chapters.begin(), chapters.end(), std::back_inserter(shown), [](const auto& one) {
        return one.chapter < Chapter::AdvisedTier; // the rest stands below
    });
    QString page =
        explanation
            ? ExplanationPage(ExplanationHead(*explanation, program.state.LanguageId), shown)
            : QStringLiteral("<p>%1</p>")
                  .arg(program.state.messages.ExplanationWindowNothing.toHtmlEscaped());
    if (page == shownPage)
        return; // what the user has selected stays
    const int place = text->verticalScrollBar()->value();
    text->setHtml(page);
    text->verticalScrollBar()->setValue(place);
    shownPage = std::move(page);
}

void ExplanationWindow::ShowBelow(const std::vector<ExplainedChapter>& chapters) {
    const std::uint8_t language = program.state.LanguageId;
    bandsHeading->setText(ChapterIn(language, Chapter::AdvisedTier));
    gainsHeading->setText(ChapterIn(language, Chapter::OneMore));
    QStringList words;
    if (const ExplainedChapter* advised = FindChapter(chapters, Chapter::AdvisedTier))
        for (const ExplainedStep& step : advised->steps)
            words.append(step.value.isEmpty() ? step.what
                                              : step.what + QLatin1String(": ") + step.value);
    bandsWords->setText(words.join(u'\n'));
    bands->setAccessibleName(words.join(QLatin1String(". ")));
    const ExplainedChapter* oneMore = FindChapter(chapters, Chapter::OneMore);
    gains->setAccessibleName(gainsHeading->text());
    gains->Show(oneMore == nullptr ? std::vector<ExplainedStep>() : oneMore->steps);
    const bool some = explanation && explanation->evaluation.figures;
    bands->Show(some ? std::optional(explanation->evaluation.figures->PowerAverage) : std::nullopt,
                explanation ? explanation->evaluation.validated.parameters.Tier : std::int16_t{0});
}

void ExplanationWindow::CopyText() {
    if (explanation)
        QGuiApplication::clipboard()->setText(
            ExplanationText(*explanation, program.state.LanguageId, Chosen()));
}

void ExplanationWindow::CopyMarkdown() {
    if (explanation)
        QGuiApplication::clipboard()->setText(
            ExplanationMarkdown(*explanation, program.state.LanguageId, Chosen()));
}

/// Ctrl+C copies what is selected, or all.
bool ExplanationWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy) &&
        !(watched == text && text->textCursor().hasSelection())) {
        CopyText();
        return true;
    }
    return CompanionWindow::eventFilter(watched, event);
}

} // namespace Hesperin
