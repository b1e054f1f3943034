#include "catalogue/ability_catalogue.h"
#include "catalogue/links.h"
#include "catalogue/spell_catalogue.h"
#include "creature_files/creature_xml.h"
#include "app/handlers/file_menu.h"
#include "app/window_snapshot.h"

#include <gtest/gtest.h>

#include <QDir>

#include <random>
#include <set>

namespace Hesperin {

namespace {

TEST(Save, WritesThePageThatItShows) {
    TestProgram test;
    test.FillInCreature();
    for (const auto& [typed, name] :
         std::initializer_list<std::pair<const char*, const char*>>{{"swamp_Drake", "Swamp_drake"},
                                                                    {"DARK_GUARD", "Dark_guard"},
                                                                    {"old wyrm", "Old Wyrm"},
                                                                    {"ДРАКОН", "Дракон"}}) {
        SCOPED_TRACE(typed);
        test.form.txtNC.SetText(QString::fromUtf8(typed));
        test.platform.dialogPath = test.Path("out.xdb");
        const QStringList boxes = test.BoxesOf([&] { test.form.mnuSave.Click(); });
        EXPECT_EQ(boxes + test.platform.status, QStringList());
        EXPECT_EQ(test.state.CreatureName, QString::fromUtf8(name));
        EXPECT_EQ(test.form.txtNC.Text(), QString::fromUtf8(typed));
        const QByteArray bytes = ReadAll(test.Path("out.xdb"));
        EXPECT_EQ(bytes, test.form.RTBData.Text().toUtf8() + "\r\n");
        EXPECT_TRUE(bytes.contains(QByteArray("/Neutral/") + name + ".(Adv"));
        EXPECT_TRUE(bytes.contains(QByteArray("/Neutrals/") + name + ".xdb"));
        EXPECT_TRUE(test.form.Tablus.Tab(4).On());
        EXPECT_EQ(test.form.Tablus.Tab(4).Caption(), test.Path("out.xdb"));
        EXPECT_EQ(test.state.CreatureFileLoaded, false);
    }
    EXPECT_EQ(test.platform.dialogFileName, "Creature_{Creature's item in TCX Project}");
    EXPECT_EQ(test.form.ComDialog.Filter, "Heroes of Might and Magic V Files (*.xdb)|*.xdb");
}

TEST(Save, ACancelledDialogChangesNothing) {
    TestProgram test;
    ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", CreatureXml().Bytes())));
    test.form.txtNC.SetText("other");
    const QStringList before = Snapshot(test);
    test.platform.boxes.clear();
    test.form.mnuSave.Click();
    EXPECT_EQ(Snapshot(test), before);
    EXPECT_EQ(test.form.ComDialog.FileName, test.Path("a.xdb"));
    EXPECT_TRUE(test.platform.boxes.empty());
    EXPECT_EQ(QDir(test.folder.path()).entryList(QDir::Files), QStringList{"a.xdb"});
}

TEST(Save, WithoutANameNothingElseHappens) {
    TestProgram test(Russian);
    ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", CreatureXml().Bytes())));
    test.form.txtNC.SetText({});
    test.state.CreatureName = {};
    const QStringList before = Snapshot(test);
    test.state.CreatureName = "Test";
    test.platform.boxes.clear();
    test.platform.dialogPath = test.Path("out.xdb");
    test.form.mnuSave.Click();
    EXPECT_EQ(Snapshot(test), before) << "but for the name, which is empty now";
    EXPECT_EQ(test.platform.Texts(),
              QStringList{QString::fromUtf8("Пожалуйста, введите название существа в проекте TCX!")});
    EXPECT_EQ(static_cast<int>(test.platform.boxes[0].icon), static_cast<int>(BoxIcon::Critical));
    EXPECT_FALSE(QFile::exists(test.Path("out.xdb")));
    EXPECT_EQ(test.program.failure, "") << "a question is none";
}

TEST(Save, AFailureIsToldByOneBoxBehindThePage) {
    for (const Language language : {English, Russian})
        for (const char* place : {"missing/out.xdb", "folder.xdb"}) {
            SCOPED_TRACE(place);
            TestProgram test(language);
            test.FillInCreature();
            QDir(test.folder.path()).mkpath("folder.xdb/inside");
            test.platform.dialogPath = test.Path(place);
            test.form.mnuSave.Click();
            ASSERT_EQ(test.platform.boxes.size(), 1U);
            const ScriptedPlatform::Box& box = test.platform.boxes[0];
            EXPECT_EQ(static_cast<int>(box.icon), static_cast<int>(BoxIcon::Critical));
            EXPECT_EQ(box.title, language == English ? "Warning!" : QString::fromUtf8("Внимание!"));
            EXPECT_TRUE(box.text.contains(test.Path(place)));
            EXPECT_EQ(box.text.contains(QString::fromUtf8("не сохранён")), language == Russian);
            EXPECT_EQ(test.program.failure, box.text);
            EXPECT_EQ(test.platform.status, QStringList());
            EXPECT_TRUE(test.form.frmMain.Enabled());
            EXPECT_TRUE(test.form.Tablus.Tab(4).On());
            EXPECT_EQ(test.form.Tablus.Tab(4).Caption(), test.Path(place));
            EXPECT_TRUE(test.form.RTBData.Text().contains("/Neutral/Test."));
            EXPECT_EQ(QDir(test.folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                      QStringList{"folder.xdb"});

            test.platform.dialogPath = test.Path("out.xdb");
            test.form.mnuSave.Click();
            EXPECT_EQ(test.program.failure, "") << "of the command before";
        }
}

/// Fills the window at random, as a user could.
class RandomCreature {
public:
    RandomCreature(TestProgram& owner, unsigned seed) : test(owner), form(owner.form), random(seed) {
        const int lowest = Number(1, 90);
        const std::initializer_list<std::pair<TextField*, int>> numbers{
            {&form.txtAttack, Number(1, 50)},      {&form.txtDefence, Number(1, 50)},
            {&form.txtHealth, Number(1, 400)},     {&form.txtMinDam, lowest},
            {&form.txtMaxDam, Number(lowest, 95)}, {&form.txtPower, Number(0, 32767)},
            {&form.txtExp, Number(0, 9999)},       {&form.txtGoldf, Number(0, 9999)},
            {&form.txtWoodf, Number(0, 99)},       {&form.txtOref, Number(0, 99)},
            {&form.txtMercuryf, Number(0, 99)},    {&form.txtCrystalf, Number(0, 99)},
            {&form.txtSulfurf, Number(0, 99)},     {&form.txtGemf, Number(0, 99)}};
        for (const auto& [field, number] : numbers)
            field->SetText(QString::number(number));
        for (ComboBox* list : {&form.ComboTier, &form.ComboSpeed, &form.ComboInitiative, &form.ComboFaction,
                               &form.ComboUpgrade, &form.ComboTTC, &form.ComboFME, &form.ComboSME})
            list->Select(static_cast<std::int16_t>(Number(0, static_cast<int>(list->Items().size()) - 1)));
        for (int letters = Number(1, 12); letters > 0; --letters)
            form.txtNC.SetText(form.txtNC.Text() + QChar(Number(0, 1) ? Number('a', 'z') : Number('A', 'Z')));
        const int rarity = Number(2, 30);
        for (CheckBox& box : form.Abilities)
            box.SetTicked(Number(1, rarity) == 1);
        for (int j = 1; j <= SpecabilityCount; ++j)
            Tick(form.Specabilities(j), form.saz(j), rarity);
        for (int i = 1; i <= SpellCount; ++i)
            Tick(form.Spells(i), form.soq(i), rarity);
        if (form.Abilities(Ability::Caster).Ticked())
            form.txtMana.SetText(QString::number(Number(1, 999)));
        if (form.Abilities(Ability::Shooter).Ticked()) {
            form.txtShots.SetText(QString::number(Number(1, 99)));
            form.ComboRange.Select(static_cast<std::int16_t>(Number(0, 2)));
        }
    }

private:
    int Number(int from, int to) { return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)); }

