#include "localisation/ability_texts.h"

#include "catalogues/ability_catalogue.h"
#include "platform/path_lookup.h"
#include "platform/read_file.h"
#include "platform/text_file.h"

#include <algorithm>

namespace Hesperin {

namespace {

struct OddNames {
    int index;
    const char16_t* nameFile;
    const char16_t* descFile;
};

// The abilities whose files the game spells otherwise than their stem.
constexpr OddNames OddTextFiles[] = {
    {37, u"Cursing_attack_name", u"Cursin_attack_desc"},
    {68, u"Frightful_precence_name", u"Frightful_presence_desc"},
    {95, u"Life_drain_name", u"Life_drain_desct"},
    {98, u"Lizard_bite_name", u"Lizard_bite_desc"},
    {102, u"Magic_proof50_name", u"Magic_proof50_desc"},
    {103, u"Magic_proof75_name", u"Magic_proof75_desc"},
    {132, u"Rebrith_name", u"Rebrith_desc"},
    {145, u"Shield_other_name", u"Shield_other_desc"},
};

const QString Extension = QStringLiteral(".txt");

QString Stem(int index) {
    return QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(index)].stem);
}

/// The text trees of one language that are there, the one that wins first.
std::vector<PathLookup> TreesOf(const QString& languageCode, const ProgramPlaces& places) {
    std::vector<PathLookup> trees;
    for (const QString& folder : {places.settingsFolder, places.programFolder})
        if (const QString root =
                PathLookup(folder).Find(QStringList(languageCode) + AbilityTextLevels());
            !root.isEmpty())
            trees.emplace_back(root);
    return trees;
}

QString LoadText(PathLookup& tree, const QStringList& levels, CodePage fallback) {
    auto content = ReadFile(tree.Spelled(levels), LargestAbilityText);
    if (std::holds_alternative<FileObstacle>(content)) {
        const QString otherCase = tree.Find(levels);
        if (otherCase.isEmpty())
            return {};
        content = ReadFile(otherCase, LargestAbilityText);
    }
    const auto* bytes = std::get_if<QByteArray>(&content);
    return bytes == nullptr ? QString() : DecodeText(*bytes, fallback);
}

QString LoadText(std::vector<PathLookup>& trees, const QStringList& levels, CodePage fallback) {
    QString text;
    for (PathLookup& tree : trees)
        if (text = LoadText(tree, levels, fallback); !text.isEmpty())
            break;
    return text;
}

QString WithoutLineEnd(const QString& text) {
    if (text.endsWith(QLatin1String("\r\n")))
        return text.chopped(2);
    if (text.endsWith(u'\n') || text.endsWith(u'\r'))
        return text.chopped(1);
    return text;
}

} // namespace

void AbilityTextFiles(SharedState& state, int index) {
    const AbilityRow& row = AbilityCatalogue[static_cast<std::size_t>(index)];
    const QString stem = Stem(index);
    switch (row.files) {
    case TextFileNames::Stem:
        state.AbilityNameFile = stem + QLatin1String("_name");
        state.AbilityDescFile = stem + QLatin1String("_desc");
        break;
    case TextFileNames::Plain:
        state.AbilityNameFile = QStringLiteral("name");
        state.AbilityDescFile = QStringLiteral("description");
        break;
    case TextFileNames::Odd: {
        const auto* odd =
            std::find_if(std::begin(OddTextFiles), std::end(OddTextFiles),
                         [index](const OddNames& names) { return names.index == index; });
        state.AbilityNameFile = QString::fromUtf16(odd->nameFile);
        state.AbilityDescFile = QString::fromUtf16(odd->descFile);
        break;
    }
    }
}

std::vector<AbilityText> AbilityTexts() {
    std::vector<AbilityText> texts;
    SharedState names;
    for (int i = 1; i <= Ability::Count; ++i) {
        AbilityTextFiles(names, i);
        texts.push_back({Stem(i), names.AbilityNameFile + Extension, i, true});
        texts.push_back({Stem(i), names.AbilityDescFile + Extension, i, false});
    }
    return texts;
}

QStringList AbilityTextLevels() {
    return {QStringLiteral("Text"), QStringLiteral("Game"), QStringLiteral("Creatures"),
            QStringLiteral("Creature_abilities")};
}

void LoadAbilityTexts(Program& program) {
    SharedState& state = program.state;
    const CodePage fallback =
        state.LanguageCode == QLatin1String("RU") ? CodePage::Windows1251 : CodePage::Windows1252;
    std::vector<PathLookup> trees = TreesOf(state.LanguageCode, program.platform.Places());
    for (int i = 1; i <= Ability::Count; ++i) {
        AbilityTextFiles(state, i);
        const QString name =
            LoadText(trees, {Stem(i), state.AbilityNameFile + Extension}, fallback);
        const QString desc =
            LoadText(trees, {Stem(i), state.AbilityDescFile + Extension}, fallback);
        program.form.utbN(i).SetText(WithoutLineEnd(name));
        program.form.utbD(i).SetText(desc);
    }
}

} // namespace Hesperin
