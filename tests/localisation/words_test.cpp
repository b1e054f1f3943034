#include "localisation/captions.h"
#include "localisation/error_text.h"
#include "localisation/judgement_text.h"
#include "localisation/languages.h"
#include "support/cases_file.h"
#include "support/error_in_words.h"

namespace Hesperin {

namespace {

/// "WrongRoot; value Monster; expected 9; opening FILE; saving FILE; at 3 7; in Exp"
Error ErrorFrom(const QString& words) {
    const QStringList parts = words.split("; ");
    Error error{static_cast<Error::What>(ErrorNames().indexOf(parts[0]))};
    for (const QString& part : parts.mid(1)) {
        const QString name = part.section(' ', 0, 0);
        const QString text = part.section(' ', 1);
        if (name == "at") {
            error.line = text.section(' ', 0, 0).toInt();
            error.column = text.section(' ', 1).toInt();
        } else if (name == "opening" || name == "saving") {
            error.file = text;
            error.doing = name == "opening" ? Error::Doing::Opening : Error::Doing::Saving;
        } else {
            (name == "in" ? error.element : name == "value" ? error.value : error.expected) = text;
        }
    }
    return error;
}

TEST(Words, OfErrorsAreInBothLanguages) {
    QStringList told;
    ExpectCases("localisation/errors.txt", [&](const QString& act) {
        const Error error = ErrorFrom(act);
        told.append(NameOf(error.what));
        return ErrorText(MessagesIn(English), error) + '\n' + ErrorText(MessagesIn(Russian), error);
    });
    told.removeDuplicates();
    EXPECT_EQ(told.size(), ErrorNames().size()) << "each has a case";
}

TEST(Words, OfCorrectionsAndNotesAreInBothLanguages) {
    const QStringList names =
        QString("Mana Shots Attack Defence Health MinDam MaxDam DamageOrder Speed Initiative Tier").split(' ');
    const auto textIn = [&](std::uint8_t language, const QString& act) {
        const Messages& messages = MessagesIn(language);
        const auto number = [&](int part) { return static_cast<std::int16_t>(act.section(' ', part, part).toInt()); };
        if (act.startsWith("tier"))
            return TierAdviceText(messages, number(1), number(2));
        if (act.startsWith("notes"))
            return NotesText(messages, {SaveNote::OtherNamesKeepOld, SaveNote::OwnerNotKept, SaveNote::MayNotLast});
        const auto caption = [language](QLatin1String control) { return CaptionIn(language, control); };
        return CorrectionText(messages, caption, {static_cast<Correction::What>(names.indexOf(act)), "0", 1});
    };
    ExpectCases("localisation/judgements.txt",
                [&](const QString& act) { return textIn(English, act) + '\n' + textIn(Russian, act); });
}

TEST(Captions, EachControlHasOneRow) {
    for (const CaptionRow& row : CaptionRows)
        EXPECT_EQ(CaptionsOf(QLatin1String(row.control)), &row.texts) << row.control;
    EXPECT_EQ(CaptionsOf(QLatin1String("txtAttack")), nullptr);
    EXPECT_EQ(CaptionIn(Russian, QLatin1String("txtAttack")), "");
}

} // namespace

} // namespace Hesperin
