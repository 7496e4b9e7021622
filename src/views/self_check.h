#pragma once

// Whether the installation works: what the program needs from its folder and from the system.

namespace quadrelle {

// Tries each thing and writes into the log, in words for people, what works and what does not and why.
void check_installation();

} // namespace quadrelle
