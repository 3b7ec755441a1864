#pragma once

/// Names of Windows types that interfaces of this program use. Where the Windows headers are
/// present too, these repeat their declarations.
using BOOL = int;
using byte = unsigned char;
