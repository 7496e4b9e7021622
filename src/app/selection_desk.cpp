#include "app/selection_desk.h"

#include "app/recorder.h"
#include "canvas/canvas_view.h"
#include "panes/toolbox.h"
#include "selection/transforms.h"

#include <algorithm>

namespace quadrelle {

namespace {

// In the middle of the tile, but not beyond its top left corner, so that a large one shows from there on.
Floating_Paste placed(const Tile& picture, Size tile) {
    Floating_Paste paste = cloned({picture, {}}, Clone_Style::centred, tile);
    paste.position = {std::max(paste.position.x, 0), std::max(paste.position.y, 0)};
    return paste;
}

bool has_visible_pixel(const Tile& picture) {
    return std::ranges::any_of(picture.pixels(), [](Color color) { return color.a != 0; });
}

} // namespace

namespace {

// Around what floats there is nothing, whatever its colour.
Color_Map of_what_is_seen(const Color_Map& map) {
    return [map](Color color) { return color.a == 0 ? color : map(color); };
}

} // namespace

bool Selection_Desk::shows_paste() const {
    return canvas_.shows_paste(toolbox_.state());
}

bool Selection_Desk::has_something() const {
    return shows_paste() || canvas_.work_area().has_selection();
}

Outcome Selection_Desk::change(const std::function<void()>& work) {
    Tile* const tile = canvas_.tile();
    if (tile == nullptr) {
        return Outcome::refused;
    }
    const Work_State before = canvas_.work_area().state();
    const Tile tile_before(*tile);
    work();
    const bool is_same = canvas_.work_area() == before && tile->same_pixels(tile_before);
    return is_same ? Outcome::refused : Outcome::done;
}

Outcome Selection_Desk::deselect() {
    return change([this] {
        if (canvas_.work_area().has_selection()) {
            canvas_.work_area().deselect();
            return;
        }
        settle();
        canvas_.work_area().drop_paste();
    });
}

Outcome Selection_Desk::invert() {
    return change([this] {
        settle();
        canvas_.work_area().invert_selection();
    });
}

Outcome Selection_Desk::select_all() {
    return change([this] {
        settle();
        canvas_.work_area().deselect();
        canvas_.work_area().invert_selection();
    });
}

Outcome Selection_Desk::fill(Color color) {
    return change([&] { shows_paste() ? fill_paste(color) : fill_selected(color); });
}

Outcome Selection_Desk::clear() {
    return change([this] { clear_selected(); });
}

Outcome Selection_Desk::recolor(const Color_Map& map) {
    return change([&] {
        if (shows_paste()) {
            canvas_.work_area().recolor_paste([&map](Tile& picture) {
                Drawing_Target target(picture);
                quadrelle::recolor(target, of_what_is_seen(map));
            });
        } else {
            Drawing_Target target = canvas_.work_area().target(*canvas_.tile());
            quadrelle::recolor(target, map);
        }
    });
}

Outcome Selection_Desk::recolor_tile(const Color_Map& map) {
    return change([&] {
        Drawing_Target target(*canvas_.tile());
        quadrelle::recolor(target, map);
    });
}

int Selection_Desk::count_changes(const Color_Map& map) const {
    if (canvas_.tile() == nullptr) {
        return 0;
    }
    if (!shows_paste()) {
        return quadrelle::count_changes(canvas_.work_area().target(*canvas_.tile()), map);
    }
    Tile picture(canvas_.work_area().paste()->picture);
    return quadrelle::count_changes(Drawing_Target(picture), of_what_is_seen(map));
}

Outcome Selection_Desk::select_colors(const std::function<bool(Color)>& is_wanted) {
    return change([&] {
        settle();
        Selection found(canvas_.tile()->size());
        found.draw([&](Drawing_Target& mask) {
            for (int i = 0; i < canvas_.tile()->pixel_count(); ++i) {
                if (is_wanted(canvas_.tile()->get_pixel_at(i))) {
                    mask.tile().set_pixel_at(i, Selection::selected_color);
                }
            }
        });
        canvas_.work_area().deselect();
        canvas_.work_area().select(found, Selection_Change::add);
    });
}

// Where it is made transparent nothing is left to float.
void Selection_Desk::fill_paste(Color color) {
    if (color.a == 0) {
        canvas_.work_area().drop_paste();
    } else {
        canvas_.work_area().recolor_paste([color](Tile& picture) { fill_opaque(picture, color); });
    }
}

void Selection_Desk::fill_selected(Color color) {
    Drawing_Target target = canvas_.work_area().target(*canvas_.tile());
    for (int y = 0; y < target.size().height; ++y) {
        for (int x = 0; x < target.size().width; ++x) {
            target.plot({x, y}, color);
        }
    }
}

void Selection_Desk::clear_selected() {
    if (shows_paste()) {
        canvas_.work_area().drop_paste();
    } else {
        fill_selected(Color(0, 0, 0, 0));
    }
}

std::optional<Floating_Paste> Selection_Desk::what_to_copy() const {
    const Work_Area& work = canvas_.work_area();
    if (canvas_.tile() == nullptr || canvas_.tile()->pixel_count() == 0) {
        return std::nullopt;
    }
    if (shows_paste()) {
        return *work.paste();
    }
    return work.has_selection() ? lifted(*canvas_.tile(), work.selection())
                                : Floating_Paste{*canvas_.tile(), {0, 0}};
}

Outcome Selection_Desk::copy() {
    const std::optional<Floating_Paste> copy = what_to_copy();
    if (!copy || !has_visible_pixel(copy->picture)) {
        return Outcome::refused;
    }
    copies_.add(*copy);
    clipboard_.offer(copy->picture);
    return Outcome::done;
}

Outcome Selection_Desk::cut() {
    const Outcome outcome = copy();
    if (outcome == Outcome::done) {
        clear_selected();
    }
    return outcome;
}

Picture_Fault Selection_Desk::take_clipboard() {
    const Clipboard_Picture taken = clipboard_.take();
    if (taken.picture) {
        copies_.add(placed(*taken.picture, canvas_.tile()->size()));
    }
    return taken.fault;
}

void Selection_Desk::keep(const Tile& picture) {
    static_cast<void>(take_clipboard());
    copies_.add({picture, {0, 0}});
}

Outcome Selection_Desk::paste() {
    const Floating_Paste* const copy = copies_.current();
    if (copy == nullptr) {
        return Outcome::refused;
    }
    float_picture(in_view(*copy, canvas_.tile()->size()));
    return Outcome::done;
}

Outcome Selection_Desk::clone(Clone_Style style) {
    if (has_something() && copy() != Outcome::done) {
        return Outcome::refused;
    }
    const Floating_Paste* const copy = copies_.current();
    if (copy == nullptr || canvas_.tile() == nullptr) {
        return Outcome::refused;
    }
    float_picture(cloned(*copy, style, canvas_.tile()->size()));
    return Outcome::done;
}

void Selection_Desk::float_picture(const Floating_Paste& picture, Paste_Source source) {
    canvas_.work_area().deselect();
    settle();
    canvas_.work_area().float_paste(picture, source);
    if (toolbox_.current_tool() != Tool::selection) {
        toolbox_.select(Command::work_selection);
    }
}

bool Selection_Desk::float_wand_area(Tile_Point pressed) {
    const auto mode = toolbox_.state().options.wand_mode;
    if (toolbox_.current_tool() != Tool::wand_selector || mode == Wand_Mode::normal ||
        !canvas_.work_area().selection().contains(pressed)) {
        return false;
    }
    const bool is_cut = mode == Wand_Mode::quick_cut;
    if ((is_cut ? cut() : copy()) != Outcome::done) {
        return false;
    }
    float_picture(*copies_.current(), is_cut ? Paste_Source::tile : Paste_Source::copy);
    return true;
}

bool Selection_Desk::nudge(int dx, int dy) {
    if (!shows_paste()) {
        return false;
    }
    const auto move = [&] {
        Work_Area& work = canvas_.work_area();
        const Tile_Point position = work.paste()->position;
        work.move_paste_to({position.x + dx, position.y + dy});
        return Command::work_selection;
    };
    recorder_.step(move, Merge::with_last);
    return true;
}

Outcome Selection_Desk::transform(Command command) {
    Work_Area& work = canvas_.work_area();
    if (canvas_.tile() == nullptr) {
        return Outcome::unknown;
    }
    if (shows_paste()) {
        Outcome outcome = Outcome::unknown;
        const Outcome changed = change([&] { outcome = work.transform_paste(command); });
        return outcome == Outcome::unknown ? outcome : changed;
    }
    if (!work.has_selection()) {
        return Outcome::unknown;
    }
    const Outcome outcome = transform_selected(*canvas_.tile(), work.mutable_selection(), command);
    return outcome == Outcome::refused ? change([this, command] { lift_and_transform(command); }) : outcome;
}

// Turned where it is, what is not as wide as high would not fit its place.
void Selection_Desk::lift_and_transform(Command command) {
    canvas_.work_area().lift_selection(*canvas_.tile());
    static_cast<void>(canvas_.work_area().transform_paste(command));
    if (!toolbox_.state().shows_floating_paste()) {
        toolbox_.select(Command::work_selection);
    }
}

void Selection_Desk::plot_paste() {
    Work_Area& work = canvas_.work_area();
    if (!work.paste() || canvas_.tile() == nullptr) {
        return;
    }
    Drawing_Target target = work.target(*canvas_.tile());
    work.plot_paste(target, toolbox_.state().options.selection_mode);
}

Outcome Selection_Desk::plot() {
    return change([this] { plot_paste(); });
}

// Where no selection takes its place. One that persists was plotted when its tool was left, and it is not
// wanted on other tiles that come into view meanwhile.
bool Selection_Desk::is_to_settle() const {
    const Work_Area& work = canvas_.work_area();
    const bool was_left = toolbox_.state().options.selection_mode == Selection_Mode::persistent &&
                          !toolbox_.state().shows_floating_paste();
    return work.paste() && !work.has_selection() && !was_left;
}

void Selection_Desk::settle() {
    if (is_to_settle()) {
        plot_paste();
    }
}

bool Selection_Desk::settles_before_leaving() const {
    return toolbox_.state().options.selection_mode != Selection_Mode::fixed && is_to_settle();
}

void Selection_Desk::settle_before_leaving() {
    if (settles_before_leaving()) {
        recorder_.step([this] { return plot() == Outcome::done ? Command::plot_paste : Command::none; });
    }
}

std::optional<Tile> Selection_Desk::settled_tile() const {
    const Work_Area& work = canvas_.work_area();
    return work.has_lifted() || (settles_before_leaving() && !work.is_plotted()) ? tile_with_paste()
                                                                                 : std::nullopt;
}

std::optional<Tile> Selection_Desk::tile_with_lifted() const {
    return canvas_.work_area().has_lifted() ? tile_with_paste() : std::nullopt;
}

std::optional<Tile> Selection_Desk::tile_with_paste() const {
    if (canvas_.tile() == nullptr) {
        return std::nullopt;
    }
    Tile settled(*canvas_.tile());
    Drawing_Target target(settled);
    canvas_.work_area().paste()->plot(target);
    return settled;
}

// What goes on floating may look as if it were a part of the tile already.
bool Selection_Desk::has_to_settle() const {
    const bool is_let_go = canvas_.tile() != nullptr && settles_before_leaving() &&
                           toolbox_.state().options.selection_mode == Selection_Mode::standard;
    const std::optional<Tile> settled = settled_tile();
    return is_let_go || (settled && !settled->same_pixels(*canvas_.tile()));
}

void Selection_Desk::settle_to_save() {
    plot_lifted(toolbox_.state().options.selection_mode);
    settle_before_leaving();
}

void Selection_Desk::drop_lifted() {
    plot_lifted(Selection_Mode::standard);
}

// Wherever a selection lies.
void Selection_Desk::plot_lifted(Selection_Mode mode) {
    if (!canvas_.work_area().has_lifted()) {
        return;
    }
    recorder_.step([this, mode] {
        Drawing_Target target(*canvas_.tile());
        canvas_.work_area().plot_paste(target, mode);
        return Command::plot_paste;
    });
}

} // namespace quadrelle
