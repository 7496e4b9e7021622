#include "views/map_exchange.h"

#include "base/block_file.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "map/map_painter.h"
#include "map/tmx.h"
#include "pixels/picture_rows.h"
#include "tileset/document.h"
#include "ui/dialogs.h"
#include "views/ask_for_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace quadrelle {

namespace {

// More than that takes minutes.
constexpr std::int64_t most_pixels = std::int64_t{256} << 20U;
constexpr int picture_columns = 16;
constexpr std::int64_t largest_tmx = std::int64_t{32} << 20U;

bool tell(std::string_view what) {
    dialogs->message("Note", what);
    return false;
}

bool tell_of_file(std::string_view what, const std::string& path) {
    dialogs->file_message(what, path);
    return false;
}

bool save_picture(const Tile_Map& map, const Tileset& tileset, const std::string& path) {
    const std::vector<const Tile*> tiles = tileset.tiles();
    const Map_Rows rows(map, tiles, tileset.tile_size());
    const auto write = has_extension(path, "bmp") ? write_bitmap_rows : write_png_rows;
    return write(path, rows.size(), [&rows](int y, std::span<Color> row) { rows.write(y, row); }) ||
           tell_of_file("Could not save the file.", path);
}

// All tiles row by row.
Tile_Map map_of_tiles(const Tileset& tileset, int columns) {
    Tile_Map map({columns, (tileset.count() + columns - 1) / columns});
    for (int i = 0; i < tileset.count(); ++i) {
        map.set({i % columns, i / columns}, Map_Cell(i));
    }
    return map;
}

bool export_picture(const Tileset_Document& document, const std::string& path) {
    const Tileset& tileset = document.tileset();
    const Size map = document.map()->map().size();
    const std::int64_t width = std::int64_t{map.width} * tileset.tile_width();
    const std::int64_t height = std::int64_t{map.height} * tileset.tile_height();
    if (width * height > most_pixels) {
        return tell("A picture of " + std::to_string(width) + " x " + std::to_string(height) +
                    " pixels is too large.\rThe ending .tmx keeps maps of every size.");
    }
    return save_picture(document.map()->indexed_map(), tileset, path);
}

bool export_tmx(const Tileset_Document& document, const std::string& path) {
    const Tileset& tileset = document.tileset();
    const std::string picture = with_extension(path, "png");
    if (path_kind(picture) != Path_Kind::nothing &&
        !dialogs->ask("Export", "The tiles of the map go into " + file_part(picture) +
                                    ", which is there already.\rReplace it?")) {
        return false;
    }
    const int columns = std::min(tileset.count(), picture_columns);
    const std::string text = tmx_text(document.map()->indexed_map(),
                                      {file_part(with_extension(document.file_name(), "qdl")),
                                       file_part(picture), tileset.tile_size(), tileset.count(), columns});
    const std::span<const std::uint8_t> bytes(reinterpret_cast<const std::uint8_t*>(text.data()),
                                              text.size());
    return save_picture(map_of_tiles(tileset, columns), tileset, picture) &&
           (write_file(path, bytes) >= 0 || tell_of_file("Could not save the file.", path));
}

// Nothing where it cannot be read, or is larger than any map is.
std::optional<std::string> text_of_file(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0 || size > largest_tmx) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(size), ' ');
    text.resize(read_bytes(file.get(), {reinterpret_cast<std::uint8_t*>(text.data()), text.size()}));
    return text;
}

} // namespace

std::optional<std::string> export_map(const Tileset_Document& document) {
    std::string path = with_extension(document.file_name(), "tmx");
    if (!choose_file(File_Dialog_Kind::export_map, path)) {
        return std::nullopt;
    }
    bool is_done = false;
    if (has_extension(path, "tmx")) {
        is_done = export_tmx(document, path);
    } else if (has_extension(path, "png") || has_extension(path, "bmp")) {
        is_done = export_picture(document, path);
    } else {
        tell("The name has to end in .tmx, .png or .bmp.");
    }
    return is_done ? std::optional(path) : std::nullopt;
}

std::optional<Tile_Map> import_map(const Tileset_Document& document) {
    std::string path;
    if (!choose_file(File_Dialog_Kind::import_map, path)) {
        return std::nullopt;
    }
    const std::optional<std::string> text = text_of_file(path);
    if (!text) {
        tell_of_file("Could not read the file.", path);
        return std::nullopt;
    }
    Read_Tmx read = read_tmx(*text, document.tileset().tile_size(), document.tileset().count());
    if (!read.map) {
        tell("This map does not fit.\r" + read.fault);
    } else if (read.has_more) {
        tell("Only the layer of tiles is taken over: objects, pictures and groups of layers\r"
             "have no place in a map here.");
    }
    return std::move(read.map);
}

} // namespace quadrelle
