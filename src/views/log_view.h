#pragma once

// Shows the program's log.

namespace quadrelle {

// Shows the newest lines in a dialog and waits until it is dismissed.
void show_log();

} // namespace quadrelle
