// Edits in place of any file: the first line of the input holds the changes, the rest is the file.
// What comes out opens, differs where it was asked to alone, and takes the same changes again
// without a change.
#include "fuzz_program.h"

#include "creature_files/change.h"
#include "reports/line_diff.h"

using namespace Hesperin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype lineEnd = input.indexOf('\n');
    const QByteArray bytes = input.mid(lineEnd + 1);
    auto file = EditedFile::Open(bytes);
    if (lineEnd < 0 || !file)
        return 0;
    const auto unchanged = file->Write();
    Require(unchanged && *unchanged == bytes, "without a change it stays as it is");
    std::vector<Error> notes;
    for (const QString& text : QString::fromUtf8(input.left(lineEnd)).split(u' '))
        if (const auto change = ReadChange(text))
            Apply(*change, size % 2 == 0, *file, notes);
    const auto edited = file->Write();
    if (!edited)
        return 0;
    Require(!file->Changes().empty() || *edited == bytes, "each change is told");
    LineDiff(bytes, *edited);
    auto again = EditedFile::Open(*edited);
    Require(static_cast<bool>(again), "it can be opened");
    for (const FileChange& change : file->Changes()) {
        if (EditedFile::IsList(change.element))
            continue;
        const auto content = again->Content(change.element);
        Require(content && *content, "a change has its place");
        Require((*content)->trimmed() == change.now->trimmed(), "a change stands there");
    }
    return 0;
}
