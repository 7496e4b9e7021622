#pragma once

// The way of a document's tiles into a bitmap file.

namespace quadrelle {

class Tileset_Document;

// Shows the picture, asks for a name and writes the file; the user is told what failed. True when there is a
// new file.
bool export_bitmap(const Tileset_Document& document);

} // namespace quadrelle
