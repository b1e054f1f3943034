#include "form/text_field.h"

namespace Hesperin {

void TextField::Type(char16_t key) {
    constexpr char16_t backspace = 8;
    if (!Accepts(key))
        return;
    if (key == backspace)
        SetText(text.chopped(std::min<qsizetype>(1, text.size())));
    else if (maxLength == NoLimit || text.size() < maxLength)
        SetText(text + QChar(key));
}

} // namespace Hesperin
