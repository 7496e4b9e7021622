#include "commands/command_table.h"

#include <algorithm>

namespace quadrelle {

namespace {

struct Description {
    Command command;
    std::string_view text;
};

// clang-format off
constexpr std::array descriptions = std::to_array<Description>({
    {Command::pen,
     "Select pen size and shape from brush icons or size by pressing 1-6\r"
     "from keyboard.\r\r"
     "There are three modes for pen.\r"
     "1. Color: right mouse button is the secondary color.\r"
     "2. History: right mouse button draws from undo buffer which is saved\r"
     "when you switch a tile or save it from Tile -> Save history buffer.\r"
     "3. Dropper: This will make right button act as a dropper. It's selecting\r"
     "color for the left mouse button."},
    {Command::dropper,
     "Select color from the canvas. Left mouse button will select\r"
     "first tool color and right mouse button second color.\r\r"
     "Option 'Select previous tool' will switch back to the\r"
     "previous tool when color is selected."},
    {Command::lightness_pen,
     "Darken or lighten pixels. There are three options for this tool:\r\r"
     "Mode: Linear will grow or reduce lightness in uniform manner. Perception\r"
     "mode emphasizes warmness of colors.\r\r"
     "Speed: Overall speed in which pixels are changed.\r\r"
     "Brush size compensation: Since bigger brushes create more pixels it makes changes\r"
     "faster. This option is slowing down bigger brushes for rough compensation and tries\r"
     "to make all brush sizes work the same speed."},
    {Command::colorize_pen,
     "Works as pen tool, but changes the current color's hue to selected color."},
    {Command::flood_fill,
     "Fills a color area with selected color."},
    {Command::line,
     "Draws a line. Left/right button is using either tool color."},
    {Command::rectangle,
     "Draws a rectangle. The three types are outline, filled and both together.\r"
     "Use left/right mouse button to switch the colors."},
    {Command::circle,
     "Draws an ellipse or circle. The three types are outline, filled and both\r"
     "together. Use left/right mouse button to switch the colors."},
    {Command::stamp_brush,
     "Draw with brush from brush pad. If no brush is selected then the built-in\r"
     "brush is used. Create a new brush by selecting an area and then selecting\r"
     "Edit -> Use as brush, which also auto-selects this tool.\r"
     "When the brush is selected you can move it to the pad from Edit -> Move to pad\r"
     "to use it later."},
    {Command::smudge_brush,
     "Drag and smudge pixels with this tool."},
    {Command::save_history_buffer,
     "Save current tile to undo buffer for the history brush mode in pen tool."},
    {Command::rectangle_selector,
     "Select a rectangular area. You can then draw only on that area or use Copy or Cut in\r"
     "Edit menu to store the area for later use. Left mouse button will add more areas while\r"
     "right button will erase areas from the selection.\r"
     "Press left button outside the area or space bar to deselect."},
    {Command::circle_selector,
     "Select a circular area. You can then draw only on that area or use Copy or Cut in\r"
     "Edit menu to store the area for later use. Left mouse button will add more areas while\r"
     "right button will erase areas from the selection.\r"
     "Press left button outside the area or space bar to deselect."},
    {Command::brush_selector,
     "Use brush to add or remove areas from a selection."},
    {Command::wand_selector,
     "This tool flood fills color areas selected or deselected."},
    {Command::work_selection,
     "Move the paste. Click outside the selection to clone it."},
    {Command::rotate,
     "Rotate the tile 90 degrees clockwise direction. Works only with tiles that have\r"
     "equal width and height."},
    {Command::rotate_back,
     "Rotate the tile 90 degrees counter-clockwise direction. Works only with tiles that have\r"
     "equal width and height."},
    {Command::mirror,
     "Flip the tile in horizontal direction."},
    {Command::flip,
     "Flip the tile in vertical direction."},
    {Command::horizontal_seam_tool,
     "Offset the tile by half of its size to edit the edge of the tile. Yellow edge markers\r"
     "show where the seam is."},
    {Command::vertical_seam_tool,
     "Offset the tile by half of its size to edit the edge of the tile. Yellow edge markers\r"
     "show where the seam is."},
    {Command::scroll,
     "Scroll the canvas. Pixels that go over the edge appear at the other side."},
    {Command::free_rotate,
     "Rotate tile or selection."},
    {Command::next_tile,
     "Select next tile in the tileset."},
    {Command::previous_tile,
     "Select previous tile in the tileset."},
    {Command::next_tile_strip,
     "Scroll to next column of tiles in the tile strip if there are more tiles than those\r"
     "visible in the tile strip."},
    {Command::previous_tile_strip,
     "Scroll back in the tile strip."},
    {Command::change_tile,
     "Change tile."},
    {Command::rewind_strip,
     "Rewind strip."},
    {Command::forward_strip,
     "Forward strip."},
    {Command::copy,
     "Copy selection."},
    {Command::use_as_brush,
     "Use current selection as temporary brush with stamp brush tool."},
    {Command::cut,
     "Cut selection."},
    {Command::paste,
     "Paste selection."},
    {Command::clone,
     "Clone selection."},
    {Command::delete_brush,
     "Delete currently selected brush from the brush pad. This can't be undo."},
    {Command::move_to_pad,
     "Copies current brush to the brush pad."},
    {Command::close,
     "Closes active tileset."},
    {Command::new_tileset,
     "Creates a new tileset."},
    {Command::center_tile_on_view,
     "Centers the pixelated tile view on the middle of the background canvas."},
    {Command::versions,
     "Display tile versions."},
    {Command::debug_monitor,
     "Display debug messages."},
    {Command::filled_rectangle,
     "Draws a filled rectangle."},
    {Command::filled_circle,
     "Draws a filled circle."},
    {Command::skip_command,
     "Skips command routine with a non-command."},
    {Command::test,
     "debug test"},
});
// clang-format on

} // namespace

Command find_command(Key_Chord chord) {
    if (chord.key == key::none) {
        return Command::none;
    }
    const auto row = std::ranges::find_if(command_table, [&](const Command_Row& candidate) {
        return Key_Chord{candidate.key, candidate.modifier} == chord;
    });
    return row == command_table.end() ? Command::none : row->id;
}

std::string menu_text(Command command) {
    const Command_Row& row = row_of(command);
    std::string text(row.name);
    if (row.key != key::none) {
        text += " (" + std::string(row.key_label) + ")";
    }
    return text;
}

std::optional<std::string_view> help_text(Command command) {
    const auto found = std::ranges::find(descriptions, command, &Description::command);
    return found == descriptions.end() ? std::nullopt : std::optional(found->text);
}

std::string_view description(Command command) {
    return help_text(command).value_or("dsc");
}

} // namespace quadrelle
