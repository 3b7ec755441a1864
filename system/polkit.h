#pragma once

#include "system/platform.h"

/// Rights by way of polkit's pkexec, which asks the user.
namespace Polkit {

/// Starts the program at @p path as root, on the display and in the current directory of this
/// process. Blocks until the user has answered.
Platform::Relaunch relaunch(const QString &path);

} // namespace Polkit
