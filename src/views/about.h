#pragma once

// What the program says about itself.

namespace quadrelle {

// Logo, version, renderer and licences in a dialog; waits until it is dismissed.
void show_about();

} // namespace quadrelle
