#pragma once

namespace Hesperin {

/// Has the words that the toolkit brings itself (file dialogs and their questions, standard
/// buttons, the menus of fields) in Russian, or in English. They stay English where the toolkit's
/// own translation lies neither beside the program nor where the toolkit is installed.
void HaveToolkitSpeakRussian(bool russian);

} // namespace Hesperin
