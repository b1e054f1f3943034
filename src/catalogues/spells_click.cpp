#include "catalogues/click_rules.h"

namespace Hesperin {

void Spells_Click(Program& program, int i) {
    OpenSelector(program.form.soq(i), program.form.Spells(i).Ticked());
}

} // namespace Hesperin
