#include "platform/console.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#endif

namespace Hesperin {

void PrepareConsole() {
#ifdef Q_OS_WIN
    static const unsigned codePageOfConsole = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(codePageOfConsole); });
    for (std::FILE* stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
#endif
}

} // namespace Hesperin
