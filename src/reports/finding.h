// What is wrong, or looks wrong, in a mod.
#pragma once

#include "localisation/messages.h"
#include "text/error.h"

#include <span>

namespace Hesperin {

enum class Severity : std::uint8_t { Error, Warning, Note };

enum class Rule : std::uint8_t {
    Document,
    ElementMissing,
    ElementTwice,
    Number,
    NumberRange,
    NumberOrder,
    FigureZero,
    TokenAbility,
    TokenSpell,
    TokenSpecability,
    TokenTwice,
    ElementSame,
    CasterMana,
    CasterSpells,
    ShooterRange,
    Nature,
    UpgradeWeaker,
    FigureOutlier,
    Link,
    Count
};

/// One rule: its name ("token.ability"), how grave a finding is, why it is one and what was
/// expected instead, in the four languages (null: none). %1 stands for the `expected` of the
/// finding.
struct RuleRow {
    const char* name;
    Severity severity;
    Texts reason;
    Texts expected;
};

extern const std::span<const RuleRow> RuleRows; ///< by Rule

/// Its words in a language: finding_text.h.
struct Finding {
    Rule rule{};
    Severity severity{}; ///< that of the rule, but for the note that links were not checked
    QString file;        ///< inner path; empty: of the whole mod
    qint64 line = 0;     ///< from 1; 0: no place
    qint64 column = 0;
    QString element;  ///< its path below Creature; of an attribute with @ and its name
    QString found;    ///< what stands there
    QString expected; ///< the word or number for the rule's sentence; empty: none
    Failure error{};  ///< of a document: why it can't be read

    bool operator==(const Finding&) const = default;
};

} // namespace Hesperin
