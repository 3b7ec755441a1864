#include "system/terminal.h"

#include <QByteArray>

#include <unistd.h>

namespace Terminal {

bool prepare()
{
    return isatty(STDOUT_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

} // namespace Terminal
