#include "creature_files/creature_in_words.h"
#include "creature_files/creature_xml.h"
#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

QMap<QString, QString> InWords(const ReadCreature& read) {
    QMap<QString, QString> words = InWords(read.creature);
    const FileFigures& figures = read.figures;
    words["File"] = QString("Power %1, Experience %2, Growth %3, Gold %4")
                        .arg(figures.FilePower)
                        .arg(figures.FileExperience)
                        .arg(figures.FileGrowth)
                        .arg(figures.FileGold);
    words["Read name"] = read.name.value_or("none");
    words["Missing"] = read.missing.join(' ');
    QStringList limited;
    for (const LimitedNumber& number : read.limited)
        limited.append(number.element + ' ' + number.text + " -> " + QString::number(number.value));
    words["Limited"] = limited.join(", ");
    words["Window of a spell"] = QString(read.spellExcerpt).replace('\n', '|').remove('\t');
    words["Window of a specability"] = QString(read.specabilityExcerpt).replace('\n', '|').remove('\t');
    return words;
}

/// Changes the document: "Speed=5", "without Speed", "lead MARKUP", "reference HREF", "spell TOKEN MASTERY",
/// "ability TOKEN".
void Change(CreatureXml& document, const QString& words) {
    const QString verb = words.section(' ', 0, 0);
    const QString rest = words.section(' ', 1);
    if (verb == "without")
        document.Remove(rest);
    else if (verb == "lead")
        document.Lead(rest);
    else if (verb == "reference")
        document.Reference(rest);
    else if (verb == "spell")
        document.Spell(rest.section(' ', 0, 0), rest.section(' ', 1));
    else if (verb == "ability")
        document.Ability(rest);
    else
        document.Set(words.section('=', 0, 0), words.section('=', 1));
}

QMap<QString, QString> Read(const QByteArray& bytes, const Creature& cleared = EmptyCreature()) {
    return InWords(ReadCreatureText(*NormaliseCreature(bytes), cleared));
}

/// "on ..." changes the creature that is read over; "nothing" is a file without any element.
QString Outcome(const QString& act) {
    CreatureXml document;
    Creature cleared = EmptyCreature();
    for (const QString& words : act.split("; "))
        if (words.startsWith("on "))
            Enter(cleared, words.mid(3));
        else if (words != "nothing" && words != "basis")
            Change(document, words);
    const auto words = Read(act.startsWith("nothing") ? QByteArray("<Creature/>") : document.Bytes(), cleared);
    const auto basis = act == "basis"              ? decltype(words){}
                       : act.startsWith("nothing") ? InWords(cleared)
                                                   : Read(CreatureXml().Bytes());
    QStringList changes;
    for (auto word = words.begin(); word != words.end(); ++word)
        if (basis.value(word.key()) != word.value())
            changes.append((word.key() + ": " + word.value()).trimmed());
    return changes.join('\n');
}

TEST(Reader, TakesFromEachElementWhatItSays) { ExpectCases("creature_files/reading.txt", Outcome); }

TEST(Reader, MasteryCountsOnlyInsideItsWindow) {
    ExpectCases("creature_files/mastery_windows.txt", [](const QString& token) {
        QMap<QString, QString> levels;
        for (const char* word : {"NONE", "BASIC", "ADVANCED", "EXPERT", "EXTRA_EXPERT", "GRAND", "expert"}) {
            const auto words = Read(CreatureXml().Spell(token, word).Bytes());
            for (const QString& known : (words["Spells"] + words["Specabilities"]).split(", "))
                levels[known.section(' ', 0, 0)] += ' ' + known.section(' ', 1);
        }
        QStringList lines;
        for (auto skill = levels.begin(); skill != levels.end(); ++skill)
            lines.append(skill.key() + ':' + skill.value());
        return lines.join('\n');
    });
}

} // namespace

} // namespace Hesperin
