#include "tileset/transform_commands.h"

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

enum class Shape { any, square };

struct Transform_Row {
    Command command;
    Shape shape; // of the tiles that it works on
    void (*apply)(Tile& tile, const Tile& before);
};

// clang-format off
constexpr std::array transforms = std::to_array<Transform_Row>({
    {Command::rotate,       Shape::square, [](Tile& tile, const Tile& before) { tile.rotate_cw(before); }},
    {Command::rotate_back,  Shape::square, [](Tile& tile, const Tile& before) { tile.rotate_ccw(before); }},
    {Command::mirror,       Shape::any,    [](Tile& tile, const Tile& before) { tile.mirror(before); }},
    {Command::flip,         Shape::any,    [](Tile& tile, const Tile& before) { tile.flip(before); }},
    {Command::scroll_left,  Shape::any,    [](Tile& tile, const Tile& before) { tile.shift_wrapped(before, 1, 0); }},
    {Command::scroll_right, Shape::any,    [](Tile& tile, const Tile& before) { tile.shift_wrapped(before, -1, 0); }},
    {Command::scroll_up,    Shape::any,    [](Tile& tile, const Tile& before) { tile.shift_wrapped(before, 0, 1); }},
    {Command::scroll_down,  Shape::any,    [](Tile& tile, const Tile& before) { tile.shift_wrapped(before, 0, -1); }},
    {Command::anti_alias,   Shape::any,    [](Tile& tile, const Tile&) { tile.anti_alias(); }},
});
// clang-format on

} // namespace

Command transform_tile(Tile* tile, Command command) {
    const auto row = std::ranges::find(transforms, command, &Transform_Row::command);
    if (row == transforms.end()) {
        return Command::none;
    }
    if (tile == nullptr || (row->shape == Shape::square && tile->width() != tile->height())) {
        return Command::skip_command;
    }
    const Tile before(*tile);
    row->apply(*tile, before);
    return command;
}

} // namespace quadrelle
