// A library that tests preload where the system parts no networks and lends no rights.
//
// What its program binds or connects to 127.0.0.9 is at the address named by LUMIKEY_TEST_ADDRESS
// instead, so that programs can run beside each other that all have the one service address; and
// with LUMIKEY_TEST_ELEVATED set its program believes that it has an administrator's rights. In
// everything else it is the program that is shipped.
#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace {

using SocketCall = int (*)(int, const sockaddr *, socklen_t);

/// The call as it was before this library came in between.
template<class Function> Function original(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

int callAtOwnAddress(const char *name, int socket, const sockaddr *address, socklen_t length)
{
    const auto call = original<SocketCall>(name);
    const char *const own = std::getenv("LUMIKEY_TEST_ADDRESS");
    sockaddr_in moved = {};
    if (own == nullptr || address == nullptr || address->sa_family != AF_INET
        || length < sizeof moved) {
        return call(socket, address, length);
    }
    std::memcpy(&moved, address, sizeof moved);
    if (moved.sin_addr.s_addr == ::inet_addr("127.0.0.9")) {
        moved.sin_addr.s_addr = ::inet_addr(own);
    }
    return call(socket, reinterpret_cast<const sockaddr *>(&moved), sizeof moved);
}

/// Root where the tests want one, else what the system says.
uid_t rootOr(const char *name)
{
    return std::getenv("LUMIKEY_TEST_ELEVATED") != nullptr ? 0 : original<uid_t (*)()>(name)();
}

} // namespace

extern "C" {

int bind(int socket, const sockaddr *address, socklen_t length) noexcept
{
    return callAtOwnAddress("bind", socket, address, length);
}

int connect(int socket, const sockaddr *address, socklen_t length)
{
    return callAtOwnAddress("connect", socket, address, length);
}

uid_t geteuid() noexcept
{
    return rootOr("geteuid");
}

// Qt ends a program whose two answers differ.
uid_t getuid() noexcept
{
    return rootOr("getuid");
}

} // extern "C"
