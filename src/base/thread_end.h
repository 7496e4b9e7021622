#pragma once

namespace quadrelle {

// To be called at the end of a thread that worked with files: releases what the library keeps for that
// thread.
void release_thread_memory();

} // namespace quadrelle
