// What the editor does with the selection, the copies, and what floats over the tile.

#include "app/editor.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "selection/selection_transforms.h"
#include "ui/dialogs.h"
#include "ui/options.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quadrelle {

Command Editor::change_selection(Command command) {
    Work_Area& work = canvas_.work_area();
    Tile* const tile = canvas_.tile();
    if (tile == nullptr) {
        return Command::skip_command;
    }
    const Work_State before = work.state();
    const std::vector<Color> pixels(tile->pixels().begin(), tile->pixels().end());
    switch (command) {
    case Command::deselect: deselect(); break;
    case Command::invert_selection:
        settle_paste();
        work.invert_selection();
        break;
    case Command::fill: fill_selected(tool_colors->color(Mouse_Button::left)); break;
    case Command::clear: clear_selected(); break;
    default: break;
    }
    tile->update_texture();
    const bool is_same = work == before && std::ranges::equal(pixels, tile->pixels());
    return is_same ? Command::skip_command : command;
}

// What floats is kept: it becomes a part of the tile. A selection over it goes first.
void Editor::deselect() {
    if (canvas_.work_area().has_selection()) {
        canvas_.work_area().deselect();
        return;
    }
    settle_paste();
    canvas_.work_area().drop_paste();
}

void Editor::fill_selected(Color color) {
    Drawing_Target target = canvas_.work_area().target(*canvas_.tile());
    for (int y = 0; y < target.size().height; ++y) {
        for (int x = 0; x < target.size().width; ++x) {
            target.plot({x, y}, color);
        }
    }
}

void Editor::clear_selected() {
    if (canvas_.shows_paste()) {
        canvas_.work_area().drop_paste();
    } else {
        fill_selected(Color(0, 0, 0, 0));
    }
}

// What is selected, or the paste that is to be seen, or else the whole tile.
std::optional<Floating_Paste> Editor::copied() {
    const Work_Area& work = canvas_.work_area();
    if (canvas_.tile() == nullptr || canvas_.tile()->pixel_count() == 0) {
        return std::nullopt;
    }
    if (canvas_.shows_paste()) {
        return *work.paste();
    }
    return work.has_selection() ? lifted(*canvas_.tile(), work.selection())
                                : Floating_Paste{*canvas_.tile(), {0, 0}};
}

Command Editor::copy(Command command) {
    const std::optional<Floating_Paste> copy = copied();
    if (!copy) {
        return Command::none;
    }
    copy_buffer_.add(*copy);
    clipboard_.offer(copy->picture);
    return command;
}

Command Editor::cut(Command command) {
    if (!canvas_.shows_paste() && !canvas_.work_area().has_selection()) {
        dialogs->message("Note", "Nothing selected to cut.");
        return Command::none;
    }
    if (copy(Command::copy) == Command::none) {
        return Command::none;
    }
    clear_selected();
    canvas_.tile()->update_texture();
    return command;
}

namespace {

// In the middle of the tile, but not beyond its top left corner, so that a large one shows from there on.
Floating_Paste placed(const Tile& picture, Size tile) {
    Floating_Paste paste = cloned({picture, {}}, Clone_Style::centred, tile);
    paste.position = {std::max(paste.position.x, 0), std::max(paste.position.y, 0)};
    return paste;
}

} // namespace

bool Editor::take_from_other_program() {
    const Clipboard_Picture taken = clipboard_.take();
    if (taken.fault != Picture_Fault::none) {
        dialogs->message("Note", taken.fault == Picture_Fault::too_large
                                     ? "The picture on the clipboard is too large."
                                     : "The picture on the clipboard can't be read.");
        return false;
    }
    if (taken.picture) {
        copy_buffer_.add(placed(*taken.picture, canvas_.tile()->size()));
    }
    return true;
}

Command Editor::paste(Command command) {
    if (canvas_.tile() == nullptr || !take_from_other_program()) {
        return Command::none;
    }
    const Floating_Paste* const copy = copy_buffer_.current();
    if (copy == nullptr) {
        return Command::none;
    }
    float_paste(in_view(*copy, canvas_.tile()->size()));
    return command;
}

