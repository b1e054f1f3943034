// The decoder of the game's text files takes any bytes.
#include "fuzz_program.h"

#include "text/decode_text.h"

using namespace Hesperin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const CodePage page : {CodePage::Windows1251, CodePage::Windows1252}) {
        Require(DecodeText(bytes, page).size() <= bytes.size(), "no more characters than bytes");
        Require(DecodeCodePage(bytes, page).size() == bytes.size(), "a byte is a character");
    }
    return 0;
}
