#pragma once

namespace Terminal {

/// Makes standard output ready for ANSI sequences and UTF-8. True when it is a terminal that
/// follows cursor control; false for files, pipes and terminals that cannot. Call once, before any
/// output.
bool prepare();

} // namespace Terminal
