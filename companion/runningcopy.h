#pragma once

class Platform;

namespace companion {

/// Whether the Lumikey that lies beside this program runs, for this user. The system itself
/// answers: the socket by which later starts reach the running copy takes a connection as long as
/// that copy lives, however it ends. The connection says nothing and is given up at once, so that
/// nothing comes of it. To be asked before the application object is given a name or a version.
bool isLumikeyRunning(const Platform &platform);

} // namespace companion
