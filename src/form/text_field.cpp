#include "form/text_field.h"

namespace Hesperin {

void TextField::Type(char16_t key) {
    constexpr char16_t backspace = 8;
    if (!Accepts(key))
        return;
    if (key == backspace)
        Edit(text.chopped(std::min<qsizetype>(1, text.size())));
    else if (maxLength == NoLimit || text.size() < maxLength)
        Edit(text + QChar(key));
}

} // namespace Hesperin
