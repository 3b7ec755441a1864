#pragma once

#include <QtGlobal>

#include <array>

/// Idle times in milliseconds by their index in the dim-delay combo box.
constexpr std::array<qint32, 9> idleTimesMs{
    5000, 10000, 30000, 60000, 300000, 600000, 900000, 1800000, 3600000,
};
