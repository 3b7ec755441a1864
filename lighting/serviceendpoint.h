#pragma once

#include <QtGlobal>

/// Where the local agent finds the program.
namespace ServiceEndpoint {
constexpr const char *address = "127.0.0.9";
constexpr quint16 port = 52316;
} // namespace ServiceEndpoint
