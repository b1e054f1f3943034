// What an update in place writes into a file: what the user has changed since it was opened or
// saved.
#pragma once

#include "creature_files/edited_file.h"
#include "model/creature.h"

namespace Hesperin {

/// An element that someone else has changed in the meantime, otherwise than the user.
struct UpdateConflict {
    QString element;
    QString opened; ///< as it was when the file was opened
    QString onDisk;
    QString wanted;
};

/// An element that file and window show differently without a change of the user's.
struct LeftAlone {
    QString element;
    QString inFile;
    QString inWindow;
};

struct UpdatePlan {
    EditedFile file;                       ///< as it is on disk, with the changes made
    std::vector<UpdateConflict> conflicts; ///< nothing may be written when there are some
    std::vector<LeftAlone> leftAlone;
    bool nameChanged = false; ///< which an update doesn't write
};

/// Compares, element by element, what the window's creature `now` and that of the baseline say, and
/// puts the differences into the file as it is on disk. `opened` are the bytes of the baseline. A
/// changed number field that holds no whole number is refused (Error::What::NoWholeNumber).
Result<UpdatePlan> PlanUpdate(const QByteArray& opened, const Creature& baseline,
                              const Creature& now, const QByteArray& onDisk);

/// What of the old file a new one of these bytes doesn't hold: elements that a creature in the
/// window doesn't have, in the file's order, with the number of their parts where there are several
/// ("Upgrades (2)").
QStringList LostBySave(const QByteArray& old, const QByteArray& composed);

} // namespace Hesperin
