#include "system/console.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Hesperin {

void PrepareConsole() {
#ifdef Q_OS_WIN
    static const unsigned codePageOfConsole = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(codePageOfConsole); });
    for (std::FILE* stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
#else
    constexpr int input = 0;
    constexpr int complaints = 2;
    for (int number = input; number <= complaints; ++number)
        if (fcntl(number, F_GETFD) < 0) // opening takes the lowest free number
            open("/dev/null", number == input ? O_WRONLY : O_RDONLY);
#endif
}

bool ComplaintsGoToATerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) == 1;
#endif
}

} // namespace Hesperin
