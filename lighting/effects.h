#pragma once

#include <QtGlobal>

#include <array>

/// A firmware lighting effect.
struct Effect
{
    const char *name; ///< as listed in the effect combo box
    quint32 word;     ///< the fifth field of the command line
};

/// All effects by their index in the effect combo box; the first stands for no effect.
constexpr std::array<Effect, 8> effects{{
    {"None", 0},
    {"Breath", 0x1002A000},
    {"Cycle", 0x33010000},
    {"Dance", 0x80000000},
    {"Flash", 0xA0000000},
    {"Random Color", 0x70000000},
    {"Tempo", 0x90000000},
    {"Wave", 0xB0000000},
}};

constexpr bool isEffectIndex(int index)
{
    return index >= 0 && index < static_cast<int>(effects.size());
}
