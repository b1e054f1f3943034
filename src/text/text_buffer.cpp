#include "text/text_buffer.h"

namespace Hesperin {

qsizetype TextBuffer::Search(QStringView needle, Qt::CaseSensitivity sensitivity) const {
    constexpr qsizetype worthAnIndex = 256; // the excerpts of 64 and 128 characters aren't
    constexpr qsizetype shortestNeedle = 4;
    if (text.size() < worthAnIndex && sensitivity == Qt::CaseInsensitive)
        return TextIndex::FindInShort(text, needle);
    if (text.size() < worthAnIndex || text.size() > TextIndex::LongestText ||
        needle.size() < shortestNeedle)
        return QStringView(text).indexOf(needle, 0, sensitivity);
    if (!indexed) {
        index.Build(text);
        indexed = true;
    }
    return index.Find(needle, sensitivity);
}

} // namespace Hesperin
