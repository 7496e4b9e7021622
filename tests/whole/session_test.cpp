// Whole sessions of random work, compared with a simple model after every step.

#include "commands/command_table.h"
#include "tests/whole/session_walk.h"
#include "tileset/tileset_file.h"
#include "tools/flood_fill.h"
#include "tools/line.h"
#include "tools/options.h"
#include "tools/shapes.h"
#include "ui/window_layout.h"

#include <cstdlib>
#include <random>
#include <string>

namespace quadrelle::testing {
namespace {

class Session_Test : public Session_Walk {
protected:
    // Which of the steps it was.
    int do_something() {
        const int choice = below(static_cast<int>(steps_.size()));
        steps_[static_cast<std::size_t>(choice)]();
        return choice;
    }

private:
    // A click beside what is selected ends it.
    void mark(const Area& area, bool is_click, Tile_Point from, Mouse_Button button) {
        model_.edit([&] {
            if (!is_click) {
                model_.select(area, button);
            } else if (button == Mouse_Button::left && !model_.is_selected(from)) {
                model_.deselect();
            }
        });
    }
    void mark_rectangle() {
        select_tool(Tool::rectangle_selector);
        const Mouse_Button button = some_button();
        const Tile_Point from = some_pixel(1);
        const Tile_Point to = one_in(4) ? from : some_pixel(1);
        // Part 0 is the corner itself.
        drag(from, to, button, 0);
        const Area area = area_of(model_.size(), [&](Drawing_Target& mask) {
            for (int x = std::min(from.x, to.x); x < std::max(from.x, to.x); ++x) {
                for (int y = std::min(from.y, to.y); y < std::max(from.y, to.y); ++y) {
                    mask.plot({x, y}, white);
                }
            }
        });
        mark(area, from == to, from, button);
    }
    void mark_circle() {
        select_tool(Tool::circle_selector);
        const Mouse_Button button = some_button();
        const Tile_Point from = some_pixel();
        const Tile_Point to = some_pixel();
        drag(from, to, button);
        const Area area = area_of(model_.size(), [&](Drawing_Target& mask) {
            draw_filled_ellipse(mask, from, ellipse_radii(from, to), {white, white});
        });
        mark(area, from == to, from, button);
    }
    void mark_pixel() {
        select_tool(Tool::brush_selector);
        const Mouse_Button button = some_button();
        const Tile_Point at = some_pixel();
        click(window_point(at), button);
        mark(area_of(model_.size(), [&](Drawing_Target& mask) { mask.plot(at, white); }), false, at, button);
    }
    void pour() {
        select_tool(Tool::wand_selector);
        const auto mode = static_cast<Wand_Mode>(one_in(3) ? 1 + below(2) : 0);
        tools().options.wand_mode = mode;
        const Mouse_Button button = some_button();
        const Tile_Point at = some_pixel();
        click(window_point(at), button);
        const Area area = area_of(model_.size(), [&](Drawing_Target& mask) {
            Tile tile(*model_.picture());
            Flood_Area(Drawing_Target(tile), at, Flood_Bounds::whole_tile).for_each([&](Tile_Point pixel) {
                mask.plot(pixel, white);
            });
        });
        const Area selected = model_.work.area;
        model_.select(area, button);
        const bool is_visible = model_.has_visible();
        model_.work.area = selected;
        if (mode == Wand_Mode::normal || button == Mouse_Button::right || !is_visible) {
            mark(area, false, at, button);
            return;
        }
        const auto float_area = [&] {
            model_.select(area, button);
            model_.copy();
            if (mode == Wand_Mode::quick_cut) {
                model_.clear();
            }
            model_.floats(*model_.copies[0]);
            if (mode == Wand_Mode::quick_cut) {
                model_.work.source = Paste_Source::tile;
            }
        };
        model_.edit(float_area, true);
    }
    void cut() {
        if (model_.shows_paste() || model_.has_selection()) {
            const auto expected = [this] {
                model_.copy();
                model_.clear();
            };
            if (!model_.has_visible()) {
                editor->execute(Command::cut);
                return;
            }
            change(Command::cut, expected, true);
        }
    }
    void paste() {
        if (model_.copies.empty()) {
            editor->execute(Command::paste);
            return;
        }
        change(
            Command::paste, [&] { model_.floats(in_view(*model_.copies[0], model_.size())); }, true);
    }
    void clone() {
        const auto style = static_cast<Clone_Style>((options->value(Option::clone_style) + 1) % 4);
        set_option(Option::clone_style, static_cast<int>(style));
        const bool has_own = model_.shows_paste() || model_.has_selection();
        if (has_own ? !model_.has_visible() : model_.copies.empty()) {
            editor->execute(Command::clone);
            return;
        }
        const auto expected = [&] {
            if (has_own) {
                model_.copy();
            }
            model_.floats(cloned(*model_.copies[0], style, model_.size()));
        };
        change(Command::clone, expected, true);
    }
    void move() {
        select_tool(Tool::selection);
        const Tile_Point from = some_pixel();
        const Tile_Point to = some_pixel();
        if (from == to || is_at_handle(from)) {
            return;
        }
        drag(from, to, some_button());
        model_.edit([&] {
            if (model_.is_selected(from)) {
                model_.lift();
            }
            if (model_.shows_paste() && is_in_paste(from)) {
                model_.move_paste(to.x - from.x, to.y - from.y);
            }
        });
    }
    void click_with_selection_tool() {
        select_tool(Tool::selection);
        const Tile_Point at = some_pixel();
        const bool is_on_handle = is_at_handle(at);
        click(window_point(at), some_button());
        if (is_on_handle) {
            return;
        }
        model_.edit([&] {
            if (model_.shows_paste() && !is_in_paste(at)) {
                model_.plot();
            } else if (!model_.shows_paste() && !model_.is_selected(at)) {
                model_.deselect();
            }
        });
    }
    // What those do is another matter.
    static bool is_at_handle(Tile_Point at) {
        return editor->canvas().handle_at(window_point(at), tools()) != Paste_Handle::none;
    }
    // Also where its picture is transparent.
    bool is_in_paste(Tile_Point at) const {
        const Floating_Paste& paste = *model_.work.paste;
        return !paste.picture->is_outside(at.x - paste.position.x, at.y - paste.position.y);
    }
    void nudge(Keycode pressed, Tile_Point step) {
        if (model_.shows_paste()) {
            const bool is_far = one_in(2);
            play(script().key(pressed, is_far ? Modifier::shift : Modifier::none));
            model_.nudge({is_far ? 8 * step.x : step.x, is_far ? 8 * step.y : step.y});
        }
    }
    void deselect() {
        change(Command::deselect, [this] {
            if (model_.has_selection()) {
                model_.deselect();
            } else {
                model_.settle();
                model_.drop_paste();
            }
        });
    }
    void invert() {
        change(Command::invert_selection, [this] {
            model_.settle();
            const auto inverted = std::make_shared<Selection>(*model_.work.area);
            inverted->invert();
            model_.work.area = inverted;
        });
    }
    void fill() {
        const Color color = choose_color();
        change(Command::fill, [&] { model_.fill(color); });
    }
    // A little over the edge at times.
    void draw(Command tool, void (*draw_with)(Drawing_Target&, Tile_Point from, Tile_Point to, Color)) {
        const Tile_Point from = some_pixel(3);
        const Tile_Point to = some_pixel(3);
        const Color color = choose_color();
        tools().options.rectangle_type = Shape_Type::outline;
        editor->execute(tool);
        model_.select_tool(tool == Command::filled_rectangle ? Tool::rectangle : tool_of(tool));
        play(script().drag({window_point(from), window_point(to)}));
        model_.edit(
            [&] { model_.draw([&](Drawing_Target& target) { draw_with(target, from, to, color); }); });
    }
    void transform_paste(Command command, Tile_Point (*source)(Tile_Point to, Size size)) {
        if (command == Command::scroll_left || command == Command::scroll_up) {
            command == Command::scroll_left ? model_.move_paste(-1, 0) : model_.move_paste(0, -1);
        } else {
            const bool turns = command == Command::rotate || command == Command::rotate_back;
            model_.transform_paste(turns, source);
        }
    }
    void transform(Command command, Tile_Point (*source)(Tile_Point to, Size size)) {
        const Size size = model_.size();
        const bool turns = command == Command::rotate || command == Command::rotate_back;
        if (model_.has_selection()) {
            return;
        }
        editor->execute(command);
        if (model_.shows_paste()) {
            model_.edit([&] { transform_paste(command, source); });
            return;
        }
        if (!turns || size.width == size.height) {
            model_.transform([source, size](Tile_Point to) { return source(to, size); });
        }
    }
    void walk_history(Command command, void (Session_Model::*step)()) {
        for (int times = 1 + below(3) * below(9); times > 0; --times) {
            perform(command, step);
        }
    }
    void undo() { walk_history(Command::undo, &Session_Model::undo); }
    void redo() { walk_history(Command::redo, &Session_Model::redo); }
    void choose_mode() {
        model_.mode = static_cast<Selection_Mode>(below(3));
        tools().options.selection_mode = model_.mode;
    }
    void go_by(Command command, int step) {
        editor->execute(command);
        model_.go_to(static_cast<int>(model_.set().current) + step);
    }
    void click_in_strip() {
        const int cell = below(Tile_Strip::visible_cells);
        const int tile = model_.set().first + cell;
        if (tile != static_cast<int>(model_.set().current) && tile < model_.set().count()) {
            click({window_layout::tile_strip.x + window_layout::tile_strip.height * cell + 11,
                   window_layout::tile_strip.y + 13});
            model_.go_to(tile);
        }
    }
    void shift(Command command, int Tile_Point::*way) {
        editor->execute(command);
        model_.toggle_shift(way);
    }
    void scroll_strip(Command command, int first) {
        editor->execute(command);
        if (command == Command::rewind_strip || command == Command::forward_strip) {
            model_.end_shifts();
        }
        model_.set().scroll_to(first);
    }
    static Point cell_of(int tile) { return {32 + tile % 16 * 32, 32 + tile / 16 * 32}; }
    void arrange() {
        const int one = below(model_.set().count());
        const int other = below(model_.set().count());
        const bool chooses = one_in(2);
        script().press(cell_of(one)).press_number(cell_of(other), 2).key(key::tab);
        script().key(chooses ? key::space : key::escape);
        execute(Command::arrange_select);
        model_.arrange(static_cast<std::size_t>(one), static_cast<std::size_t>(other), chooses);
    }
    // The tile on view stays shifted when it is clicked.
    void choose_in_array() {
        const int tile = below(model_.set().count());
        script().press(cell_of(tile));
        execute(Command::view_tile_array);
        if (tile != static_cast<int>(model_.set().current)) {
            model_.go_to(tile);
        }
    }
    void save() {
        if (one_in(3)) {
            answer_files(File_Answer_State::cancelled);
            editor->execute(Command::save_as);
            return;
        }
        answer_files(File_Answer_State::chosen, "saved.qdl");
        perform(Command::save_as, &Session_Model::settle_to_save);
        model_.set().name = "saved.qdl";
        model_.set().is_modified = false;
        const Loaded_Tileset loaded = load_tileset("saved.qdl");
        ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
        expect_same_tiles(*loaded.tileset);
    }
    // The one with many tiles stays.
    void close_set() {
        if (model_.sets.size() > 1 && model_.set().count() < 40) {
            if (model_.set().is_modified) {
                script().key(key::enter);
            }
            execute(Command::close);
            shown_sets_.erase(shown_sets_.begin() + static_cast<std::ptrdiff_t>(model_.shown));
            model_.close_set();
        }
    }
    // Tabs are as wide as their titles, and what lies between them may be shown on the way.
    void show_next_set() {
        const std::size_t next = (model_.shown + 1) % shown_sets_.size();
        for (int x = 270; x < 770 && &document() != shown_sets_.at(next); x += 30) {
            click({x, 42});
            const auto now = std::ranges::find(shown_sets_, &document()) - shown_sets_.begin();
            if (static_cast<std::size_t>(now) != model_.shown) {
                model_.show_set(static_cast<std::size_t>(now));
                model_.deselect();
            }
        }
    }

