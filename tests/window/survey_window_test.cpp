// The window of the survey, beside the main window.
#include "app/standing.h"
#include "creature_files/creature_xml.h"
#include "window/agreement.h"
#include "window/survey_in_use.h"

namespace Hesperin {

namespace {

QByteArray Wyrm(const QString& name, int power, const char* town = "TOWN_ACADEMY") {
    return CreatureXml()
        .Reference("/Maps/" + name + ".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)")
        .Set("Power", QString::number(power))
        .Set("CreatureTown", town)
        .Bytes();
}

/// A window with a small mod beside it, of which nothing is loaded yet.
struct Surveyed : WindowInUse {
    explicit Surveyed(Language language = English) : WindowInUse(language) {
        Write("mod/a/Amber.xdb", Wyrm("Amber", 500));
        Write("mod/a/Blue.xdb", Wyrm("Blue", 1000, "TOWN_DUNGEON"));
        Write("mod/b/Coral.xdb", Wyrm("Coral", 505));
        Write("mod/b/Dark.xdb", Wyrm("Dark", 495));
        Write("mod/b/Elder.xdb", Wyrm("Elder", 510, "TOWN_DUNGEON"));
        Write("mod/b/Torn.xdb", "<Creature><Power>1</Creature>");
        Write("mod/other.xdb", "<Other/>");
    }

    /// Chooses the folder of the mod in the dialog.
    void Load(const SurveyInUse& survey) {
        answers.paths = {Path("mod")};
        survey.Press("SurveyFolder");
        ASSERT_TRUE(QTest::qWaitFor([&] { return survey.Count() == 6; })) << answers.told.join('\n').toStdString();
        QTest::qWait(20); // laid out anew
    }
};

TEST(Survey, ShowsAModBesideTheMainWindowWithoutLockingIt) {
    Surveyed use;
    const SurveyInUse survey(use);
    EXPECT_EQ(survey.Find<QLabel>("SurveyHint").text(), use.state.messages.SurveyWindowEmpty);
    EXPECT_FALSE(survey.Find("SurveyReload").isEnabled());
    use.Load(survey);
    EXPECT_EQ(survey.Names().join(' '), "Amber Blue Coral Dark Elder ");
    EXPECT_NE(survey.Cell(5, Column::Problem), "") << "an unreadable file has its row";
    EXPECT_FALSE(survey.Find("SurveyHint").isVisible() || survey.Find("SurveyProgress").isVisible());
    EXPECT_EQ(survey.Find<QLabel>("SurveyCount").text(), "6 of 6 creatures");
    EXPECT_EQ(survey.window.parentWidget(), nullptr) << "it would stay in front";
    EXPECT_TRUE(use.form.frmMain.Enabled());
    use.ShowPage(1);
    use.ClickBox("Abilities(66)");
    EXPECT_TRUE(use.Ticked("Abilities(66)"));

    survey.ClickHeading(Column::Power);
    EXPECT_EQ(survey.Names().join(' '), "Dark Amber Coral Elder Blue ");
    survey.ClickHeading(Column::Power);
    EXPECT_EQ(survey.Names().join(' '), "Blue Elder Coral Amber Dark ");
    WindowInUse::Click(*survey.Table().viewport(), survey.PlaceOf(2));
    EXPECT_EQ(survey.Chosen(), "Coral");
    survey.Find<QLineEdit>("SurveyFilter").setFocus();
    QTest::keyClicks(&survey.Find("SurveyFilter"), "CO");
    EXPECT_EQ(survey.Names().join(' '), "Coral");
    QTest::keyClick(&survey.Find("SurveyFilter"), Qt::Key_Escape);
    EXPECT_EQ(survey.Count(), 6);
    EXPECT_EQ(survey.Chosen(), "Coral") << "is kept";
    survey.Find<QComboBox>("SurveyTown").setCurrentIndex(2);
    EXPECT_EQ(survey.Names().join(' '), "Blue Elder");
    WindowInUse::Click(survey.Find("SurveyOutliers"), {8, survey.Find("SurveyOutliers").height() / 2});
    EXPECT_EQ(survey.Names().join(' '), "Blue");
    use.Write("mod/b/Fair.xdb", Wyrm("Fair", 1100, "TOWN_DUNGEON"));
    survey.Key(Qt::Key_F5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return survey.Names().join(' ') == "Fair Blue"; })) << "taken anew, as chosen";
}

