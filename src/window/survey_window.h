#pragma once

#include "app/program.h"
#include "window/survey_bar.h"
#include "window/survey_pages.h"
#include "window/survey_walk.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

namespace Hesperin {

class MainWindow;

/// A mod at a glance, beside the main window: neither locks the other. Closed, it keeps its survey
/// and its place.
class SurveyWindow : public QWidget {
public:
    SurveyWindow(Program& program, MainWindow& main);
    ~SurveyWindow() override;
    SurveyWindow(const SurveyWindow&) = delete;
    SurveyWindow& operator=(const SurveyWindow&) = delete;

    /// Shows it and brings it forward.
    void ComeForward();

    /// Surveys these folders and archives as one mod, while the window goes on.
    void Take(const QStringList& paths);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* BuildButtons();
    QWidget* BuildProgress();
    void BuildShortcuts();
    void Retranslate();
    void Show(std::shared_ptr<const Survey> survey);
    void ShowProgress(const SurveyProgress& progress);
    void ShowPlaces();
    QString FolderForDialogs() const;
    void ChooseFolder();
    void ChooseArchives();
    void Reload();
    void Unload();
    void ExportCsv();
    void ExportHtml();
    void Export(const QString& kind, const QString& suffix, const QByteArray& bytes);
    void OpenRow(std::size_t row);
    void Tell(QMessageBox::Icon icon, const QString& text);

    Program& program;
    MainWindow& main;
    SurveyPages* pages;
    SurveyBar* bar;
    QLabel* places;   ///< what is shown
    QLabel* refused;  ///< what could not be read
    QWidget* walking; ///< the line of progress, for what takes long
    QProgressBar* progressBar;
    QStringList paths; ///< of the survey that is shown, or is being taken
    QElapsedTimer since;
    SurveyWalk walk; // the last: it ends before what it tells is gone
};

} // namespace Hesperin
