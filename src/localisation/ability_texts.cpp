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

/// No text of the game comes near it.
constexpr qint64 LargestText = 1 << 20;

QString LoadText(PathLookup& tree, const QStringList& levels, CodePage fallback) {
    const QString path = tree.Find(levels);
    if (path.isEmpty())
        return {};
    const auto content = ReadFile(path, LargestText);
    const auto* bytes = std::get_if<QByteArray>(&content);
    return bytes == nullptr ? QString() : DecodeText(*bytes, fallback);
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
    const QString stem = QString::fromUtf16(row.stem);
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

void LoadAbilityTexts(Program& program) {
    SharedState& state = program.state;
    const CodePage fallback =
        state.LanguageCode == QLatin1String("RU") ? CodePage::Windows1251 : CodePage::Windows1252;
    PathLookup program_folder(program.platform.ProgramFolder());
    const QString root =
        program_folder.Find({state.LanguageCode, QStringLiteral("Text"), QStringLiteral("Game"),
                             QStringLiteral("Creatures"), QStringLiteral("Creature_abilities")});
    if (root.isEmpty()) {
        for (int i = 1; i <= Ability::Count; ++i) {
            program.form.utbN(i).SetText({});
            program.form.utbD(i).SetText({});
        }
        return;
    }
    PathLookup tree(root);
    for (int i = 1; i <= Ability::Count; ++i) {
        AbilityTextFiles(state, i);
        const QString stem = QString::fromUtf16(AbilityCatalogue[static_cast<std::size_t>(i)].stem);
        const QString extension = QStringLiteral(".txt");
        const QString name = LoadText(tree, {stem, state.AbilityNameFile + extension}, fallback);
        program.form.utbN(i).SetText(WithoutLineEnd(name));
        program.form.utbD(i).SetText(
            LoadText(tree, {stem, state.AbilityDescFile + extension}, fallback));
    }
}

} // namespace Hesperin
