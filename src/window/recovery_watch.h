#pragma once

#include "app/program.h"
#include "system/recovery_copy.h"

#include <QTimer>

namespace Hesperin {

/// Keeps a copy of what is in the window and in no file, and offers what a program that was cut off
/// has left behind.
class RecoveryWatch {
public:
    explicit RecoveryWatch(Program& program);
    RecoveryWatch(const RecoveryWatch&) = delete;
    RecoveryWatch& operator=(const RecoveryWatch&) = delete;

    /// Asks whether to show again what was left behind, if there is something.
    void Offer();

    /// What the user does has changed something: in a while the copy follows.
    void Follow();

    /// The program ends in order: no copy stays.
    void End();

private:
    void Keep();

    Program& program;
    RecoveryCopy copy;
    QByteArray kept;
    QTimer timer; ///< from the first act that isn't kept yet
    bool ended = false;
};

} // namespace Hesperin
