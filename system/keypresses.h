#pragma once

#include <bitset>

/// One flag for each virtual-key code 0..253. Codes 1 to 6 are the mouse buttons and cancel, the
/// others keys; which key has which code is the system's own affair.
using KeyPresses = std::bitset<254>;
