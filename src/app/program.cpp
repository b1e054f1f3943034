#include "app/program.h"

#include "localisation/error_text.h"

namespace Hesperin {

Error Program::Refuse(const Error& error) {
    Warn(BoxIcon::Critical, ErrorText(state.messages, error));
    return error;
}

} // namespace Hesperin
