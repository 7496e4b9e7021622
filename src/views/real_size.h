#pragma once

// "View in real size": a tile repeated all over the window.

namespace quadrelle {

class Tile;

// Waits until a key or a click ends it. Null shows the checkerboard alone.
void show_real_size(const Tile* tile);

} // namespace quadrelle