// A selection is copied first.
Command Editor::clone(Command command) {
    if ((canvas_.shows_paste() || canvas_.work_area().has_selection()) &&
        copy(Command::copy) == Command::none) {
        return Command::none;
    }
    const Floating_Paste* const copy = copy_buffer_.current();
    if (copy == nullptr || canvas_.tile() == nullptr) {
        return Command::none;
    }
    const auto style = static_cast<Clone_Style>(options->value(Option::clone_style));
    float_paste(cloned(*copy, style, canvas_.tile()->size()));
    return command;
}

// What floats already becomes a part of the tile.
void Editor::float_paste(const Floating_Paste& paste) {
    canvas_.work_area().deselect();
    settle_paste();
    canvas_.work_area().float_paste(paste);
    select_tool(Command::work_selection);
}

bool Editor::plot_paste() {
    Work_Area& work = canvas_.work_area();
    Tile* const tile = canvas_.tile();
    if (!work.paste() || tile == nullptr) {
        return false;
    }
    const std::vector<Color> before(tile->pixels().begin(), tile->pixels().end());
    Drawing_Target target = work.target(*tile);
    work.paste()->plot(target);
    tile->update_texture();
    const bool drops = toolbox->selection_mode() == Selection_Mode::standard;
    if (drops) {
        work.drop_paste();
    }
    return drops || !std::ranges::equal(before, tile->pixels());
}

// One that persists was plotted when its tool was left, and what was drawn over it since is to stay.
bool Editor::is_paste_to_settle() const {
    const Work_Area& work = canvas_.work_area();
    const bool was_left =
        toolbox->selection_mode() == Selection_Mode::persistent && !toolbox->shows_floating_paste();
    return work.paste() && !work.has_selection() && !was_left;
}

void Editor::settle_paste() {
    if (is_paste_to_settle()) {
        plot_paste();
    }
}

void Editor::plot_paste_to_leave() {
    if (toolbox->selection_mode() != Selection_Mode::fixed && is_paste_to_settle()) {
        execute(Command::plot_paste);
    }
}

Command Editor::plot(Command command) {
    return plot_paste() ? command : Command::skip_command;
}

Command Editor::transform_work_area(Command command) {
    Work_Area& work = canvas_.work_area();
    if (canvas_.tile() == nullptr) {
        return Command::none;
    }
    if (canvas_.shows_paste()) {
        return work.transform_paste(command);
    }
    return work.has_selection() ? transform_selected(*canvas_.tile(), work.mutable_selection(), command)
                                : Command::none;
}

bool Editor::nudge_paste(Key_Chord chord) {
    Work_Area& work = canvas_.work_area();
    if (chord.modifier != Modifier::shift || !canvas_.shows_paste()) {
        return false;
    }
    Tile_Point position = work.paste()->position;
    switch (chord.key) {
    case key::left: --position.x; break;
    case key::right: ++position.x; break;
    case key::up: --position.y; break;
    case key::down: ++position.y; break;
    default: return false;
    }
    std::optional<Undo_Entry> floor = missing_floor();
    work.move_paste_to(position);
    record_nudge(std::move(floor));
    return true;
}

// The wand's quick modes float what is selected at once, as a copy or instead of the tile's own pixels.
bool Editor::float_wand_area(Tile_Point pressed) {
    const auto mode = static_cast<Wand_Mode>(toolbox->value(Tool_Option::wand_mode));
    if (toolbox->current_tool() != Tool::wand_selector || mode == Wand_Mode::normal ||
        !canvas_.work_area().selection().contains(pressed)) {
        return false;
    }
    static_cast<void>(mode == Wand_Mode::quick_cut ? cut(Command::cut) : copy(Command::copy));
    float_paste(*copy_buffer_.current());
    return true;
}

} // namespace quadrelle
