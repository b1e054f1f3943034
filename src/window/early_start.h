#pragma once

#include "window/window_platform.h"

#include <thread>

namespace Hesperin {

/// What needs no display and begins before the toolkit does, beside its start: the instance lock
/// goes to the disk, a file that was left for an earlier run is taken away, and the system's list
/// of fonts is read. It must exist before the application and outlive it.
class EarlyStart {
public:
    EarlyStart();
    ~EarlyStart() { Await(); }
    EarlyStart(const EarlyStart&) = delete;
    EarlyStart& operator=(const EarlyStart&) = delete;

    /// Returns when all of it is done; to be called before the program is loaded.
    void Await();

    WindowPlatform platform;

private:
    std::thread work;
};

} // namespace Hesperin
