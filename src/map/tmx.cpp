#include "map/tmx.h"

#include "map/xml_tags.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace quadrelle {

namespace {

std::string rows_of_numbers(const Tile_Map& map, int tile_count, Size tile) {
    // Only square tiles are turned; others may have become what they are after they were placed.
    const std::uint32_t kept_bits = tile.width == tile.height ? ~0U : ~Map_Cell::swapped_bit;
    std::string text;
    for (int y = 0; y < map.size().height; ++y) {
        for (const Map_Cell cell : map.row(y)) {
            // It is the number that the format has for a tile of the only set, bits of its orientation too.
            text += std::to_string(cell.tile() < tile_count ? cell.word() & kept_bits : 0U);
            text += ',';
        }
        text += '\n';
    }
    text.erase(text.size() - 2, 1);
    return text;
}

// What of a file has been found to be as it must be.
class Tmx_Reader {
public:
    Tmx_Reader(Size tile, int tile_count) : tile_(tile), tile_count_(tile_count) {}

    Read_Tmx read(std::string_view text) {
        Xml_Tags tags(text);
        while (const std::optional<Xml_Tag> tag = tags.next()) {
            take(*tag, tags.text());
            if (!fault_.empty()) {
                return {std::nullopt, fault_, false};
            }
        }
        if (!has_ended_) {
            return {std::nullopt, "It is no whole map.", false};
        }
        if (!has_cells_) {
            return {std::nullopt, "It has no layer of tiles.", false};
        }
        return {std::move(map_), "", has_more_};
    }

private:
    void take(const Xml_Tag& tag, std::string_view text) {
        if (tag.name == "map") {
            take_map(tag);
        } else if (tag.name == "/map") {
            has_ended_ = true;
        } else if (!map_) {
            fault_ = "It is no map.";
        } else if (tag.name == "tileset") {
            take_tileset(tag);
            is_in_tileset_ = !tag.is_whole;
        } else if (tag.name == "/tileset") {
            is_in_tileset_ = false;
        } else if (is_in_tileset_) {
            return; // shapes of tiles, and the like
        } else if (tag.name == "layer") {
            require(++layers_ == 1, "It has several layers.");
        } else if (tag.name == "data") {
            take_data(tag, text);
        } else if (tag.name == "objectgroup" || tag.name == "imagelayer" || tag.name == "group") {
            has_more_ = true;
        }
    }

    void require(bool is_right, std::string_view fault) {
        if (!is_right && fault_.empty()) {
            fault_ = fault;
        }
    }

    void take_map(const Xml_Tag& tag) {
        const Size size{tag.number("width"), tag.number("height")};
        const Size tile{tag.number("tilewidth"), tag.number("tileheight")};
        require(!map_, "It is no whole map.");
        require(tag.attribute("orientation").value_or("orthogonal") == "orthogonal",
                "Its cells are not in straight rows and columns.");
        require(tag.attribute("infinite").value_or("0") == "0", "It has no fixed size.");
        require(is_map_size(size), "Its size is not from 1 x 1 to 1000 x 1000.");
        require(tile == tile_, "Its tiles are " + std::to_string(tile.width) + " x " +
                                   std::to_string(tile.height) + " pixels, those of this set " +
                                   std::to_string(tile_.width) + " x " + std::to_string(tile_.height) + ".");
        if (fault_.empty()) {
            map_.emplace(size);
        }
    }

    void take_tileset(const Xml_Tag& tag) {
        require(first_number_ == 0, "It has tiles of several sets.");
        first_number_ = tag.number("firstgid");
        require(first_number_ > 0, "It is no whole map.");
    }

    void take_data(const Xml_Tag& tag, std::string_view text) {
        require(layers_ == 1 && !has_cells_, "It is no whole map.");
        require(tag.attribute("encoding") == "csv" && !tag.attribute("compression"),
                "Its layer is not written as numbers between commas (CSV).");
        if (fault_.empty()) {
            take_cells(text);
            has_cells_ = true;
        }
    }

    void take_cells(std::string_view text) {
        std::size_t taken = 0;
        const std::span<Map_Cell> cells = map_->cells();
        while (fault_.empty()) {
            text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n,"), text.size()));
            if (text.empty()) {
                break;
            }
            std::uint32_t word = 0;
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), word);
            require(error == std::errc(), "A cell is no number.");
            require(taken < cells.size(), "It has more cells than its size says.");
            if (fault_.empty()) {
                text.remove_prefix(static_cast<std::size_t>(end - text.data()));
                cells[taken++] = cell_of(word);
            }
        }
        require(taken == cells.size(), "It has fewer cells than its size says.");
    }

    Map_Cell cell_of(std::uint32_t word) {
        const Map_Cell cell = Map_Cell::of_word(word);
        if (cell.is_empty()) {
            return cell;
        }
        const int index = cell.tile() + 1 - std::max(first_number_, 1);
        require(index >= 0 && index < tile_count_, "It has tiles that this set does not have.");
        require(!cell.orientation().is_swapped || tile_.width == tile_.height,
                "It turns tiles that are not square.");
        return fault_.empty() ? cell.with_tile(index) : Map_Cell();
    }

    Size tile_;
    int tile_count_;
    std::optional<Tile_Map> map_;
    int first_number_ = 0;
    int layers_ = 0;
    bool has_cells_ = false;
    bool has_ended_ = false;
    bool has_more_ = false;
    bool is_in_tileset_ = false;
    std::string fault_;
};

} // namespace

std::string tmx_text(const Tile_Map& map, const Tmx_Tileset& tileset) {
    const int rows = (tileset.count + tileset.columns - 1) / tileset.columns;
    const std::string map_size =
        xml_attribute("width", map.size().width) + xml_attribute("height", map.size().height);
    const std::string tile_size =
        xml_attribute("tilewidth", tileset.tile.width) + xml_attribute("tileheight", tileset.tile.height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<map version=\"1.0\" orientation=\"orthogonal\" renderorder=\"right-down\"" +
           map_size + tile_size + " infinite=\"0\" nextlayerid=\"2\" nextobjectid=\"1\">\n" +
           " <tileset firstgid=\"1\"" + xml_attribute("name", tileset.name) + tile_size +
           xml_attribute("tilecount", tileset.count) + xml_attribute("columns", tileset.columns) +
           ">\n  <image" + xml_attribute("source", tileset.picture) +
           xml_attribute("width", tileset.columns * tileset.tile.width) +
           xml_attribute("height", rows * tileset.tile.height) +
           "/>\n </tileset>\n <layer id=\"1\" name=\"Map\"" + map_size + ">\n  <data encoding=\"csv\">\n" +
           rows_of_numbers(map, tileset.count, tileset.tile) + "</data>\n </layer>\n</map>\n";
}

Read_Tmx read_tmx(std::string_view text, Size tile, int tile_count) {
    return Tmx_Reader(tile, tile_count).read(text);
}

} // namespace quadrelle
