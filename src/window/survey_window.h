#pragma once

#include "window/companion_window.h"
#include "window/survey_bar.h"
#include "window/survey_dialogs.h"
#include "window/survey_pages.h"
#include "window/survey_progress.h"
#include "window/survey_walk.h"

#include <QMessageBox>

namespace Hesperin {

class MainWindow;

/// A mod at a glance. Closed, it keeps its survey.
class SurveyWindow : public CompanionWindow {
public:
    SurveyWindow(Program& program, MainWindow& main);
    ~SurveyWindow() override;
    SurveyWindow(const SurveyWindow&) = delete;
    SurveyWindow& operator=(const SurveyWindow&) = delete;

    /// Surveys these folders and archives as one mod, while the window goes on.
    void Take(const QStringList& paths);

protected:
    void Refresh() override;
    void Escape() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* BuildButtons();
    void BuildShortcuts();
    void Retranslate();
    void Show(std::shared_ptr<const Survey> survey);
    void ShowPlaces();
    QString FolderForDialogs() const;
    void TakeChosen(const QStringList& chosen);
    void ChooseFolder();
    void ChooseArchives();
    void Reload();
    void Unload();
    void ExportCsv();
    void ExportHtml();
    /// How the survey is written into a file.
    using Form = QByteArray(const Survey&, const Messages&);
    void Export(const FileKind& kind, Form* form);
    void OpenRow(std::size_t row);
    void Tell(QMessageBox::Icon icon, const QString& text);

    MainWindow& main;
    std::uint8_t shownLanguage = 0;
    SurveyPages* pages;
    SurveyBar* bar;
    QLabel* places;  ///< what is shown
    QLabel* refused; ///< what could not be read
    SurveyProgressLine* progressLine;
    QStringList paths; ///< of the survey that is shown, or is being taken
    SurveyWalk walk;   // the last: it ends before what it tells is gone
};

} // namespace Hesperin
