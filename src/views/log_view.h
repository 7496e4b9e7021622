#pragma once

// Shows the program's log.

namespace quadrelle {

// Shows the newest lines, and the older ones by scrolling, until it is dismissed.
void show_log();

} // namespace quadrelle
