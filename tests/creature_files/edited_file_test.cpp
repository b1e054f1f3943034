#include "creature_files/change.h"
#include "creature_files/document.h"
#include "creature_files/file_tokens.h"
#include "creature_files/reader.h"
#include "creature_files/update_plan.h"
#include "creature_files/writer.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "support/cases_file.h"

#include <QRegularExpression>

#include <random>

namespace Hesperin {

namespace {

const QList<std::pair<QString, QString>> EscapesOfCases{
    {"\\n", "\n"}, {"\\r", "\r"}, {"\\t", "\t"}, {"\\b", "\b"}, {"\\s", " "}};

/// What comes of the changes in front of " :: " in the elements behind it.
QString EditOutcome(const QString& act) {
    QString source = act.section(" :: ", 1);
    const bool isWhole = source.contains(QRegularExpression("<Creature[ />]"));
    for (const auto& [spelled, character] : EscapesOfCases)
        source.replace(spelled, character);
    const QString start = isWhole ? "" : "<Creature>\n\t";
    const QString end = isWhole ? "" : "\n</Creature>";
    auto file = EditedFile::Open((start + source + end).toUtf8());
    Failure failure = file ? Failure() : file.Why();
    std::vector<Error> notes;
    for (QString text : act.section(" :: ", 0, 0).split(' ')) {
        for (const auto& [spelled, character] : EscapesOfCases)
            text.replace(spelled, character);
        const auto change = ReadChange(text);
        if (!change)
            return "no change: " + text;
        if (!failure)
            failure = Apply(*change, false, *file, notes);
    }
    const auto edited = failure ? Result<QByteArray>(*failure) : file->Write();
    if (!edited)
        return "refused: " + ErrorReason(MessagesIn(English), edited.Why());
    QString result = QString::fromUtf8(*edited).sliced(start.size()).chopped(end.size());
    for (const auto& [spelled, character] : EscapesOfCases)
        if (character != " ")
            result.replace(character, spelled);
    return result;
}

TEST(EditedFile, ChangesOnlyWhatIsAskedFor) { ExpectCases("edits/edits.txt", EditOutcome); }

TEST(EditedFile, KeepsTheLimits) {
    const QByteArray end = "<Health>4</Health></Creature>";
    const auto padded = [&end](qsizetype size, char filler) {
        const QByteArray start = filler == ' ' ? "<Creature>" : "<Creature><X>";
        const QByteArray stop = filler == ' ' ? end : "</X>" + end;
        return start + QByteArray(size - start.size() - stop.size(), filler) + stop;
    };
    const auto setting = [](const QByteArray& bytes) -> Failure {
        auto file = EditedFile::Open(bytes);
        if (!file)
            return file.Why();
        if (auto failure = file->Set("Health", "40"))
            return failure;
        const auto edited = file->Write();
        return edited ? Failure() : edited.Why();
    };
    EXPECT_EQ(setting(padded(LargestCreatureFile - 1, ' ')), Failure());
    EXPECT_EQ(setting(padded(LargestCreatureFile, ' ')).value_or(Error{}).what, Error::What::FileTooLarge);
    qsizetype longest = 32000; // of what can be opened
    while (EditedFile::Open(padded(longest + 1, 'x')))
        ++longest;
    EXPECT_EQ(setting(padded(longest - 1, 'x')), Failure());
    EXPECT_EQ(setting(padded(longest, 'x')).value_or(Error{}).what, Error::What::TextTooLong);
}

TEST(EditedFile, RefusesWhatWouldBeReadOtherwise) {
    auto file =
        EditedFile::Open("<?xml version='1.0' encoding='ISO-8859-1'?><Creature><X><![CDATA[a]]></X></Creature>");
    ASSERT_TRUE(file);
    ASSERT_EQ(file->Set("X", QString::fromUtf8("Ж")), Failure()); // which CDATA can't hold here
    EXPECT_EQ(file->Write().Why().what, Error::What::UnsafeEdit);
}

class EditPlay {
public:
    explicit EditPlay(unsigned seed) : random(seed) {}