    using P = Tile_Point;
    // What is done more often stands here more than once.
    // clang-format off
    const std::vector<std::function<void()>> steps_{
        [this] { mark_rectangle(); }, [this] { mark_circle(); }, [this] { mark_pixel(); }, [this] { pour(); },
        [this] { perform(Command::copy, &Session_Model::copy); }, [this] { cut(); }, [this] { paste(); },
        [this] { clone(); }, [this] { move(); }, [this] { move(); }, [this] { click_with_selection_tool(); },
        [this] { nudge(key::left, {-1, 0}); }, [this] { nudge(key::right, {1, 0}); },
        [this] { nudge(key::up, {0, -1}); }, [this] { nudge(key::down, {0, 1}); },
        [this] { change(Command::plot_paste, [this] { model_.plot(); }); },
        [this] { deselect(); }, [this] { deselect(); }, [this] { invert(); }, [this] { fill(); },
        [this] { change(Command::clear, [this] { model_.clear(); }); },
        [this] { draw(Command::pen, draw_line); }, [this] { draw(Command::line, draw_line); },
        [this] { draw(Command::rectangle, draw_rectangle); },
        [this] { draw(Command::filled_rectangle, [](Drawing_Target& target, P from, P to, Color color) {
            draw_filled_rectangle(target, from, to, {color, color}); }); },
        [this] { draw(Command::flood_fill, [](Drawing_Target& target, P from, P, Color color) {
            flood_fill(target, from, color); }); },
        [this] { transform(Command::mirror, [](P to, Size s) -> P { return {s.width - 1 - to.x, to.y}; }); },
        [this] { transform(Command::flip, [](P to, Size s) -> P { return {to.x, s.height - 1 - to.y}; }); },
        [this] { transform(Command::scroll_left, [](P to, Size s) -> P { return {(to.x + 1) % s.width, to.y}; }); },
        [this] { transform(Command::scroll_up, [](P to, Size s) -> P { return {to.x, (to.y + 1) % s.height}; }); },
        [this] { transform(Command::rotate, [](P to, Size s) -> P { return {to.y, s.width - 1 - to.x}; }); },
        [this] { transform(Command::rotate_back, [](P to, Size s) -> P { return {s.height - 1 - to.y, to.x}; }); },
        [this] { undo(); }, [this] { undo(); }, [this] { undo(); }, [this] { redo(); },
        [this] { choose_mode(); }, [this] { click_in_strip(); },
        [this] { go_by(Command::next_tile, 1); }, [this] { go_by(Command::previous_tile, -1); },
        [this] { perform(Command::add_new_tile, &Session_Model::add_tile); },
        [this] { perform(Command::insert_new_tile, &Session_Model::insert_tile); },
        [this] { perform(Command::delete_tile, &Session_Model::delete_tile); },
        [this] { shift(Command::horizontal_seam_tool, &Tile_Point::x); },
        [this] { shift(Command::vertical_seam_tool, &Tile_Point::y); },
        [this] { scroll_strip(Command::next_tile_strip, model_.set().first + 46); },
        [this] { scroll_strip(Command::previous_tile_strip, model_.set().first - 46); },
        [this] { scroll_strip(Command::rewind_strip, 0); }, [this] { scroll_strip(Command::forward_strip, 1000); },
        [this] { arrange(); }, [this] { choose_in_array(); }, [this] { save(); }, [this] { one_in(2) ? new_set({24, 24}) : new_set({26, 26}); },
        [this] { close_set(); }, [this] { show_next_set(); }, [this] { show_next_set(); },
    };
    // clang-format on
};

// QUADRELLE_SEED walks a failed way once more.
unsigned chosen_seed() {
    const char* const wanted = std::getenv("QUADRELLE_SEED");
    return wanted == nullptr ? std::random_device{}() : static_cast<unsigned>(std::atoi(wanted));
}

// Enough steps that the oldest states fall off.
TEST_F(Session_Test, agrees_with_a_simple_model_whatever_is_done) {
    const unsigned seed = chosen_seed();
    SCOPED_TRACE("seed " + std::to_string(seed));
    random_.seed(seed);
    for (int step = 0; step < 1000 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step) + ": " + std::to_string(do_something()));
        expect_same();
    }
}

} // namespace
} // namespace quadrelle::testing
