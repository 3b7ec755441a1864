#pragma once

#include <QString>

/// Who runs the tests, asked in other ways than the program does.
namespace CurrentUser {

QString name();

/// Whether this process has administrator rights.
bool isElevated();

} // namespace CurrentUser
