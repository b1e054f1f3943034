#include "text/csv_reader.h"

#include "text/csv.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// "1: a|b; 3: c|d", or where a quote opens without end.
std::string Told(const QByteArray& bytes) {
    const auto rows = ReadCsv(bytes);
    if (!rows)
        return "endless from " + std::to_string(rows.Why().line) + ':' + std::to_string(rows.Why().column);
    QStringList told;
    for (const CsvRow& row : *rows)
        told.append(QString::number(row.number) + ": " + row.cells.join('|'));
    return told.join("; ").toStdString();
}

TEST(CsvReader, ReadsWhatSpreadsheetsWrite) {
    const struct {
        QByteArray bytes;
        const char* rows;
    } cases[] = {
        {"", ""},
        {"\xEF\xBB\xBF", ""},
        {"a", "1: a"},
        {"a,b\r\nc,d\r\n", "1: a|b; 2: c|d"},
        {"a,b\nc,d", "1: a|b; 2: c|d"},
        {"a,b\rc,d\r", "1: a|b; 2: c|d"},
        {"\xEF\xBB\xBF"
         "a;b\r\n1,5;2",
         "1: a|b; 2: 1,5|2"},
        {"a\tb\r\n1,5\t2;3", "1: a|b; 2: 1,5|2;3"},
        {QByteArray("\xFF\xFE"
                    "a\0\t\0\x16\x04\r\0\n\0"
                    "1\0\t\0\t\0",
                    18),
         "1: a|Ж; 2: 1||"},
        {QByteArray("\xFE\xFF\0a\0\t\x04\x16\0\n", 10), "1: a|Ж"},
        {"\xD0\x96,b", "1: Ж|b"},
        {"\xC6,b", "1: Ж|b"},
        {"sep=;\r\na,b,c;d\r\n1;2", "1: a,b,c|d; 2: 1|2"},
        {"sep=|\na|b", "1: a|b"},
        {"SEP=\t\na\tb", "1: a|b"},
        {"sep=;", ""},
        {"sep=;;\n1", "1: sep=||; 2: 1"},
        {"\"a,,,,\nb\";c\r\n1;2", "1: a,,,,\nb|c; 2: 1|2"},
        {"a,b\n\"x,\"\"y\"\"\r\nz\",\n\"\",\"\"\"\"", "1: a|b; 2: x,\"y\"\r\nz|; 3: |\""},
        {"a,b\n\"x\"y, \"z\"", "1: a|b; 2: xy| \"z\""},
        {"a,b\n5\" x,1", "1: a|b; 2: 5\" x|1"},
        {"a,b,c\n\n,,\n1\n2,3,4,5\n\n", "1: a|b|c; 4: 1; 5: 2|3|4|5"},
        {"a,b\r\n\"1\r\n2\",\"3\n,4", "endless from 3:4"},
        {"\"", "endless from 1:1"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Told(row.bytes), row.rows) << row.bytes.toStdString();
}

TEST(CsvReader, AGuardIsTakenOffAgain) {
    const std::pair<const char*, const char*> cases[] = {
        {"=1+1", "'=1+1"}, {"-5", "'-5"}, {"@a", "'@a"}, {"\tb", "'\tb"}, {"'+a", "''+a"}, {"''=", "'''="},
        {"'a", "'a"},      {"'", "'"},    {"''", "''"},  {"", ""},        {"a'=", "a'="}};
    for (const auto& [text, cell] : cases) {
        EXPECT_EQ(Guarded(text), cell);
        EXPECT_EQ(WithoutGuard(cell), text);
    }
    EXPECT_EQ(WithoutGuard("-5"), "-5") << "numbers go without";
}

} // namespace

} // namespace Hesperin
