#pragma once

// What the program says about itself.

namespace quadrelle {

// Shows logo, version, renderer and licences in a dialog and waits until it is dismissed.
void show_about();

} // namespace quadrelle
