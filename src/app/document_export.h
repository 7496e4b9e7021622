#pragma once

// The way of a document's tiles into a bitmap or PNG file.

#include <optional>
#include <string>

namespace quadrelle {

class Selection_Desk;
class Tileset_Document;

// Shows the picture, asks how it is to be written and for a name, and writes the file; the user is told what
// failed. What floats over the current tile is in the picture, and settles when the name is given. Returns
// the path of the file when there is a new one.
[[nodiscard]] std::optional<std::string> export_document(Tileset_Document& document, Selection_Desk& desk);
// Does the same as the last time, to the same file, without a question. There was a last time.
[[nodiscard]] std::optional<std::string> export_again(Tileset_Document& document, Selection_Desk& desk);

} // namespace quadrelle
