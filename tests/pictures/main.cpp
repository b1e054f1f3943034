// Takes pictures of every page and window in both languages, to be looked at and for the guide:
//   talmir-pictures FOLDER [MOD]
// The survey is that of the mod.
#include "app/handlers/balance_menu.h"
#include "app/handlers/file_menu.h"
#include "app/handlers/options_menu.h"
#include "app/handlers/save_and_update.h"
#include "window/survey_in_use.h"
#include "window/windowed_program.h"

using namespace Hesperin;

namespace {

/// The window of the survey as it comes up, with a creature chosen in plain and high contrast, and its findings.
void TakeSurveyPictures(WindowInUse& use, const QString& mod, const QString& prefix) {
    use.form.frmAM.SetVisible(false);
    SurveyInUse survey(use);
    const auto take = [&](const char* name) {
        QTest::qWait(50);
        survey.window.grab().save(prefix + name + ".png");
    };
    take("survey-empty");
    survey.window.Take({mod});
    if (!QTest::qWaitFor([&] { return survey.Count() > 0; }, 60000))
        qFatal("no survey");
    QTest::qWait(100);
    survey.ClickHeading(Column::Deviation);
    const auto& rows = use.program.survey->rows;
    const auto row = std::find_if(rows.begin(), rows.end(), [](const auto& one) { return one.deviation > 25; });
    if (row != rows.end()) {
        OpenCreatureFile(use.program, row->place);
        survey.Find<DeviationView>("SurveyPicture").choose(static_cast<std::size_t>(row - rows.begin()));
    }
    take("survey");
    use.window->grab().save(prefix + "standing.png");
    mnuHighContrast_Click(use.program);
    use.Find<QAction>("mnuHighContrast").setChecked(true);
    take("survey-contrast");
    mnuHighContrast_Click(use.program);
    use.Find<QAction>("mnuHighContrast").setChecked(false);
    survey.Find<QTabWidget>("SurveyPages").setCurrentIndex(1);
    take("survey-findings");
    survey.Find<QTabWidget>("SurveyPages").setCurrentIndex(0);
    survey.window.resize(880, 430);
    take("survey-small");
    survey.Press("SurveyUnload");
    survey.window.close();
}

/// The windows that explain results and find values, with what a creature of several corrections shows.
void TakeResultPictures(WindowInUse& use, const QString& prefix) {
    const auto take = [&](const char* window, const QString& name) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == window) {
                QTest::qWait(50);
                top->grab().save(prefix + name + ".png");
                top->close();
            }
    };
    const QPair<const char*, ResultKey> results[] = {{"explanation", {Method::Average, Figure::Power}},
                                                     {"explanation-gold", {Method::Average, Figure::Cost}},
                                                     {"explanation-growth", {Method::Hesperin, Figure::Growth}}};
    for (const auto& [name, result] : results) {
        ExplainResult(use.program, result);
        take("ExplanationWindow", name);
    }
    mnuSolve_Click(use.program);
    take("SolveWindow", "solve");
    use.form.txtAttack.SetText("70");
    use.form.txtMinDam.SetText("12");
    use.form.ComboTier.Select(7);
    use.Press("cmdCalc");
    ExplainResult(use.program, {Method::Rolvane, Figure::Power});
    take("ExplanationWindow", "explanation-corrected");
    use.form.cmdResetAll.Click();
    mnuExplain_Click(use.program);
    take("ExplanationWindow", "explanation-empty");
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir settings; // whatever runs beside
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const QApplication application(argc, argv);
    WindowedProgram::DressApplication();
    const QDir folder(QCoreApplication::arguments().value(1, "."));
    folder.mkpath(".");
    const QString mod = QCoreApplication::arguments().value(2);
    for (const Language language : {English, Russian}) {
        const QString prefix = folder.filePath(language == English ? "en-" : "ru-");
        WindowInUse use(language);
        const auto take = [&](const QString& name) { // of what is in front
            QCoreApplication::processEvents();
            QDialog* second = use.Second();
            (second ? second : static_cast<QWidget*>(use.window.get()))->grab().save(prefix + name + ".png");
            if (second)
                second->close();
        };
        take("0-start");
        OpenCreatureFile(use.program, TALMIR_SOURCE_DIR "/samples/frost_witch.xdb");
        use.form.Tablus.Tab(4).SetCaption("frost_witch.xdb");
        use.form.ComboRange.Select(1);
        for (int page = 0; page < TabControl::PageCount; ++page) {
            use.Bar().setCurrentIndex(page);
            take(QString("page%1").arg(page));
        }
        use.form.mnuFindAbility.Click();
        use.Find<QLineEdit>("FindAbility").setText("shot");
        use.Key(Qt::Key_Return);
        take("find");
        use.Key(Qt::Key_Escape);
        use.Bar().setCurrentIndex(0);
        use.form.frmAM.SetVisible(true);
        use.form.Abilities(Ability::Shooter).SetTicked(true);
        use.Focus("Tablus.Bar");
        take("alternative");
        use.form.frmAM.SetVisible(false);
        OpenCreatureFile(use.program, TALMIR_SOURCE_DIR "/samples/frost_witch.xdb");
        TakeResultPictures(use, prefix);
        OpenCreatureFile(use.program, TALMIR_SOURCE_DIR "/samples/frost_witch.xdb");
        if (!mod.isEmpty())
            TakeSurveyPictures(use, mod, prefix);

        use.form.utbN(68).SetText("Frightful Presence");
        use.form.utbD(68).SetText("Enemies next to the creature are so frightened that they may flee at the start of "
                                  "their turn, and never strike back on the turn after.");
        use.state.AbilityInfoIndex = 68;
        use.platform.Open(SecondaryWindow::AbilityInformation);
        take("ability");
        use.platform.Open(SecondaryWindow::About);
        take("about");
        use.platform.ShowStatus(use.state.messages.MsgNoCalculator);
        take("status");

        QString question;
        use.answers.yes = false;
        use.answers.look = [&](QMessageBox& box) { box.grab().save(prefix + question + ".png"); };
        const QString path = use.Path("frost_witch.xdb");
        QFile::copy(TALMIR_SOURCE_DIR "/samples/frost_witch.xdb", path);
        OpenCreatureFile(use.program, path);
        use.form.txtHealth.SetText("450");
        use.form.Abilities(1).SetTicked(true);
        question = "update";
        mnuUpdate_Click(use.program);
        use.answers.paths = {path};
        question = "replace";
        mnuSave_Click(use.program);

        use.window->OpenSoon(path);
        QTest::qWait(1);
        WriteFile(path, "");
        const auto& bar = use.Find("ChangedOnDisk");
        if (QTest::qWaitFor([&] { return bar.isVisible(); }))
            take("changed");
    }
    return 0;
}
