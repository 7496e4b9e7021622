// Selecting, copying and pasting at random, against a simple model.

#include "tests/whole/selection_model.h"
#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "tests/whole/program_test.h"
#include "tools/flood_fill.h"
#include "tools/options.h"
#include "tools/shapes.h"

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

class Selection_Model_Test : public Program_Test {
protected:
    void SetUp() override {
        Program_Test::SetUp();
        toolbox->select_brush_size(0);
        model_.add_document({24, 24}, 1);
        shown_documents_.push_back(&document());
        add_tiles();
        for (const Size size : {Size{13, 30}, Size{24, 24}}) {
            ASSERT_TRUE(editor->documents().new_document(size));
            model_.add_document(size, 1);
            shown_documents_.push_back(&document());
            add_tiles();
        }
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    Tile_Point some_pixel() { return {below(model_.size().width), below(model_.size().height)}; }
    Tile_Point some_corner() { return {below(model_.size().width + 1), below(model_.size().height + 1)}; }
    Color some_color() {
        return {below(3) * 100, below(3) * 100, below(3) * 100, below(3) == 0 ? below(256) : 255};
    }
    Mouse_Button some_button() { return below(3) == 0 ? Mouse_Button::right : Mouse_Button::left; }

    // Which of the things that can be done it was.
    int do_something();
    void expect_same() const;

    std::mt19937 random_;
    Model model_;

private:
    static Point window_point(Tile_Point pixel, int part) {
        const Canvas_View& canvas = editor->canvas();
        return {canvas.origin().x + pixel.x * canvas.pixel_size() + part,
                canvas.origin().y + pixel.y * canvas.pixel_size() + part};
    }
    void drag(Tile_Point from, Tile_Point to, Mouse_Button button, int part = 5) {
        script().press(window_point(from, part), button);
        script().motion(window_point(some_pixel(), part)).motion(window_point(to, part));
        script().release(window_point(to, part), button);
        play();
    }
    void select_tool(Tool tool) {
        editor->execute(row_of(tool).command);
        model_.select_tool(tool);
    }
    void add_tiles() {
        for (int i = 0; i < 2; ++i) {
            execute(Command::add_new_tile);
            model_.document().tiles.push_back(model_.tile());
            model_.document().current = model_.document().tiles.size() - 1;
        }
    }
    static std::vector<bool> drawn_mask(Size size, const std::function<void(Drawing_Target&)>& draw) {
        Selection selection(size);
        selection.draw(draw);
        std::vector<bool> mask;
        for (const Color pixel : selection.mask().pixels()) {
            mask.push_back(pixel == Selection::selected_color);
        }
        return mask;
    }

    void mark_rectangle();
    void mark_circle();
    void mark_pixel();
    void pour();
    void copy() {
        editor->execute(Command::copy);
        model_.copy();
    }
    void cut();
    void paste();
    void clone();
    void move();
    void click_with_selection_tool();
    void nudge();
    void change(Command command, const std::function<void()>& expected, bool is_always_recorded = false) {
        editor->execute(command);
        model_.edit(expected, is_always_recorded);
    }
    void fill();
    void paint();
    void go_elsewhere();
    void choose_mode();
    void show_next_document();

    std::vector<const Tileset_Document*> shown_documents_;
};

void Selection_Model_Test::mark_rectangle() {
    select_tool(Tool::rectangle_selector);
    const Mouse_Button button = some_button();
    const Tile_Point from = some_corner();
    const Tile_Point to = below(4) == 0 ? from : some_corner();
    // Part 0 is the corner itself.
    drag(from, to, button, 0);
    if (from == to) {
        model_.edit([&] {
            if (button == Mouse_Button::left && !model_.is_selected(from)) {
                model_.deselect();
            }
        });
        return;
    }
    std::vector<bool> area;
    for_each_pixel(model_.size(), [&](Tile_Point p) {
        area.push_back(p.x >= std::min(from.x, to.x) && p.x < std::max(from.x, to.x) &&
                       p.y >= std::min(from.y, to.y) && p.y < std::max(from.y, to.y));
    });
    model_.select(area, button);
}

void Selection_Model_Test::mark_circle() {
    select_tool(Tool::circle_selector);
    const Mouse_Button button = some_button();
    const Tile_Point from = some_pixel();
    const Tile_Point to = some_pixel();
    drag(from, to, button);
    if (from != to) {
        model_.select(drawn_mask(model_.size(),
                                 [&](Drawing_Target& mask) {
                                     draw_filled_ellipse(
                                         mask, from, ellipse_radii(from, to),
                                         {Selection::selected_color, Selection::selected_color});
                                 }),
                      button);
    } else if (button == Mouse_Button::left && !model_.is_selected(from)) {
        model_.edit([this] { model_.deselect(); });
    }
}

void Selection_Model_Test::mark_pixel() {
    select_tool(Tool::brush_selector);
    const Mouse_Button button = some_button();
    const Tile_Point at = some_pixel();
    script().click(window_point(at, 5), button);
    play();
    std::vector<bool> area;
    for_each_pixel(model_.size(), [&](Tile_Point p) { area.push_back(p == at); });
    model_.select(area, button);
}

void Selection_Model_Test::pour() {
    select_tool(Tool::wand_selector);
    const auto mode = static_cast<Wand_Mode>(below(3) == 0 ? 1 + below(2) : 0);
    toolbox->options().wand_mode = mode;
    const Mouse_Button button = some_button();
    const Tile_Point at = some_pixel();
    script().click(window_point(at, 5), button);
    play();
    Tile tile(model_.size().width, model_.size().height);
    tile.change_pixels(
        [&](std::span<Color> pixels) { std::ranges::copy(model_.tile().pixels, pixels.begin()); });
    const std::vector<bool> area = drawn_mask(model_.size(), [&](Drawing_Target& mask) {
        Drawing_Target target(tile);
        Flood_Area(target, at, Flood_Bounds::whole_tile).for_each([&](Tile_Point p) {
            mask.plot(p, Selection::selected_color);
        });
    });
    std::vector<bool> mask = model_.work.mask;
    for (std::size_t i = 0; i < area.size(); ++i) {
        mask[i] = area[i] ? button == Mouse_Button::left : mask[i];
    }
    const bool is_quick =
        mode != Wand_Mode::normal && mask[static_cast<std::size_t>(at.y * model_.size().width + at.x)];
    model_.edit(
        [&] {
            model_.work.mask = mask;
            if (is_quick) {
                model_.copy();
                if (mode == Wand_Mode::quick_cut) {
                    model_.clear();
                }
                const Paste copy = model_.copies[0];
                model_.floats(copy);
            }
        },
        is_quick);
}

void Selection_Model_Test::cut() {
    if (!model_.shows_paste() && !model_.has_selection()) {
        return;
    }
    change(
        Command::cut,
        [this] {
            model_.copy();
            model_.clear();
        },
        true);
}

void Selection_Model_Test::paste() {
    if (model_.copies.empty()) {
        editor->execute(Command::paste);
        return;
    }
    change(
        Command::paste,
        [&] {
            Paste copy = model_.copies[model_.current_copy];
            if (model_.is_beside(copy)) {
                model_.centre(copy);
            }
            model_.floats(copy);
        },
        true);
}

void Selection_Model_Test::clone() {
    constexpr int style_count = 4;
    const int style = (options->value(Option::clone_style) + 1) % style_count;
    set_option(Option::clone_style, style);
    if (!model_.shows_paste() && !model_.has_selection() && model_.copies.empty()) {
        editor->execute(Command::clone);
        return;
    }
    change(
        Command::clone,
        [&] {
            if (model_.shows_paste() || model_.has_selection()) {
                model_.copy();
            }
            Paste copy = model_.copies[model_.current_copy];
            const Size size = model_.size();
            const Size own = copy.picture.size;
            if (style == 1) {
                model_.centre(copy);
            } else if (style == 2) {
                copy.position = {};
            } else if (style == 3) {
                Tile from(own.width, own.height);
                Tile to(size.width, size.height);
                from.change_pixels(
                    [&](std::span<Color> pixels) { std::ranges::copy(copy.picture.pixels, pixels.begin()); });
                from.resample_into(to);
                Image resized(to);
                for_each_pixel(size, [&](Tile_Point p) {
                    resized.at(p).a =
                        copy.picture.at({p.x * own.width / size.width, p.y * own.height / size.height}).a;
                });
                copy = {resized, {}};
            }
            model_.floats(copy);
        },
        true);
}

void Selection_Model_Test::move() {
    select_tool(Tool::selection);
    const Tile_Point from = some_pixel();
    const Tile_Point to = some_pixel();
    if (from == to) {
        return;
    }
    drag(from, to, some_button());
    model_.edit([&] {
        if (model_.is_selected(from)) {
            model_.lift();
        }
        if (model_.work.paste && !model_.has_selection() && model_.work.paste->is_in_picture(from)) {
            model_.work.paste->position.x += to.x - from.x;
            model_.work.paste->position.y += to.y - from.y;
        }
    });
}

void Selection_Model_Test::click_with_selection_tool() {
    select_tool(Tool::selection);
    const Tile_Point at = some_pixel();
    script().click(window_point(at, 5), some_button());
    play();
    model_.edit([&] {
        if (model_.work.paste && !model_.has_selection()) {
            if (!model_.work.paste->is_in_picture(at)) {
                model_.plot();
            }
        } else if (!model_.is_selected(at)) {
            model_.deselect();
        }
    });
}

void Selection_Model_Test::nudge() {
    if (!model_.shows_paste()) {
        return;
    }
    const int direction = below(4);
    constexpr std::array keys{key::left, key::right, key::up, key::down};
    constexpr std::array<Tile_Point, 4> steps{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};
    script().key(keys.at(static_cast<std::size_t>(direction)), Modifier::shift);
    play();
    model_.nudge(steps.at(static_cast<std::size_t>(direction)));
}

void Selection_Model_Test::fill() {
    const Color color = some_color();
    tool_colors->set_color(Mouse_Button::left, color);
    change(Command::fill, [&] { model_.fill(color); });
}

void Selection_Model_Test::paint() {
    select_tool(Tool::pen);
    const Color color = some_color();
    const Tile_Point at = some_pixel();
    tool_colors->set_color(Mouse_Button::left, color);
    script().click(window_point(at, 5));
    play();
    model_.edit([&] {
        if (!model_.has_selection() || model_.is_selected(at)) {
            model_.tile().at(at) = color;
        }
    });
}

void Selection_Model_Test::go_elsewhere() {
    const std::size_t current = model_.document().current;
    switch (below(3)) {
    case 0:
        editor->execute(Command::next_tile);
        model_.show_tile(current + 1);
        break;
    case 1:
        editor->execute(Command::previous_tile);
        model_.show_tile(current - 1);
        break;
    default: show_next_document(); break;
    }
}

// Tabs are as wide as their titles, and what lies between them may be shown on the way.
void Selection_Model_Test::show_next_document() {
    const std::size_t next = (model_.shown + 1) % shown_documents_.size();
    for (int x = 270; x < 770 && &document() != shown_documents_.at(next); x += 30) {
        script().click({x, 53});
        play();
        const auto now = std::ranges::find(shown_documents_, &document());
        const auto index = static_cast<std::size_t>(now - shown_documents_.begin());
        if (index != model_.shown) {
            model_.show_document(index);
        }
    }
}

void Selection_Model_Test::choose_mode() {
    model_.mode = static_cast<Selection_Mode>(below(3));
    toolbox->options().selection_mode = model_.mode;
}

void Selection_Model_Test::expect_same() const {
    const Tileset& tileset = document().tileset();
    const Document_Model& expected = model_.document();
    ASSERT_EQ(tileset.current_index(), static_cast<int>(expected.current));
    for (std::size_t i = 0; i < expected.tiles.size(); ++i) {
        const Image shown(tileset.tile_at(static_cast<int>(i)));
        EXPECT_EQ(shown, expected.tiles[i]) << "tile " << i;
    }
    const Work_Area& work = editor->canvas().work_area();
    for_each_pixel(model_.size(), [&](Tile_Point p) {
        EXPECT_EQ(work.selection().contains(p), model_.is_selected(p)) << p.x << ", " << p.y;
    });
    EXPECT_EQ(work.has_selection(), model_.has_selection());
    EXPECT_FALSE(work.candidate());
    EXPECT_EQ(paste_of(work.paste()), model_.work.paste);
    EXPECT_EQ(toolbox->current_tool(), model_.tool);
    const Copy_Buffer& copies = editor->copies();
    ASSERT_EQ(copies.copies().size(), model_.copies.size());
    for (std::size_t i = 0; i < model_.copies.size(); ++i) {
        EXPECT_EQ(paste_of(copies.copies()[i]), model_.copies[i]) << "copy " << i;
    }
}

int Selection_Model_Test::do_something() {
    const std::array<std::function<void()>, 20> actions{
        [this] { mark_rectangle(); },
        [this] { mark_circle(); },
        [this] { mark_pixel(); },
        [this] { pour(); },
        [this] { copy(); },
        [this] { cut(); },
        [this] { paste(); },
        [this] { clone(); },
        [this] { move(); },
        [this] { move(); },
        [this] { click_with_selection_tool(); },
        [this] { nudge(); },
        [this] { change(Command::plot_paste, [this] { model_.plot(); }); },
        [this] {
            change(Command::deselect, [this] {
                if (model_.has_selection()) {
                    model_.deselect();
                } else {
                    model_.settle();
                    model_.work.paste.reset();
                }
            });
        },
        [this] {
            change(Command::invert_selection, [this] {
                model_.settle();
                model_.work.mask.flip();
            });
        },
        [this] { below(2) == 0 ? fill() : change(Command::clear, [this] { model_.clear(); }); },
        [this] { paint(); },
        [this] {
            editor->execute(Command::undo);
            model_.undo();
        },
        [this] {
            editor->execute(Command::redo);
            model_.redo();
        },
        [this] { below(2) == 0 ? go_elsewhere() : choose_mode(); }};
    const int choice = below(static_cast<int>(actions.size()));
    actions.at(static_cast<std::size_t>(choice))();
    return choice;
}

TEST_F(Selection_Model_Test, agrees_with_a_simple_model_whatever_is_done) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    random_.seed(seed);
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step) + ": " + std::to_string(do_something()));
        expect_same();
    }
}

} // namespace
} // namespace quadrelle::testing
