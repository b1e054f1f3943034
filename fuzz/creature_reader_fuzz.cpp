// From the bytes of a creature file to the state of the window: opened in order, or refused with
// nothing changed and a reason given.
#include "fuzz_program.h"

#include "creature_files/document.h"
#include "app/handlers/file_menu.h"
#include "creature_files/writer.h"

using namespace Hesperin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzProgram fuzzed;
    fuzzed.platform.messages.clear();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    auto document = NormaliseCreature(bytes);
    if (const auto* problem = std::get_if<OpenProblem>(&document)) {
        Require(!OpenProblemText(fuzzed.program.state, QStringLiteral("a.xdb"), *problem).isEmpty(),
                "a refusal has a reason");
        return 0;
    }
    const QString text = std::get<QString>(document);
    Require(text.size() <= LongestCreatureText, "the text is as short as promised");
    const auto again = NormaliseCreature(text.toUtf8());
    Require(std::holds_alternative<QString>(again) && std::get<QString>(again) == text,
            "a normalised document is its own normal form");
    FillFromDocument(fuzzed.program, text, QStringLiteral("a.xdb"));
    RequireInvariants(fuzzed.program);
    FillFromDocument(fuzzed.program, text,
                     QStringLiteral("a.xdb")); // clears what a shooter before it left
    const QByteArray second = Snapshot(fuzzed);
    FillFromDocument(fuzzed.program, text, QStringLiteral("a.xdb"));
    Require(Snapshot(fuzzed) == second, "opening a file again gives the same window");
    Require(!BuildCreatureText(fuzzed.program, QStringLiteral("Name")).text.isEmpty(),
            "it can be written");
    return 0;
}
