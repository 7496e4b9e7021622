// Colour dialogs: what they mean for the tools and the tiles.

#include "app/editor.h"

#include "panes/tool_colors.h"
#include "tools/hsv_adjustment.h"
#include "ui/dialogs.h"
#include "views/adjust_hsv.h"
#include "views/color_editor.h"

#include <optional>
#include <utility>

namespace quadrelle {

Command Editor::edit_tool_color(Command command) {
    const Color_Choice choice = edit_color(tool_colors->color(Mouse_Button::left));
    if (choice.color) {
        tool_colors->set_color(Mouse_Button::left, *choice.color);
    }
    if (choice.request == Color_Request::adjust_tile) {
        execute(Command::adjust_hsv);
    }
    return command;
}

Command Editor::adjust_hsv(Command command) {
    if (canvas_.tile() == nullptr) {
        dialogs->message("Note", "There is no tile to adjust.");
        return Command::skip_command;
    }
    const bool has_others = documents_.current().tileset().count() > 1;
    const std::optional<HSV_Adjustment> wanted =
        ask_hsv_adjustment(canvas_.work_area().target(*canvas_.tile()),
                           has_others ? All_Tiles_Choice::shown : All_Tiles_Choice::hidden);
    if (!wanted) {
        return Command::skip_command;
    }
    const bool has_changed = wanted->tiles == Adjusted_Tiles::all ? adjust_all_tiles(wanted->change)
                                                                  : adjust_current_tile(wanted->change);
    return has_changed ? command : Command::skip_command;
}

bool Editor::adjust_current_tile(const HSV_Change& change) {
    std::optional<Undo_Entry> floor = missing_floor();
    Drawing_Target target = canvas_.work_area().target(*canvas_.tile());
    if (quadrelle::adjust_hsv(target, change) == Adjustment_Outcome::nothing_changed) {
        return false;
    }
    target.tile().update_texture();
    record(Command::adjust_hsv, std::move(floor));
    documents_.mark_changed();
    return true;
}

// One step of the history holds one tile, so that this cannot be one: the history starts anew.
bool Editor::adjust_all_tiles(const HSV_Change& change) {
    Tileset_Document& document = documents_.current();
    bool has_changed = false;
    for (int i = 0; i < document.tileset().count(); ++i) {
        Drawing_Target target(document.tileset().tile_at(i));
        if (quadrelle::adjust_hsv(target, change) == Adjustment_Outcome::tile_changed) {
            target.tile().update_texture();
            has_changed = true;
        }
    }
    if (has_changed) {
        canvas_.with_tile_in_place([&] { document.history().reset(document.tileset()); });
        documents_.mark_changed();
    }
    return has_changed;
}

} // namespace quadrelle
