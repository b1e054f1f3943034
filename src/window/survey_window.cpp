#include "window/survey_window.h"

#include "app/standing.h"
#include "localisation/error_text.h"
#include "reports/table_csv.h"
#include "reports/table_html.h"
#include "system/save_file.h"
#include "text/fill.h"
#include "window/fonts.h"
#include "window/main_window.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>

#include <utility>

namespace Hesperin {

namespace {

/// The buttons above the table, in their order.
struct ButtonPlan {
    const char* name;
    QString Messages::*caption;
    bool needsSurvey;
};

constexpr ButtonPlan ButtonPlans[] = {
    {"SurveyFolder", &Messages::SurveyWindowFolder, false},
    {"SurveyArchives", &Messages::SurveyWindowArchives, false},
    {"SurveyReload", &Messages::SurveyWindowReload, true},
    {"SurveyUnload", &Messages::SurveyWindowUnload, true},
    {"SurveyExportCsv", &Messages::SurveyWindowCsv, true},
    {"SurveyExportHtml", &Messages::SurveyWindowHtml, true},
};

QStringList DraggedPlaces(const QMimeData& data) {
    QStringList places;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            places.append(url.toLocalFile());
    return places;
}

} // namespace

SurveyWindow::SurveyWindow(Program& owner, MainWindow& mainWindow)
    : CompanionWindow(owner, "SurveyWindow"), main(mainWindow), pages(new SurveyPages(owner)),
      bar(new SurveyBar(owner)), places(new QLabel), refused(new QLabel),
      progressLine(new SurveyProgressLine(owner)),
      walk({.done = [this](const auto& survey) { Show(survey); },
            .progress = [this](const SurveyProgress& progress) { progressLine->Tell(progress); },
            .idle = [this] { progressLine->hide(); }}) {
    setAcceptDrops(true);
    QFont font = BoxFont();
    font.setPixelSize(12);
    setFont(font);
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(8, 8, 8, 8);
    lines->setSpacing(6);
    lines->addWidget(BuildButtons());
    lines->addWidget(bar);
    lines->addWidget(pages, 1);
    lines->addWidget(refused);
    lines->addWidget(progressLine);
    connect(&progressLine->CancelButton(), &QPushButton::clicked, this, [this] { walk.Cancel(); });
    refused->setObjectName(QStringLiteral("SurveyRefused"));
    refused->setTextFormat(Qt::PlainText);
    refused->hide();
    pages->open = [this](std::size_t row) { OpenRow(row); };
    bar->changed = [this] {
        pages->Filter(bar->Chosen());
        bar->ShowCount(pages->View());
    };
    BuildShortcuts();
    PlaceIn(Qt::BottomRightCorner, {1120, 700});
}

SurveyWindow::~SurveyWindow() {
    walk.Cancel();
}

QWidget* SurveyWindow::BuildButtons() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    void (SurveyWindow::*const acts[])() = {
        &SurveyWindow::ChooseFolder, &SurveyWindow::ChooseArchives, &SurveyWindow::Reload,
        &SurveyWindow::Unload,       &SurveyWindow::ExportCsv,      &SurveyWindow::ExportHtml};
    for (std::size_t button = 0; button < std::size(ButtonPlans); ++button) {
        auto* shown = new QPushButton;
        shown->setObjectName(QLatin1String(ButtonPlans[button].name));
        connect(shown, &QPushButton::clicked, this, acts[button]);
        row->addWidget(shown);
    }
    places->setObjectName(QStringLiteral("SurveyPlaces"));
    places->setTextFormat(Qt::PlainText);
    places->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->insertWidget(4, places, 1); // before what saves
    return line;
}

void SurveyWindow::BuildShortcuts() {
    const auto on = [this](const char* keys, auto act) {
        new QShortcut(QKeySequence(QLatin1String(keys)), this, act);
    };
    on("F5", [this] { Reload(); });
    on("Ctrl+F", [this] { bar->FocusWords(); });
}

void SurveyWindow::Retranslate() {
    const Messages& messages = program.state.messages;
    setWindowTitle(messages.SurveyWindowTitle);
    const bool loaded = pages->View().Loaded();
    for (const ButtonPlan& plan : ButtonPlans) {
        auto* button = findChild<QPushButton*>(QLatin1String(plan.name));
        button->setText(messages.*plan.caption);
        button->setEnabled(loaded || !plan.needsSurvey);
    }
    progressLine->Retranslate();
    bar->Retranslate();
    bar->Offer(pages->View());
    bar->ShowCount(pages->View());
    pages->Retranslate();
    ShowPlaces();
}