    /// A creature as a file says it, with some of what `creature` has drawn anew.
    Creature Drawn(Creature creature, int changes) {
        for (int i = 0; i < changes; ++i)
            Draw(creature);
        const QByteArray text = BuildCreatureText(creature, "Test", 1).text.toUtf8();
        Creature read = ReadCreatureText(*NormaliseCreature(text), EmptyCreature()).creature;
        read.SpellPoints1Count = ChargesOf(read);
        return read;
    }

    /// A file of it, in a layout drawn at random.
    QByteArray Laid(const Creature& creature) {
        QString text = BuildCreatureText(creature, "Test", creature.Numbers[NumberField::Growth].toDouble()).text;
        text.replace('\t', QStringList{"\t", "  ", "    ", ""}[Below(4)]);
        text.replace("/>", Below(2) == 0 ? " />" : "/>");
        text.replace("</Health>", "</Health> <!-- " + QString::fromUtf8("Ж") + " -->");
        if (Below(2) == 0)
            text.replace("<Abilities>", "<!-- before -->\n<Abilities><!-- in -->");
        text.replace('\n', QStringList{"\n", "\r\n", ""}[Below(3)]);
        return text.toUtf8();
    }

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

private:
    void Draw(Creature& creature) {
        const auto toggle = [this](Skill& skill) {
            skill = skill.known ? Skill{} : Skill{true, static_cast<std::int16_t>(Below(5))};
        };
        switch (Below(5)) {
        case 0:
            creature.Numbers[static_cast<NumberField>(Below(static_cast<int>(NumberField::Count)))] =
                QString::number(Below(90));
            break;
        case 1: {
            const auto list = static_cast<ListField>(Below(static_cast<int>(ListField::Count)));
            creature.Choose(list, static_cast<std::int16_t>(Below(2)));
            break;
        }
        case 2:
            toggle(creature.Spells[static_cast<std::size_t>(1 + Below(SpellCount))]);
            break;
        case 3:
            toggle(creature.Specabilities[static_cast<std::size_t>(1 + Below(SpecabilityCount))]);
            break;
        default: {
            const int ability = 1 + Below(Ability::Count);
            creature.Set(ability, !creature.Has(ability));
        }
        }
        creature.SpecabilityFlag = FlagTrue; // so that all is written
    }

    std::mt19937 random;
};

/// The file without the lines, or elements on one line, that the changes are about.
QStringList Rest(const QByteArray& file, const std::vector<FileChange>& changes) {
    QString text = QString::fromUtf8(file).replace("><", ">\n<").replace(QRegularExpression("\\r?\\n\\s*"), "\n");
    for (const FileChange& change : changes) {
        const QString name = change.element.section('/', -1);
        text.remove(QRegularExpression("<" + name + "(\\s*/>|>[\\s\\S]*</" + name + ">)\n?"));
    }
    return text.split('\n');
}

TEST(EditedFile, RandomEditsReadBackAsTheCreatureAndTouchNothingElse) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        EditPlay play(seed);
        const Creature before = play.Drawn(EmptyCreature(), 40);
        const QByteArray file = play.Laid(before);
        const Creature after = play.Drawn(before, 1 + play.Below(20));
        const auto plan = PlanUpdate(file, before, after, file);
        ASSERT_TRUE(plan) << static_cast<int>(plan.Why().what) << plan.Why().value.toStdString();
        ASSERT_TRUE(plan->conflicts.empty());
        const auto edited = plan->file.Write();
        ASSERT_TRUE(edited) << file.toStdString();
        Creature read = ReadCreatureText(*NormaliseCreature(*edited), EmptyCreature()).creature;
        read.SpellPoints1Count = ChargesOf(read);
        EXPECT_EQ(read, after) << edited->toStdString();
        EXPECT_EQ(Rest(*edited, plan->file.Changes()), Rest(file, plan->file.Changes()))
            << file.toStdString() << edited->toStdString();
    }
}

} // namespace

} // namespace Hesperin
