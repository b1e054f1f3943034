// Small questions asked of a creature file's text. Nothing here walks a tree: every answer rests on
// the first occurrence of literal pieces, and none has a notion of word ends.
#pragma once

#include "text/text_buffer.h"

#include <cstdint>
#include <optional>

namespace Hesperin {

/// Positions that the scanning operations leave behind: 0-based, -1 for what wasn't found.
struct ScanPositions {
    std::int16_t TokenPosition = 0;
    std::int16_t SpecabilityTokenPosition = 0;
};

/// The number between two tags.
struct TagNumberResult {
    std::int16_t value = 0;
    bool found = false; ///< false: a tag is missing, or the first closing tag comes first
    bool limited =
        false;        ///< the number lies outside 16 bits; `value` is the nearest end of the range
    QStringView text; ///< what stands between the tags, a part of the buffer's text
};

/// The number at the start of the text between the first `openingTag` and the first `closingTag`,
/// both with their brackets, letter case counting; 0 when that text starts with none, rounded to 16
/// bits.
TagNumberResult TagNumber(const TextBuffer& buffer, QStringView openingTag, QStringView closingTag);

/// 1 if "true" stands one character behind the first occurrence of `tagName` (without brackets,
/// letter case not counting), else 0.
std::int16_t TagIsTrue(const TextBuffer& buffer, QStringView tagName);

/// 1 if the token occurs, letter case not counting, else 0; a token at the very start of the text
/// counts as not found. Leaves its 0-based position, or -1, in TokenPosition.
std::int16_t FindToken(ScanPositions& positions, const TextBuffer& buffer, QStringView token);

/// The same with SpecabilityTokenPosition.
std::int16_t FindSpecabilityToken(ScanPositions& positions, const TextBuffer& buffer,
                                  QStringView token);

/// The mastery level, 0 to 4, by the word behind "MASTERY_" at the first occurrence of `token`,
/// which begins with it; -1 when the token or its word isn't there. The buffer holds an excerpt of
/// the file, the window that begins at a spell's token.
std::int16_t MasteryInSpellWindow(const TextBuffer& buffer, QStringView token);

/// The same for the excerpt that begins at a special ability.
std::int16_t MasteryInSpecabilityWindow(const TextBuffer& buffer, QStringView token);

/// Decimal text of the 1-based position of ".(AdvMapMonsterShared)"; "0" when it isn't there.
QString SharedMarkText(const TextBuffer& buffer);

/// What stands between the last "/" of a reference and `endMark`; the reference begins at
/// `startMark`. Empty when it holds no "/"; none when a mark is missing or the end mark comes
/// first.
std::optional<QString> HrefLeaf(const TextBuffer& buffer, QStringView startMark,
                                QStringView endMark);

/// The name in the reference to the shared map object, as it was before it was written as XML; none
/// when a mark of the reference is missing.
std::optional<QString> CreatureNameIn(const TextBuffer& buffer);

} // namespace Hesperin
