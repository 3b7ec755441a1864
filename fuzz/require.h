#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process when a property does not hold, so that the fuzzer keeps the input.
/// @param property what was to hold, for the person who reads the report
inline void require(bool holds, const char *property)
{
    if (!holds) {
        std::fprintf(stderr, "property broken: %s\n", property);
        std::abort();
    }
}
