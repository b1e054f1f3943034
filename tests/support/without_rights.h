#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Hesperin {

/// Takes the rights of an administrator from the process for a while, so that a protected file is
/// protected from it too. Someone else's process keeps the rights that it has.
class WithoutRights {
public:
#ifdef Q_OS_UNIX
    WithoutRights() {
        if (getuid() == 0 && setresuid(Nobody, Nobody, 0) != 0)
            qFatal("the rights could not be given up");
    }
    ~WithoutRights() {
        uid_t real = 0;
        uid_t effective = 0;
        uid_t saved = 1;
        if (getresuid(&real, &effective, &saved) == 0 && saved == 0 && setresuid(0, 0, 0) != 0)
            qFatal("the rights could not be taken back");
    }

private:
    static constexpr uid_t Nobody = 65534;
#else
    WithoutRights() {}
    ~WithoutRights() {}

private:
#endif
    Q_DISABLE_COPY_MOVE(WithoutRights)
};

} // namespace Hesperin