TEST(Survey, ClickOnAPointChoosesItsRowAndDoubleClickOpensTheCreature) {
    Surveyed use;
    const SurveyInUse survey(use);
    use.Load(survey);
    auto& picture = survey.Find<DeviationView>("SurveyPicture");
    for (std::size_t row = 0; row < 5; ++row) {
        const auto place = picture.PlaceOf(row);
        ASSERT_TRUE(place.has_value());
        WindowInUse::Click(picture, place->toPoint());
        EXPECT_EQ(survey.Chosen(), use.program.survey->rows[row].Name());
    }
    EXPECT_EQ(picture.PlaceOf(5), std::nullopt);

    const auto shows = [&](const char* name) {
        return QTest::qWaitFor([&] { return use.window->windowTitle().contains(name); });
    };
    WindowInUse::Click(*survey.Table().viewport(), survey.PlaceOf(1));
    QTest::mouseDClick(survey.window.windowHandle(), Qt::LeftButton, {},
                       survey.Table().viewport()->mapTo(&survey.window, survey.PlaceOf(1)));
    EXPECT_TRUE(shows("Blue"));
    EXPECT_EQ(use.form.lblStandingPlace.Caption(), "Place 5 of 5, strongest for its Power first");
    EXPECT_TRUE(use.Find("FrameStanding").isVisible());
    const QString before = use.form.lblStandingDeviation.Caption();
    use.form.txtPower.SetText("400");
    use.Press("cmdCalc");
    EXPECT_NE(use.form.lblStandingDeviation.Caption(), before);
    EXPECT_EQ(use.form.lblStandingPlace.Caption(), "Place 1 of 5, strongest for its Power first");
    EXPECT_EQ(Disagreements(use), "");

    survey.Table().selectRow(2);
    QTest::keyClick(&survey.Table(), Qt::Key_Return);
    EXPECT_TRUE(shows("Coral"));
    use.PickLanguage(Russian);
    QTest::qWait(1);
    EXPECT_EQ(survey.window.windowTitle(), "Обзор");
    EXPECT_TRUE(use.form.lblStandingPlace.Caption().startsWith("Место 3 из 5"));
    survey.Press("SurveyUnload");
    EXPECT_EQ(survey.Count(), 0);
    EXPECT_FALSE(use.Find("FrameStanding").isVisible());
}

TEST(Survey, SavesWhatItShows) {
    Surveyed use;
    const SurveyInUse survey(use);
    use.Load(survey);
    QTest::keyClicks(&survey.Find("SurveyFilter"), "coral");
    use.answers.paths = {use.Path("a.csv"), use.Path("a.html"), use.Path("none/a.csv")};
    survey.Press("SurveyExportCsv");
    survey.Press("SurveyExportHtml");
    EXPECT_EQ(ReadAll(use.Path("a.csv")).count("\r\n"), 2);
    EXPECT_TRUE(ReadAll(use.Path("a.csv")).contains("b/Coral.xdb"));
    EXPECT_TRUE(ReadAll(use.Path("a.html")).contains(">Coral<"));
}

TEST(Survey, ShowsWhereTheCreatureStandsWhenOnlyItsFileIsAnother) {
    Surveyed use;
    const SurveyInUse survey(use);
    use.Load(survey);
    use.form.frmMain.Drop(use.Path("mod/b/Coral.xdb"));
    QTest::qWait(20);
    const auto picture = [&] { return survey.Find("SurveyPicture").grab().toImage(); };
    const QImage before = picture();
    use.state.baseline->path = use.Path("mod/nowhere.xdb"); // as after a save: the title stays
    FollowResults(use.program);
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture() != before; }));
}

TEST(Survey, EndsInOrderWhileItReads) {
    const std::pair<const char*, std::function<void(Surveyed&, const SurveyInUse&)>> ends[] = {
        {"Escape", [](Surveyed&, const SurveyInUse& survey) { QTest::keyClick(&survey.window, Qt::Key_Escape); }},
        {"close", [](Surveyed&, const SurveyInUse& survey) { survey.window.close(); }},
        {"unload", [](Surveyed&, const SurveyInUse& survey) { survey.Press("SurveyUnload"); }},
        {"end of the program", [](Surveyed& use, const SurveyInUse&) { use.window.reset(); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        Surveyed use;
        for (int file = 0; file < 300; ++file)
            use.Write(QString("many/%1.xdb").arg(file), Wyrm("Amber", 500));
        const SurveyInUse survey(use);
        use.Load(survey);
        survey.window.Take({use.Path("many")});
        end(use, survey);
        QTest::qWait(30);
        if (!use.window)
            continue;
        EXPECT_LE(use.program.survey ? use.program.survey->rows.size() : 0, 6U) << "it went on";
        use.Pick({"mnuBalance", "mnuSurvey"});
        EXPECT_TRUE(survey.window.isVisible());
        survey.window.Take({use.Path("many")});
        EXPECT_TRUE(QTest::qWaitFor([&] { return survey.Count() == 300; }));
    }
}

} // namespace

} // namespace Hesperin
