#include "creature_files/scanning.h"

#include "text/escape.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

struct MasteryWord {
    QStringView word;
    std::int16_t level;
};

constexpr MasteryWord MasteryWords[] = {
    {u"EXTRA", 4}, {u"EXPERT", 3}, {u"ADVANCED", 2}, {u"BASIC", 1}, {u"NONE", 0}};

std::int16_t MasteryIn(const TextBuffer& excerpt, QStringView token) {
    constexpr qsizetype behindPrefix = 9; // "MASTERY_" is 8 long, and parts are counted from 1
    const qsizetype position = excerpt.LooseSearch(token);
    for (const MasteryWord& mastery : MasteryWords)
        if (excerpt.Part(position + behindPrefix, mastery.word.size()) == mastery.word)
            return mastery.level;
    return -1;
}

std::int16_t Find(const TextBuffer& buffer, QStringView token, std::int16_t& position) {
    position = static_cast<std::int16_t>(buffer.LooseSearch(token));
    return position > 0 ? 1 : 0;
}

} // namespace

TagNumberResult TagNumber(const TextBuffer& buffer, QStringView openingTag,
                          QStringView closingTag) {
    const qsizetype opening = buffer.ExactSearch(openingTag);
    const qsizetype closing = opening > 0 ? buffer.ExactSearch(closingTag) : 0;
    const qsizetype start = opening + openingTag.size();
    if (opening == 0 || closing < start)
        return {};
    const QStringView text = buffer.Part(start, closing - start);
    const double number = TextToNumber(text);
    return {RoundTo16Bits(number), true, !FitsIn16Bits(number), text};
}

std::int16_t TagIsTrue(const TextBuffer& buffer, QStringView tagName) {
    constexpr qsizetype behindBracket = 2;
    const qsizetype position = buffer.LooseSearch(tagName);
    return buffer.Part(position + tagName.size() + behindBracket, 4) == u"true" ? 1 : 0;
}

std::int16_t FindToken(ScanPositions& positions, const TextBuffer& buffer, QStringView token) {
    return Find(buffer, token, positions.TokenPosition);
}

std::int16_t FindSpecabilityToken(ScanPositions& positions, const TextBuffer& buffer,
                                  QStringView token) {
    return Find(buffer, token, positions.SpecabilityTokenPosition);
}

std::int16_t MasteryInSpellWindow(const TextBuffer& buffer, QStringView token) {
    return MasteryIn(buffer, token);
}

std::int16_t MasteryInSpecabilityWindow(const TextBuffer& buffer, QStringView token) {
    return MasteryIn(buffer, token);
}

QString SharedMarkText(const TextBuffer& buffer) {
    return QString::number(buffer.ExactSearch(u".(AdvMapMonsterShared)"));
}

std::optional<QString> HrefLeaf(const TextBuffer& buffer, QStringView startMark,
                                QStringView endMark) {
    const qsizetype end = buffer.ExactSearch(endMark);
    const qsizetype start = buffer.ExactSearch(startMark);
    if (end == 0 || start == 0 || end < start)
        return std::nullopt;
    const QStringView reference = buffer.Part(start, end - start);
    const qsizetype slash = reference.lastIndexOf(u'/');
    return slash < 0 ? QString() : reference.sliced(slash + 1).toString();
}

std::optional<QString> CreatureNameIn(const TextBuffer& buffer) {
    const bool marked = SharedMarkText(buffer) != QLatin1String("0");
    auto name = HrefLeaf(buffer, u"MonsterShared href=",
                         marked ? u".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)"
                                : u".xdb#xpointer(/AdvMapMonsterShared)");
    if (name)
        name = Unescaped(*name);
    return name;
}

} // namespace Hesperin
