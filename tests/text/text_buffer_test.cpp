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
    ControlRegistry registry;
    TextBuffer buffer(registry, "buffer");
    for (int round = 0; round < 400; ++round) {
        const QString text = source.Text(lengths[source.Below(std::size(lengths))]);
        buffer.SetText(text);
        for (int needles = 0; needles < 12; ++needles) {
            const QString needle = source.Needle(text);
            SCOPED_TRACE(needle.toStdString() + " in a text of " + std::to_string(text.size()));
            ASSERT_EQ(buffer.ExactSearch(needle), NaiveFind(text, needle, true) + 1);
            ASSERT_EQ(buffer.LooseSearch(needle), NaiveFind(text, needle, false));
        }
    }
}

TEST(TextBuffer, FindsNothingThatReachesPastTheEndsOfALongText) {
    ControlRegistry registry;
    TextBuffer buffer(registry, "buffer");
    const QString text = "<Head>" + QString(400, u'.') + "</Жя>!";
    buffer.SetText(text);
    EXPECT_EQ(buffer.LooseSearch(u"</жЯ>!"), 406);
    EXPECT_EQ(buffer.LooseSearch(u"</Жя>!!"), -1);
    EXPECT_EQ(buffer.LooseSearch(u"!<Head>"), -1);
    EXPECT_EQ(buffer.ExactSearch(text), 1);
    EXPECT_EQ(buffer.ExactSearch(text + u'.'), 0);
}

TEST(TextBuffer, ANewTextLeavesNothingOfTheOldOneBehind) {
    ControlRegistry registry;
    TextBuffer buffer(registry, "buffer");
    struct View : ControlView {
        explicit View(const TextBuffer& watched) : buffer(watched) {}
        const TextBuffer& buffer;
        qsizetype found = -2;
        void Changed(Control&, Property) override { found = buffer.LooseSearch(u"second"); }
    } view(buffer);
    buffer.SetText(QString(500, u'-') + "first" + QString(500, u'-'));
    EXPECT_EQ(buffer.LooseSearch(u"first"), 500);
    buffer.SetView(&view);
    buffer.SetText(QString(400, u'-') + "second" + QString(599, u'-'));
    EXPECT_EQ(view.found, 400); // already while the view is told
    EXPECT_EQ(buffer.LooseSearch(u"second"), 400);
    EXPECT_EQ(buffer.LooseSearch(u"first"), -1);
    buffer.SetView(nullptr);
}

TEST(TextBuffer, APartIsCutToWhatThereIs) {
    ControlRegistry registry;
    TextBuffer buffer(registry, "buffer");
    buffer.SetText("abcdef");
    EXPECT_EQ(buffer.Part(1, 3).toString(), "abc");
    EXPECT_EQ(buffer.Part(5, 9).toString(), "ef");
    EXPECT_EQ(buffer.Part(7, 1).toString(), "");
    EXPECT_EQ(buffer.Part(0, 3).toString(), "ab");
}

} // namespace

} // namespace Hesperin
