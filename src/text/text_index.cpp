#include "text/text_index.h"

#include <algorithm>
#include <cstring>

namespace Hesperin {

namespace {

constexpr qsizetype GroupLength = 4;

char16_t Fold(char16_t unit) {
    if (unit < 0x80)
        return static_cast<char16_t>(unit >= u'A' && unit <= u'Z' ? unit + 0x20 : unit);
    return QChar(unit).toCaseFolded().unicode();
}

} // namespace

qsizetype TextIndex::FindInShort(QStringView text, QStringView needle) {
    if (needle.isEmpty())
        return 0;
    const auto isSame = [](QChar a, QChar b) { return Fold(a.unicode()) == Fold(b.unicode()); };
    const char16_t first = Fold(needle.front().unicode());
    for (qsizetype at = 0; at <= text.size() - needle.size(); ++at)
        if (Fold(text[at].unicode()) == first &&
            std::equal(needle.begin(), needle.end(), text.begin() + at, isSame))
            return at;
    return -1;
}

std::size_t TextIndex::Slot(const char16_t* group) {
    std::uint64_t units = 0;
    static_assert(sizeof units == GroupLength * sizeof(char16_t));
    std::memcpy(&units, group, sizeof units);
    return static_cast<std::size_t>((units * 0x9E3779B97F4A7C15U) >> (64 - TableBits));
}

void TextIndex::Build(QStringView source) {
    text = source;
    folded.resize(static_cast<std::size_t>(text.size()));
    std::transform(text.utf16(), text.utf16() + text.size(), folded.begin(), Fold);
    next.resize(folded.size());
    first.fill(None);
    for (qsizetype at = text.size() - GroupLength; at >= 0; --at) {
        std::uint16_t& head = first[Slot(folded.data() + at)];
        next[static_cast<std::size_t>(at)] = head;
        head = static_cast<std::uint16_t>(at);
    }
}

qsizetype TextIndex::Find(QStringView needle, Qt::CaseSensitivity sensitivity) const {
    const qsizetype lead =
        needle.size() - GroupLength; // what stands in the needle before its last group
    std::array<char16_t, GroupLength> group{};
    std::transform(needle.utf16() + lead, needle.utf16() + needle.size(), group.begin(), Fold);

    for (std::uint16_t at = first[Slot(group.data())]; at != None; at = next[at]) {
        const qsizetype start = at - lead;
        if (start < 0)
            continue;
        const char16_t* candidate = folded.data() + start;
        const bool matches =
            sensitivity == Qt::CaseSensitive
                ? text.sliced(start, needle.size()) == needle
                : std::equal(needle.utf16(), needle.utf16() + needle.size(), candidate,
                             [](char16_t wanted, char16_t unit) { return Fold(wanted) == unit; });
        if (matches)
            return start;
    }
    return -1;
}

} // namespace Hesperin
