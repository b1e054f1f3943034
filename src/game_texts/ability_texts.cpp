#include "game_texts/ability_texts.h"

#include "catalogue/ability_catalogue.h"
#include "system/path_lookup.h"
#include "system/read_file.h"
#include "text/decode_text.h"

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
    if (!content) {
        const QString otherCase = tree.Find(levels);
        if (otherCase.isEmpty())
            return {};
        content = ReadFile(otherCase, LargestAbilityText);
    }
    return content ? DecodeText(*content, fallback) : QString();
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

TextFiles AbilityTextFiles(int index) {
    const AbilityRow& row = AbilityCatalogue[static_cast<std::size_t>(index)];
    for (const OddNames& odd : OddTextFiles)
        if (odd.index == index)
            return {QString::fromUtf16(odd.nameFile), QString::fromUtf16(odd.descFile)};
    if (row.files == TextFileNames::Plain)
        return {QStringLiteral("name"), QStringLiteral("description")};
    const QString stem = Stem(index);
    return {stem + QLatin1String("_name"), stem + QLatin1String("_desc")};
}

std::vector<AbilityText> AbilityTexts() {
    std::vector<AbilityText> texts;
    for (int i = 1; i <= Ability::Count; ++i) {
        const TextFiles files = AbilityTextFiles(i);
        texts.push_back({Stem(i), files.AbilityNameFile + Extension, i, true});
        texts.push_back({Stem(i), files.AbilityDescFile + Extension, i, false});
    }
    return texts;
}

QStringList AbilityTextLevels() {
    return {QStringLiteral("Text"), QStringLiteral("Game"), QStringLiteral("Creatures"),
            QStringLiteral("Creature_abilities")};
}

std::array<AbilityWords, Ability::Count + 1> LoadAbilityTexts(const QString& languageCode,
                                                              const ProgramPlaces& places) {
    const CodePage fallback =
        languageCode == QLatin1String("RU") ? CodePage::Windows1251 : CodePage::Windows1252;
    std::vector<PathLookup> trees = TreesOf(languageCode, places);
    std::array<AbilityWords, Ability::Count + 1> words;
    for (const AbilityText& text : AbilityTexts()) {
        const QString content = LoadText(trees, {text.folder, text.file}, fallback);
        AbilityWords& ability = words[static_cast<std::size_t>(text.ability)];
        if (text.isName)
            ability.name = WithoutLineEnd(content);
        else
            ability.description = content;
    }
    return words;
}

} // namespace Hesperin
