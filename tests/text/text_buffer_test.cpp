#include "text/text_buffer.h"

#include <gtest/gtest.h>

#include <random>

namespace Hesperin {

namespace {

/// First place of `needle` by trying each in turn, or -1.
qsizetype NaiveFind(const QString& text, const QString& needle, bool caseCounts) {
    const auto same = [caseCounts](QChar a, QChar b) {
        return caseCounts ? a == b : a.toCaseFolded() == b.toCaseFolded();
    };
    for (qsizetype start = 0; start + needle.size() <= text.size(); ++start)
        if (std::equal(needle.begin(), needle.end(), text.begin() + start, same))
            return start;
    return -1;
}

/// Texts and needles from an alphabet so small that near misses are the rule.
class Source {
public:
    std::size_t Below(std::size_t end) { return random() % end; }

    QString Text(qsizetype length) {
        static const QString alphabet = "aAbBжЖяЯéÉ<>_ ſK1";
        QString text(length, Qt::Uninitialized);
        for (QChar& unit : text)
            unit = alphabet[static_cast<qsizetype>(Below(std::size_t(alphabet.size())))];
        return text;
    }

    /// Mostly a part of the text, at its ends more often than not, with some units' case or value
    /// changed.
    QString Needle(const QString& text) {
        const auto length = static_cast<qsizetype>(1 + Below(Below(4) == 0 ? 40 : 9));
        if (Below(6) == 0 || length > text.size())
            return Text(length);
        const qsizetype last = text.size() - length;
        const qsizetype starts[] = {0, last, static_cast<qsizetype>(Below(std::size_t(last) + 1))};
        QString needle = text.mid(starts[Below(3)], length);
        if (Below(2) == 0)
            needle = Below(2) == 0 ? needle.toUpper() : needle.toLower();
        if (Below(4) == 0)
            needle[static_cast<qsizetype>(Below(std::size_t(needle.size())))] = u'b';
        return needle;
    }

private:
    std::mt19937 random{20240217};
};

TEST(TextBuffer, FindsWhatANaiveSearchFinds) {
    constexpr qsizetype lengths[] = {0, 1, 3, 4, 5, 12, 64, 128, 255, 256, 257, 300, 1000, 24000, 32767, 32768};
    Source source;
    for (int round = 0; round < 400; ++round) {
        const QString text = source.Text(lengths[source.Below(std::size(lengths))]);
        const TextBuffer buffer(text);
        for (int needles = 0; needles < 12; ++needles) {
            const QString needle = source.Needle(text);
            SCOPED_TRACE(needle.toStdString() + " in a text of " + std::to_string(text.size()));
            ASSERT_EQ(buffer.ExactSearch(needle), NaiveFind(text, needle, true) + 1);
            ASSERT_EQ(buffer.LooseSearch(needle), NaiveFind(text, needle, false));
        }
    }
}

TEST(TextBuffer, FindsNothingAndCutsNothingThatReachesPastTheEnds) {
    const TextBuffer buffer("<Head>" + QString(400, u'.') + "</Жя>!");
    EXPECT_EQ(buffer.LooseSearch(u"</жЯ>!"), 406);
    for (const QString& needle : {QString("</Жя>!!"), QString("!<Head>"), buffer.Text() + u'.'})
        EXPECT_EQ(buffer.LooseSearch(needle), -1) << needle.toStdString();
    EXPECT_EQ(buffer.ExactSearch(buffer.Text()), 1);
    EXPECT_EQ(buffer.Part(1, 3).toString() + buffer.Part(411, 9).toString() + buffer.Part(0, 3).toString(), "<He>!<H");
    EXPECT_EQ(buffer.Part(413, 1).toString(), "");
}

} // namespace

} // namespace Hesperin
