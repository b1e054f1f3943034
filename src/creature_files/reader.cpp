#include "creature_files/reader.h"

#include "creature_files/file_tokens.h"
#include "creature_files/scanning.h"
#include "localisation/string_tables.h"
#include "platform/shortened.h"

namespace Hesperin {

namespace {

struct NumberElement {
    QStringView openingTag;
    QStringView closingTag;
    TextField MainForm::*field;
    std::int16_t SharedState::*fileValue = nullptr; ///< where the file's figure is kept as well
};

constexpr NumberElement FightingNumbers[] = {
    {u"<AttackSkill>", u"</AttackSkill>", &MainForm::txtAttack},
    {u"<DefenceSkill>", u"</DefenceSkill>", &MainForm::txtDefence},
    {u"<MinDamage>", u"</MinDamage>", &MainForm::txtMinDam},
    {u"<MaxDamage>", u"</MaxDamage>", &MainForm::txtMaxDam},
};

constexpr NumberElement WorthNumbers[] = {
    {u"<Exp>", u"</Exp>", &MainForm::txtExp, &SharedState::FileExperience},
    {u"<Power>", u"</Power>", &MainForm::txtPower, &SharedState::FilePower},
};

constexpr NumberElement GrowthAndCostNumbers[] = {
    {u"<WeeklyGrowth>", u"</WeeklyGrowth>", &MainForm::txtGrowthf, &SharedState::FileGrowth},
    {u"<Wood>", u"</Wood>", &MainForm::txtWoodf},
    {u"<Ore>", u"</Ore>", &MainForm::txtOref},
    {u"<Mercury>", u"</Mercury>", &MainForm::txtMercuryf},
    {u"<Crystal>", u"</Crystal>", &MainForm::txtCrystalf},
    {u"<Sulfur>", u"</Sulfur>", &MainForm::txtSulfurf},
    {u"<Gem>", u"</Gem>", &MainForm::txtGemf},
    {u"<Gold>", u"</Gold>", &MainForm::txtGoldf, &SharedState::FileGold},
};

class Scan {
public:
    explicit Scan(Program& owner)
        : program(owner), state(owner.state), form(owner.form), text(owner.form.RTBData) {}

    void Run() {
        ReadFields(FightingNumbers);
        ReadSpeedInitiativeFlyingHealth();
        ReadSpells();
        ReadSpecabilities();
        ReadFields(WorthNumbers);
        ReadTierUpgradeTownSizeRangeTime();
        ReadManaAndShots();
        MatchList(u"<First>", u"<First>ELEMENT_", form.ComboFME);
        MatchList(u"<Second>", u"<Second>ELEMENT_", form.ComboSME);
        ReadFields(GrowthAndCostNumbers);
        ReadAbilities();
        OpenOrCloseSpells();
        InferFleshAndBlood();
        ReadName();
        TellWhatWasOdd();
    }

private:
    static QString ElementName(QStringView openingTag) {
        return openingTag.sliced(1, openingTag.size() - 2).toString();
    }

    /// The number in an element; none, and noted as missing, when the file lacks the element.
    std::optional<std::int16_t> Number(QStringView openingTag, QStringView closingTag) {
        const TagNumberResult number = TagNumber(text, openingTag, closingTag);
        if (!number.found) {
            missing.append(ElementName(openingTag));
            return std::nullopt;
        }
        if (number.limited)
            limited.append(QStringLiteral("%1 %2 (%3)")
                               .arg(ElementName(openingTag), Shortened(number.text),
                                    QString::number(number.value)));
        return number.value;
    }

    /// Notes the element as missing if it occurs nowhere, in any letter case.
    void NoteIfMissing(QStringView openingTag) {
        if (text.LooseSearch(openingTag) < 0)
            missing.append(ElementName(openingTag));
    }

    template <std::size_t Count>
    void ReadFields(const NumberElement (&elements)[Count]) {
        for (const NumberElement& element : elements) {
            const auto number = Number(element.openingTag, element.closingTag);
            if (element.fileValue != nullptr)
                state.*element.fileValue = number.value_or(0);
            if (number)
                (form.*element.field).SetText(QString::number(*number));
        }
    }

    void ReadSpeedInitiativeFlyingHealth() {
        if (const auto speed = Number(u"<Speed>", u"</Speed>")) {
            state.Speed = *speed;
            form.ComboSpeed.SetText(QString::number(state.Speed));
        }
        if (const auto initiative = Number(u"<Initiative>", u"</Initiative>")) {
            state.Initiative = *initiative;
            form.ComboInitiative.SetText(QString::number(state.Initiative));
        }
        NoteIfMissing(u"<Flying>");
        form.Abilities(Ability::Flyer).SetTicked(TagIsTrue(text, u"Flying") == 1);
        if (const auto health = Number(u"<Health>", u"</Health>")) {
            state.Health = *health;
            form.txtHealth.SetText(QString::number(state.Health));
        }
    }

    /// The highest mastery word that the window holds, 0 when it holds none that can be read.
    static std::int16_t Mastery(const TextBuffer& window,
                                std::int16_t (*masteryIn)(const TextBuffer&, QStringView)) {
        for (auto token = MasteryTokens().rbegin(); token != MasteryTokens().rend(); ++token)
            if (const std::int16_t level = masteryIn(window, *token); level != -1)
                return level;
        return 0;
    }

    static void SetMastery(MultiOption& selector, std::int16_t level) {
        selector.SetOptionsEnabled(true);
        selector.SetValue(level);
        selector.Redraw();
    }

