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

/// In bytes. No text of the game comes near it, and 348 of them fit into memory.
constexpr qint64 LargestText = 1 << 16;

constexpr const char* TextTree = "Text/Game/Creatures/Creature_abilities";
const QString Extension = QStringLiteral(".txt");

QString Stem(int index) {
    return QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(index)].stem);
}

QString LoadText(PathLookup& tree, const QStringList& levels, CodePage fallback) {
    auto content = ReadFile(tree.Spelled(levels), LargestText);
    if (std::holds_alternative<FileObstacle>(content)) {
        const QString otherCase = tree.Find(levels);
        if (otherCase.isEmpty())
            return {};
        content = ReadFile(otherCase, LargestText);
    }
    const auto* bytes = std::get_if<QByteArray>(&content);
    return bytes == nullptr ? QString() : DecodeText(*bytes, fallback);
}

/// The texts of every ability when the language has no tree.
void ClearAbilityTexts(MainForm& form) {
    for (StoredText& name : form.utbN)
        name.SetText({});
    for (StoredText& desc : form.utbD)
        desc.SetText({});
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

QString AbilityTextFolder(const QString& languageCode, int index) {
    return languageCode + u'/' + QLatin1String(TextTree) + u'/' + Stem(index);
}

void LoadAbilityTexts(Program& program) {
    SharedState& state = program.state;
    const CodePage fallback =
        state.LanguageCode == QLatin1String("RU") ? CodePage::Windows1251 : CodePage::Windows1252;
    const QStringList levels =
        QStringList(state.LanguageCode) + QString(QLatin1String(TextTree)).split(u'/');
    const QString root = PathLookup(program.platform.ProgramFolder()).Find(levels);
    if (root.isEmpty())
        return ClearAbilityTexts(program.form);
    PathLookup tree(root);
    for (int i = 1; i <= Ability::Count; ++i) {
        AbilityTextFiles(state, i);
        const QString name = LoadText(tree, {Stem(i), state.AbilityNameFile + Extension}, fallback);
        const QString desc = LoadText(tree, {Stem(i), state.AbilityDescFile + Extension}, fallback);
        program.form.utbN(i).SetText(WithoutLineEnd(name));
        program.form.utbD(i).SetText(desc);
    }
}

} // namespace Hesperin
