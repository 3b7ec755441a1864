#include "examples/agent/terminal.h"

#include <QByteArray>

#include <unistd.h>

namespace agent {

bool prepareTerminal()
{
    return isatty(STDOUT_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

} // namespace agent
