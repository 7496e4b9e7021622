#include "views/document_statistics.h"

#include "tileset/document.h"
#include "tileset/tileset_file.h"
#include "ui/shown_text.h"
#include "ui/wrapped_text.h"

namespace quadrelle {

namespace {

constexpr int name_width = 640;
constexpr std::size_t most_name_lines = 8;

// The end of a long path says more than its start.
std::string shown_name(const std::string& name) {
    std::vector<std::string> lines = wrapped_text(Font::regular, shown_text(name), name_width);
    if (lines.size() > most_name_lines) {
        lines.erase(lines.begin(), lines.end() - most_name_lines);
        lines.insert(lines.begin(), "...");
    }
    return joined_lines(lines);
}

} // namespace

std::string statistics_text(const Tileset_Document& document) {
    const Tileset& tileset = document.tileset();
    const auto text = [](auto number) { return std::to_string(number); };
    return "Tile memory\r Tiles: " + text(tileset.count()) + " x " + text(tileset.tile_bytes()) + " = " +
           text(tileset.total_bytes()) + " bytes\r Size: " + text(tileset.tile_width()) + " x " +
           text(tileset.tile_height()) +
           " pixels\r File size: " + text(tileset.total_bytes() + tileset_header_size) +
           " bytes\r\r Undo buffer: " + text(document.history().size_kb()) + " Kb\r\rFilename:\r" +
           shown_name(document.file_name());
}

} // namespace quadrelle