    void Tick(CheckBox& box, MultiOption& selector, int rarity) {
        if (Number(1, rarity) == 1)
            box.SetTicked(true);
        if (box.Ticked())
            selector.ClickOption(Number(0, 4));
    }

    TestProgram& test;
    MainForm& form;
    std::mt19937 random;
};

/// What a reader must find after a save, by the rules of the format.
struct Expected {
    explicit Expected(const MainForm& form, const SharedState& state) {
        const bool listed = state.SpecabilityFlag != 0 || form.Abilities(Ability::Caster).Ticked();
        QStringList written;
        for (int j = 1; listed && j <= SpecabilityCount; ++j)
            if (form.Specabilities(j).Ticked())
                written.append(form.Specabilities(j).Caption());
        for (int j = 1; j <= SpecabilityCount; ++j)
            for (int k = 1; listed && k <= SpecabilityCount; ++k) // the first token that begins with j's
                if (form.Specabilities(k).Ticked() && !specabilities.contains(j) &&
                    form.Specabilities(k).Caption().startsWith(form.Specabilities(j).Caption()))
                    specabilities[j] = form.saz(k).Value();
        for (int i = 1; listed && i <= SpellCount; ++i)
            if (form.Spells(i).Ticked()) {
                const qsizetype room = 64 - 21 - 8 - QString("SPELL_" + form.Spells(i).Caption()).size();
                const std::int16_t level = form.soq(i).Value();
                spells[i] =
                    QString::fromUtf16(MasteryToken.at(static_cast<std::size_t>(level))).size() <= room ? level : 0;
            }
        for (const CheckBox& box : form.Abilities)
            if (box.Ticked() && box.ArrayIndex() != Ability::FleshAndBlood)
                written.append(box.Caption());
        for (const CheckBox& box : form.Abilities)
            for (const QString& token : written)
                if (token.startsWith(box.Caption()))
                    abilities.insert(box.ArrayIndex());
        for (const Link& link : Links) {
            if (specabilities.contains(link.specability))
                abilities.insert(link.ability);
            if (abilities.contains(link.ability) && !specabilities.contains(link.specability))
                specabilities[link.specability] = 0;
        }
        if (!abilities.contains(Ability::Elemental) && !abilities.contains(Ability::Mechanical) &&
            !abilities.contains(Ability::Undead))
            abilities.insert(Ability::FleshAndBlood);
    }

