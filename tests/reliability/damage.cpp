#include "reliability/damage.h"

#include <QString>
#include <QStringEncoder>

namespace Hesperin {

namespace {

QByteArray Encoded(const QByteArray& utf8, QStringConverter::Encoding encoding, bool mark) {
    QStringEncoder encoder(encoding, mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(QString::fromUtf8(utf8));
}

QByteArray Declared(const QByteArray& bytes, const char* encoding) {
    const qsizetype end = bytes.startsWith("<?xml") ? bytes.indexOf("?>") + 2 : 0;
    return QByteArray("<?xml version=\"1.0\" encoding=\"") + encoding + "\"?>" + bytes.mid(end);
}

QByteArray WithType(const QByteArray& bytes, const QByteArray& declarations) {
    const qsizetype root = bytes.indexOf("<Creature");
    return root < 0 ? bytes : QByteArray(bytes).insert(root, "<!DOCTYPE Creature [" + declarations + "]>");
}

} // namespace

struct Damage::Kind {
    const char* name;
    QByteArray (*act)(Damage& damage, QByteArray bytes);
};

#define TO []([[maybe_unused]] Damage & d, QByteArray b) -> QByteArray
// clang-format off
const Damage::Kind Damage::Kinds[] = {
    {"cut off",            TO { return b.left(d.Below(b.size())); }},
    {"beginning lost",     TO { return b.mid(d.Below(b.size())); }},
    {"a bit flipped",      TO { if (!b.isEmpty()) b[d.Below(b.size())] ^= static_cast<char>(1 << d.Below(8)); return b; }},
    {"bytes overwritten",  TO { for (qsizetype n = d.Below(20); n > 0 && !b.isEmpty(); --n) b[d.Below(b.size())] = static_cast<char>(d.Below(256)); return b; }},
    {"bytes inserted",     TO { return b.insert(d.Below(b.size()), QByteArray(d.Below(50), static_cast<char>(d.Below(256)))); }},
    {"a null inserted",    TO { return b.insert(d.Below(b.size()), '\0'); }},
    {"elements dropped",   TO { const Piece p = d.Lines(b); return b.remove(p.at, p.length); }},
    {"elements doubled",   TO { const Piece p = d.Lines(b); return b.insert(p.at, b.mid(p.at, p.length)); }},
    {"elements moved",     TO { const Piece p = d.Lines(b); const QByteArray m = b.mid(p.at, p.length); b.remove(p.at, p.length); return b.insert(d.LineStart(b), m); }},
    {"a tag renamed",      TO { const Piece p = d.TagName(b); return b.replace(p.at, p.length, "Odd"); }},
    {"a root renamed",     TO { return b.replace("Creature>", "Monster>"); }},
    {"tags swapped",       TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, "</A><A>"); }},
    {"wrongly nested",     TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, "<A><B></A></B>"); }},
    {"nested deep",        TO { const qsizetype n = d.Below(10'000); const Piece p = d.Content(b); return b.replace(p.at, p.length, QByteArray("<A>").repeated(n) + QByteArray("</A>").repeated(n)); }},
    {"a huge number",      TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, QByteArray("9").repeated(1 + d.Below(400))); }},
    {"a negative number",  TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, "-" + QByteArray::number(d.Below(99'999))); }},
    {"an odd number",      TO { const Piece p = d.Content(b); constexpr const char* odd[] = {"1e999", "-1e-999", "0x7F", "nan", "inf", "1.5.5", "+-1", "٣", "1,5", "32767.5", "-32768.5", "."}; return b.replace(p.at, p.length, odd[d.Below(12)]); }},
    {"no number",          TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, QByteArray(d.Below(100), 'x')); }},
    {"a long text",        TO { const Piece p = d.Content(b); return b.replace(p.at, p.length, QByteArray(d.Below(40'000), 'x')); }},
    {"an entity",          TO { return b.insert(d.LineStart(b), "&gold;"); }},
    {"an entity in use",   TO { const Piece p = d.Content(b); return WithType(b.replace(p.at, p.length, "&e;"), "<!ENTITY e '" + QByteArray(d.Below(5000), '7') + "'>"); }},
    {"entities that grow", TO { const Piece p = d.Content(b); return WithType(b.replace(p.at, p.length, "&d;"), "<!ENTITY a 'hahahahaha'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;'>"); }},
    {"an external entity", TO { const Piece p = d.Content(b); return WithType(b.replace(p.at, p.length, "&e;"), "<!ENTITY e SYSTEM 'file:///dev/zero'>"); }},
    {"many attributes",    TO { const Piece p = d.TagName(b); QByteArray a; for (qsizetype n = d.Below(9000); n > 0; --n) a += " a" + QByteArray::number(n) + "=''"; return b.insert(p.at + p.length, a); }},
    {"a comment opened",   TO { return b.insert(d.LineStart(b), "<!--"); }},
    {"a section opened",   TO { return b.insert(d.LineStart(b), "<![CDATA["); }},
    {"UTF-16",             TO { return Encoded(b, d.Below(2) == 0 ? QStringConverter::Utf16LE : QStringConverter::Utf16BE, d.Below(3) > 0); }},
    {"UTF-32",             TO { return Encoded(b, d.Below(2) == 0 ? QStringConverter::Utf32LE : QStringConverter::Utf32BE, d.Below(3) > 0); }},
    {"a mark",             TO { return b.insert(d.Below(2) * d.Below(b.size()), "\xEF\xBB\xBF"); }},
    {"another encoding",   TO { constexpr const char* names[] = {"UTF-16", "UTF-32", "windows-1251", "windows-1252", "ISO-8859-1", "KOI8-R", "x-none", "", "utf-8\" standalone=\"maybe"}; return Declared(b, names[d.Below(9)]); }},
    {"no declaration",     TO { return b.mid(std::max<qsizetype>(0, b.indexOf("<Creature"))); }},
    {"blanks",             TO { return b.insert(d.LineStart(b), QByteArray(d.Below(1'200'000), ' ')); }},
    {"text behind",        TO { return b + QByteArray(d.Below(1000), 'x'); }},
    {"two documents",      TO { return b + b; }},
    {"old line ends",      TO { return b.replace("\r\n", "\r"); }},
};
// clang-format on
#undef TO

QByteArray Damage::Do(QByteArray bytes) {
    story.clear();
    for (qsizetype count = Below(4) == 0 ? 2 : 1; count > 0; --count) {
        const Kind& kind = Kinds[Below(static_cast<qsizetype>(std::size(Kinds)))];
        story += (story.isEmpty() ? "" : ", ") + QByteArray(kind.name);
        bytes = kind.act(*this, std::move(bytes));
    }
    return bytes;
}

qsizetype Damage::LineStart(const QByteArray& bytes) { return bytes.indexOf('\n', Below(bytes.size())) + 1; }

Damage::Piece Damage::Lines(const QByteArray& bytes) {
    const qsizetype at = LineStart(bytes);
    const qsizetype end = bytes.indexOf('\n', std::min(bytes.size(), at + Below(200))) + 1;
    return {at, std::max<qsizetype>(0, end - at)};
}

Damage::Piece Damage::TagName(const QByteArray& bytes) {
    const qsizetype at = bytes.indexOf('<', Below(bytes.size())) + 1;
    qsizetype end = at;
    while (end < bytes.size() && static_cast<unsigned char>(bytes[end]) > ' ' && bytes[end] != '>' && bytes[end] != '/')
        ++end;
    return {at, end - at};
}

Damage::Piece Damage::Content(const QByteArray& bytes) {
    const qsizetype at = bytes.indexOf('>', Below(bytes.size())) + 1;
    return {at, std::max<qsizetype>(0, bytes.indexOf('<', at) - at)};
}

} // namespace Hesperin
