#pragma once

// The signals by which the system asks a program to end. Only the main thread takes them.

namespace quadrelle {

// To be called once the event library is there, which makes a request to quit of some of them. From now on it
// does of all, and a file that grows too large is a failure like others instead of the end.
void catch_end_signals();
// They end the program at once again.
void release_end_signals();

// Whether one came since the last call.
[[nodiscard]] bool take_end_signal();

// Leaves all signals to other threads than this one.
void take_no_signals();

} // namespace quadrelle
