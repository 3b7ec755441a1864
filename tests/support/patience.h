#pragma once

/// How long tests wait for what has to come. Who waits for it waits no longer than it takes, so
/// this is more than any machine needs: also one that others keep from working for seconds.
inline constexpr int patienceMs = 30'000;