    void ReadSpells() {
        constexpr qsizetype windowLength = 64;
        for (int i = 1; i <= SpellCount; ++i) {
            if (FindToken(state, text, SpellTokens()[static_cast<std::size_t>(i)]) == 0)
                continue;
            form.Spells(i).SetTicked(true);
            form.RTBTEMP.SetText(text.Text().mid(state.TokenPosition, windowLength));
            SetMastery(form.soq(i), Mastery(form.RTBTEMP, MasteryInSpellWindow));
        }
    }

    void ReadSpecabilities() {
        constexpr qsizetype windowLength = 128;
        for (int j = 1; j <= SpecabilityCount; ++j) {
            if (FindSpecabilityToken(state, text,
                                     SpecabilityTokens()[static_cast<std::size_t>(j)]) == 0)
                continue;
            form.Specabilities(j).SetTicked(true);
            form.RTBSPEC.SetText(text.Text().mid(state.SpecabilityTokenPosition, windowLength));
            SetMastery(form.saz(j), Mastery(form.RTBSPEC, MasteryInSpecabilityWindow));
        }
    }

    /// Index of the first entry of `list` that follows the prefix in the text; selects it, and the
    /// same entry of `twin` if there is one.
    void MatchList(QStringView openingTag, QStringView prefix, ComboBox& list,
                   ComboBox* twin = nullptr) {
        NoteIfMissing(openingTag);
        for (qsizetype index = 0; index < list.Items().size(); ++index) {
            if (FindToken(state, text, prefix.toString() + list.Items()[index]) == 0)
                continue;
            list.Select(static_cast<std::int16_t>(index));
            if (twin != nullptr)
                twin->Select(static_cast<std::int16_t>(index));
            return;
        }
    }

    void ReadTierUpgradeTownSizeRangeTime() {
        constexpr std::int16_t sizeOfLargeCreatures = 2;
        if (const auto tier = Number(u"<CreatureTier>", u"</CreatureTier>"))
            form.ComboTier.SetText(QString::number(*tier));
        NoteIfMissing(u"<Upgrade>");
        form.ComboUpgrade.Select(TagIsTrue(text, u"Upgrade"));
        MatchList(u"<CreatureTown>", u"<CreatureTown>TOWN_", form.ComboAlias, &form.ComboFaction);
        if (const auto size = Number(u"<CombatSize>", u"</CombatSize>"))
            form.Abilities(Ability::LargeCreature).SetTicked(*size == sizeOfLargeCreatures);
        MatchList(u"<Range>", u"<Range>", form.ComboDiapazon, &form.ComboRange);
        MatchList(u"<TimeToCommand>", u"<TimeToCommand>", form.ComboTTC);
    }

    /// Mana makes a caster, shots make a shooter.
    void SwitchSupply(std::optional<std::int16_t> number, Frame& frame, TextField& field,
                      int ability) {
        if (!number)
            return;
        const bool supplied = *number > 0;
        if (supplied)
            field.SetText(QString::number(*number));
        field.SetEnabled(supplied);
        frame.SetEnabled(supplied);
        form.Abilities(ability).SetTicked(supplied);
    }

    void ReadManaAndShots() {
        SwitchSupply(Number(u"<SpellPoints>", u"</SpellPoints>"), form.FrameMana, form.txtMana,
                     Ability::Caster);
        SwitchSupply(Number(u"<Shots>", u"</Shots>"), form.FrameShots, form.txtShots,
                     Ability::Shooter);
    }

    /// Nothing is unticked here: what an earlier element or a link ticked stays.
    void ReadAbilities() {
        for (int i = 1; i <= Ability::Count; ++i)
            if (FindToken(state, text, AbilityTokens()[static_cast<std::size_t>(i)]) == 1)
                form.Abilities(i).SetTicked(true);
    }

    void OpenOrCloseSpells() {
        const bool caster = form.Abilities(Ability::Caster).Ticked();
        form.Tablus.Tab(2).Switch(caster);
        form.FrameMana.SetEnabled(caster);
        form.txtMana.SetEnabled(caster);
        if (caster)
            program.platform.SetFocus(form.txtMana);
        else
            form.txtMana.SetText({});
    }

    /// The nature rule takes the tick back while another nature stands.
    void InferFleshAndBlood() {
        const bool allOthers = form.Abilities(Ability::Elemental).Ticked() &&
                               form.Abilities(Ability::Mechanical).Ticked() &&
                               form.Abilities(Ability::Undead).Ticked();
        form.Abilities(Ability::FleshAndBlood).SetTicked(!allOthers);
    }

    void ReadName() {
        const auto name = CreatureNameIn(text);
        if (!name) {
            missing.append(QStringLiteral("MonsterShared"));
            return;
        }
        state.CreatureName = *name;
        form.txtNC.SetText(*name);
    }

    void TellWhatWasOdd() {
        QStringList lines;
        if (!missing.isEmpty())
            lines.append(Fill(state.MsgElementsMissing, {missing.join(QLatin1String(", "))}));
        if (!limited.isEmpty())
            lines.append(Fill(state.MsgNumbersLimited, {limited.join(QLatin1String(", "))}));
        if (!lines.isEmpty())
            program.Warn(BoxIcon::Information, lines.join(u'\n'));
    }

    Program& program;
    SharedState& state;
    MainForm& form;
    const TextBuffer& text;
    QStringList missing;
    QStringList limited;
};

} // namespace

void ScanCreature(Program& program) {
    Scan(program).Run();
}

} // namespace Hesperin