    std::set<int> abilities;
    QMap<int, int> spells;
    QMap<int, int> specabilities;
};

template <typename Boxes, typename Selectors>
QMap<int, int> Masteries(const Boxes& boxes, const Selectors& selectors) {
    QMap<int, int> masteries;
    for (const CheckBox& box : boxes)
        if (box.Ticked())
            masteries[box.ArrayIndex()] = selectors(box.ArrayIndex()).Value();
    return masteries;
}

TEST(SaveAndOpen, GivesTheCreatureBack) {
    for (unsigned seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE(seed);
        TestProgram saved;
        RandomCreature(saved, seed);
        saved.form.cmdCalc.Click();
        const Expected expected(saved.form, saved.state);
        saved.platform.dialogPath = saved.Path("Creature_222.xdb");
        saved.form.mnuSave.Click();

        TestProgram opened;
        ASSERT_TRUE(OpenCreatureFile(opened.program, saved.Path("Creature_222.xdb")));
        for (const Control* control : saved.form.Controls()) {
            const bool isField = dynamic_cast<const TextField*>(control) != nullptr;
            if (!isField && dynamic_cast<const ComboBox*>(control) == nullptr)
                continue;
            QString shown = control->Shown();
            if (control == &saved.form.txtNC)
                shown = shown.left(1).toUpper() + shown.mid(1).toLower();
            else if (control == &saved.form.txtIDC)
                shown = "222";
            else if (control == &saved.form.txtMana && !saved.form.Abilities(Ability::Caster).Ticked())
                shown = "";
            else if (control == &saved.form.txtShots && !saved.form.Abilities(Ability::Shooter).Ticked())
                shown = "0";
            else if (control == &saved.form.txtGrowthf)
                shown = QString::number(std::max(1, (saved.state.figures.GrowthRolvane + saved.state.figures.GrowthHesperin) / 2));
            EXPECT_EQ(opened.form.Find(control->Name())->Shown(), shown) << control->Name().toStdString();
        }
        std::set<int> abilities;
        for (const CheckBox& box : opened.form.Abilities)
            if (box.Ticked())
                abilities.insert(box.ArrayIndex());
        EXPECT_EQ(abilities, expected.abilities);
        EXPECT_EQ(Masteries(opened.form.Spells, opened.form.soq), expected.spells);
        EXPECT_EQ(Masteries(opened.form.Specabilities, opened.form.saz), expected.specabilities);
    }
}

} // namespace

} // namespace Hesperin
