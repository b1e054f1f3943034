// From the bytes of a creature file to the state of the window: opened in order, or refused with
// nothing changed and a reason given.
#include "fuzz_program.h"

#include "app/creature_in_form.h"
#include "app/handlers/file_menu.h"
#include "creature_files/document.h"
#include "creature_files/writer.h"
#include "localisation/error_text.h"

using namespace Hesperin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzProgram fuzzed;
    fuzzed.platform.messages.clear();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto document = NormaliseCreature(bytes);
    if (!document) {
        Require(!ErrorText(fuzzed.program.state.messages, document.Why()).isEmpty(),
                "a refusal has a reason");
        return 0;
    }
    const QString& text = *document;
    Require(text.size() <= LongestCreatureText, "the text is as short as promised");
    const auto again = NormaliseCreature(text.toUtf8());
    Require(again && *again == text, "a normalised document is its own normal form");
    const QString path = QStringLiteral("a.xdb");
    ShowDocument(fuzzed.program, {bytes, text}, path);
    RequireInvariants(fuzzed.program);
    ShowDocument(fuzzed.program, {bytes, text}, path); // clears what a shooter before it left
    const QByteArray second = Snapshot(fuzzed);
    ShowDocument(fuzzed.program, {bytes, text}, path);
    Require(Snapshot(fuzzed) == second, "opening a file again gives the same window");
    Require(
        !BuildCreatureText(TakeCreature(fuzzed.program), QStringLiteral("Name"), 0).text.isEmpty(),
        "it can be written");
    return 0;
}
