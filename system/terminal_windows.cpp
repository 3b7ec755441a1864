#include "system/terminal.h"

#include <windows.h>

namespace Terminal {

bool prepare()
{
    SetConsoleOutputCP(CP_UTF8);
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (output == INVALID_HANDLE_VALUE || GetConsoleMode(output, &mode) == 0) {
        return false;
    }
    // Fails on consoles from before virtual-terminal processing; those get plain lines.
    return SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace Terminal
