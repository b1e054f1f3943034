#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <vector>

namespace Hesperin {

/// Where each group of four neighbouring characters stands in a text, letter case not counting, so
/// that a search looks only at places where the end of its needle can be. Reading a creature file
/// asks for more than 350 needles, nearly all of them absent: the index saves each a pass over the
/// text.
class TextIndex {
public:
    /// 0-based position of the first occurrence of `needle` in a short text, letter case not
    /// counting, or -1. The toolkit's own search is made for long ones.
    static qsizetype FindInShort(QStringView text, QStringView needle);

    /// Positions are held in 16 bits.
    static constexpr qsizetype LongestText = 32767;

    /// Indexes `text`, at most LongestText units long, which must stay alive and unchanged.
    void Build(QStringView text);

    /// 0-based position of the first occurrence of `needle`, at least 4 units long, or -1.
    qsizetype Find(QStringView needle, Qt::CaseSensitivity sensitivity) const;

private:
    static constexpr int TableBits = 11;
    static constexpr std::uint16_t None = 0xFFFF;

    static std::size_t Slot(const char16_t* folded);

    QStringView text;
    std::vector<char16_t> folded;                      // the text, letter case folded
    std::vector<std::uint16_t> next;                   // next later group of the same slot
    std::array<std::uint16_t, 1 << TableBits> first{}; // first group of each slot
};

} // namespace Hesperin