void SurveyWindow::Refresh() {
    if (std::exchange(shownLanguage, program.state.LanguageId) != program.state.LanguageId)
        Retranslate();
    pages->LookForCurrent();
}

void SurveyWindow::Take(const QStringList& wanted) {
    paths = wanted;
    progressLine->Begin();
    walk.Start({.paths = wanted, .game = {}, .findings = true, .jobs = 0});
}

void SurveyWindow::Show(std::shared_ptr<const Survey> survey) {
    LoadSurvey(program, survey);
    pages->Load(std::move(survey));
    bar->Offer(pages->View());
    pages->Filter(bar->Chosen()); // of which something may have gone
    Retranslate();
}

/// Which mod it is, and what of it could not be read.
void SurveyWindow::ShowPlaces() {
    const Messages& messages = program.state.messages;
    QStringList names;
    QStringList whole;
    for (const QString& path : paths) {
        names.append(QFileInfo(path).fileName());
        whole.append(QDir::toNativeSeparators(path));
    }
    places->setText(pages->View().Loaded() ? names.join(QLatin1String(" + ")) : QString());
    places->setToolTip(whole.join(u'\n').toHtmlEscaped());
    QStringList reasons;
    for (const RefusedPlace& place : pages->View().Whole().refused)
        reasons.append(QDir::toNativeSeparators(place.path) + QLatin1String(": ") +
                       ErrorReason(messages, place.error));
    refused->setVisible(!reasons.isEmpty());
    refused->setText(
        Fill(messages.SurveyWindowRefused, {reasons.value(0)}) +
        (reasons.size() > 1 ? QStringLiteral(" (+%1)").arg(reasons.size() - 1) : QString()));
    refused->setToolTip(reasons.join(u'\n').toHtmlEscaped());
}

/// Where a dialog starts: in the mod, else beside the creature of the window.
QString SurveyWindow::FolderForDialogs() const {
    if (!paths.isEmpty())
        return QFileInfo(paths.constFirst()).absolutePath();
    const auto& baseline = program.state.baseline;
    return baseline ? QFileInfo(baseline->path).absolutePath() : program.platform.ProgramFolder();
}

void SurveyWindow::TakeChosen(const QStringList& chosen) {
    if (!chosen.isEmpty())
        Take(chosen);
}

void SurveyWindow::ChooseFolder() {
    TakeChosen(AskForFolder(*this, FolderForDialogs()));
}

void SurveyWindow::ChooseArchives() {
    TakeChosen(AskForArchives(*this, FolderForDialogs(), program.state.messages));
}

void SurveyWindow::Reload() {
    TakeChosen(paths);
}

void SurveyWindow::Unload() {
    walk.Cancel();
    paths.clear();
    Show(nullptr);
}

void SurveyWindow::ExportCsv() {
    Export({program.state.messages.SurveyWindowCsvFiles, QStringLiteral("csv")}, TableCsv);
}

void SurveyWindow::ExportHtml() {
    Export({program.state.messages.SurveyWindowHtmlFiles, QStringLiteral("html")}, TableHtml);
}

void SurveyWindow::Export(const FileKind& kind, Form* form) {
    const QString path = AskForFile(*this, FolderForDialogs(), kind);
    if (path.isEmpty())
        return;
    const SaveOutcome outcome =
        SaveFile(path, form(pages->View().OnlyShown(), program.state.messages));
    if (!outcome.failure)
        return;
    Error error = *outcome.failure;
    error.file = path;
    error.doing = Error::Doing::Saving;
    Tell(QMessageBox::Critical, ErrorText(program.state.messages, error));
}

void SurveyWindow::OpenRow(std::size_t place) {
    const SurveyRow& row = pages->View().Whole().rows[place];
    if (row.packed)
        return Tell(QMessageBox::Information,
                    Fill(program.state.messages.SurveyWindowPacked,
                         {row.File(), QDir::toNativeSeparators(row.place)}));
    if (!program.form.frmMain.Enabled()) // a secondary window locks it
        return;
    main.raise();
    main.activateWindow();
    main.OpenSoon(row.place);
}

void SurveyWindow::Tell(QMessageBox::Icon icon, const QString& text) {
    QMessageBox box(icon, program.state.messages.WarningTitle, text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void SurveyWindow::Escape() {
    if (walk.Running())
        walk.Cancel();
    else
        bar->ClearWords();
}

void SurveyWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedPlaces(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void SurveyWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Take(DraggedPlaces(*event->mimeData()));
}

void SurveyWindow::closeEvent(QCloseEvent* event) {
    walk.Cancel();
    QWidget::closeEvent(event);
}

} // namespace Hesperin
