#include "fuzz_program.h"

#include "app/handlers/form_load.h"
#include "cli/state_json.h"
#include "reports/json.h"
#include "support/invariants.h"

#include <QJsonArray>

#include <cstdio>
#include <cstdlib>

namespace Hesperin {

void Require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

FuzzProgram::FuzzProgram() {
    Form_Load(program, {std::uint8_t{1}, false});
}

void RequireInvariants(const Program& program) {
    const QByteArray broken = BrokenInvariant(program).toUtf8();
    Require(broken.isEmpty(), broken.constData());
}

QByteArray Snapshot(const FuzzProgram& fuzzed) {
    QJsonObject state = StateJson(fuzzed.program, fuzzed.platform);
    state.remove(QStringLiteral("messages"));
    return JsonLine(state);
}

} // namespace Hesperin
