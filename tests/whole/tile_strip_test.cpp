#include "tileset/tile_strip.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tests/support/temporary_folder.h"
#include "tests/whole/program_test.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr int visible = 51;

constexpr Point strip_cell(int cell) {
    return {4 + 24 * cell + 11, 636 + 13};
}

// Of the numbers below 2000 each has a colour of its own.
Color color_of(int number) {
    return {number % 250, 40 + number / 250 * 20, 90};
}

void paint(Tile& tile, int number) {
    tile.fill(color_of(number));
    tile.update_texture();
}

std::vector<Color> picture_of(const Rectangle& area) {
    std::vector<Color> picture;
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            picture.push_back(pixel_at({x, y}));
        }
    }
    return picture;
}

class Tile_Strip_Test : public Program_Test {
protected:
    static Tileset& tileset() { return document().tileset(); }
    static Tile_Strip& strip() { return document().strip(); }

    // Of one pixel a tile: tile i has the colour of i.
    void load(int count) {
        Bytes bytes{'Q', 'D', 'L', '\n', 0, 1, 1};
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<std::uint8_t>(static_cast<unsigned>(count) >> shift));
        }
        for (int i = 0; i < count; ++i) {
            const Color color = color_of(i);
            bytes.insert(bytes.end(), {255, color.b, color.g, color.r});
        }
        const std::string path = folder().folder().path("many.qdl");
        store(path, bytes);
        answer_files(File_Answer_State::chosen, path);
        execute(Command::load);
        ASSERT_EQ(tileset().count(), count);
    }
    void click(Point point, Mouse_Button button = Mouse_Button::left) {
        script().click(point, button);
        play();
    }
};

// The seven buttons from left to right: where their middle is, and their pictures.
struct Button {
    Point middle;
    Sprite normal;
    Sprite held;
    Sprite disabled;
};

constexpr Point first_button{36, 336};

// clang-format off
constexpr std::array<Button, 7> buttons{{
    {{36 + 12, 347},  Sprite::rewind_depressed,        Sprite::rewind_pressed,        Sprite::rewind_grey},
    {{36 + 36, 347},  Sprite::strip_prev_depressed,    Sprite::strip_prev_pressed,    Sprite::strip_prev_grey},
    {{36 + 60, 347},  Sprite::prev_tile_depressed,     Sprite::prev_tile_pressed,     Sprite::prev_tile_grey},
    {{36 + 93, 347},  Sprite::current_tile_id,         Sprite::current_tile_id,       Sprite::current_tile_id},
    {{36 + 126, 347}, Sprite::next_tile_depressed,     Sprite::next_tile_pressed,     Sprite::next_tile_grey},
    {{36 + 150, 347}, Sprite::strip_next_depressed,    Sprite::strip_next_pressed,    Sprite::strip_next_grey},
    {{36 + 174, 347}, Sprite::strip_forward_depressed, Sprite::strip_forward_pressed, Sprite::forward_grey},
}};
// clang-format on

enum class Look { normal, held, disabled, other };

// What the window shows at the button's place, by comparison with its sprites.
Look look_of(const Button& button) {
    const Rectangle sprite = sprite_rect(button.normal);
    const Rectangle area{first_button.x + sprite.x, first_button.y, sprite.width, sprite.height};
    const std::vector<Color> shown = picture_of(area);
    Look look = Look::other;
    for (const Look candidate : {Look::normal, Look::held, Look::disabled}) {
        screen->fill_rect(area, standard_color(Standard_Color::pane_background));
        screen->draw_sprite(candidate == Look::normal ? button.normal
                            : candidate == Look::held ? button.held
                                                      : button.disabled,
                            {area.x, area.y});
        if (look == Look::other && picture_of(area) == shown) {
            look = candidate;
        }
    }
    editor->redraw(Present::no);
    return look;
}

struct Place {
    int current;
    int first;
    bool operator==(const Place&) const = default;
};

struct Navigation_Case {
    std::size_t button;
    Place before;
    Place after;
    Look look;
    Look look_while_held;
};

TEST_F(Tile_Strip_Test, navigation_buttons_step_and_scroll_and_turn_grey_at_the_ends) {
    load(200);
    const std::vector<Navigation_Case> cases{
        {0, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {0, {80, 60}, {80, 0}, Look::normal, Look::disabled},
        {1, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {1, {80, 60}, {80, 14}, Look::normal, Look::held},
        {1, {80, 40}, {80, 0}, Look::normal, Look::disabled},
        {2, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {2, {80, 80}, {79, 79}, Look::normal, Look::held},
        {2, {1, 0}, {0, 0}, Look::normal, Look::disabled},
        {4, {80, 30}, {81, 31}, Look::normal, Look::held},
        {4, {198, 60}, {199, 149}, Look::normal, Look::disabled},
        {4, {199, 0}, {199, 0}, Look::disabled, Look::disabled},
        {5, {0, 0}, {0, 46}, Look::normal, Look::held},
        {5, {0, 130}, {0, 149}, Look::normal, Look::disabled},
        {5, {0, 148}, {0, 149}, Look::disabled, Look::disabled},
        {6, {0, 0}, {0, 149}, Look::normal, Look::disabled},
        {6, {0, 149}, {0, 149}, Look::disabled, Look::disabled},
    };
    for (const Navigation_Case& test : cases) {
        SCOPED_TRACE("button " + std::to_string(test.button) + " at " + std::to_string(test.before.current) +
                     ", " + std::to_string(test.before.first));
        // There by way of the tiles at the strip's ends.
        tileset().select(199);
        strip().show_current();
        tileset().select(test.before.first);
        strip().show_current();
        tileset().select(test.before.current);
        editor->redraw(Present::no);
        ASSERT_EQ(strip().first(), test.before.first);
        const Button& button = buttons.at(test.button);
        EXPECT_EQ(look_of(button), test.look);
        script().press(button.middle);
        play();
        EXPECT_EQ(look_of(button), test.look_while_held);
        EXPECT_EQ((Place{tileset().current_index(), strip().first()}), test.after);
        script().motion({600, 5}).release({600, 5});
        play();
        EXPECT_NE(look_of(button), Look::held);
    }
}

TEST_F(Tile_Strip_Test, navigation_button_stays_held_until_the_release_wherever_that_comes) {
    load(200);
    const Button& next = buttons.at(4);
    script().press(next.middle);
    play();
    ASSERT_EQ(look_of(next), Look::held);
    // The dialog takes the release.
    script().key(key::escape);
    expect_loop("dialog \"Quit\"").release({5, 5}).key(key::escape);
    play();
    EXPECT_EQ(look_of(next), Look::normal);
}

TEST_F(Tile_Strip_Test, right_button_and_the_number_do_nothing) {
    load(200);
    tileset().select(100);
    for (const Button& button : buttons) {
        click(button.middle, Mouse_Button::right);
    }
    click(buttons.at(3).middle);
    click(strip_cell(3), Mouse_Button::right);
    EXPECT_EQ(tileset().current_index(), 100);
    EXPECT_EQ(strip().first(), 0);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(Tile_Strip_Test, click_selects_a_tile_as_a_step_of_the_history) {
    load(200);
    execute(Command::next_tile_strip);
    const std::size_t steps = document().history().entries().size();
    editor->canvas().work_area().invert_selection();
    click(strip_cell(5));
    EXPECT_EQ(tileset().current_index(), 51);
    EXPECT_FALSE(editor->canvas().work_area().has_selection());
    EXPECT_EQ(strip().first(), 46);
    EXPECT_EQ(editor->canvas().tile(), &tileset().tile_at(51));
    ASSERT_EQ(document().history().entries().size(), steps + 1);
    EXPECT_EQ(document().history().entries().back().kind, Command::change_tile);
    EXPECT_EQ(document().history().entries().back().tile_index, 51);
    EXPECT_TRUE(document().is_modified());
    EXPECT_EQ(count_in_preview(color_of(51)), 4);

    document().clear_modified();
    click(strip_cell(5));
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    EXPECT_FALSE(document().is_modified());
    // Back to the tile before, which the strip then shows.
    execute(Command::undo);
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_EQ(strip().first(), 0);
}

TEST_F(Tile_Strip_Test, click_takes_the_tile_back_from_the_seam_tools_first) {
    execute(Command::add_new_tile);
    execute(Command::previous_tile);
    document().tileset().current_tile()->set_pixel(3, 4, color_of(1));
    for (const Command command : {Command::horizontal_seam_tool, Command::vertical_seam_tool}) {
        execute(command);
        EXPECT_EQ(tile_pixel(3, 4), Color(0, 0, 0));
        click(strip_cell(1));
        EXPECT_EQ(tileset().tile_at(0).get_pixel(3, 4), color_of(1));
        EXPECT_EQ(tileset().tile_at(1).get_pixel(3, 4), Color(0, 0, 0));
        click(strip_cell(0));
    }
    execute(Command::horizontal_seam_tool);
    execute(Command::rewind_strip);
    EXPECT_EQ(tile_pixel(3, 4), color_of(1));
}

TEST_F(Tile_Strip_Test, shows_the_tiles_the_mark_and_free_places) {
    load(200);
    execute(Command::next_tile_strip);
    tileset().select(60);
    editor->redraw(Present::no);
    for (int cell = 0; cell < visible; ++cell) {
        EXPECT_EQ(pixel_at(strip_cell(cell)), color_of(46 + cell));
        const Color corner = pixel_at({4 + 24 * cell, 636});
        EXPECT_EQ(corner, cell == 14 ? Color(255, 255, 255) : color_of(46 + cell)) << cell;
    }
    load(10);
    EXPECT_EQ(pixel_at(strip_cell(9)), color_of(9));
    EXPECT_EQ(pixel_at(strip_cell(50)), pixel_at(strip_cell(10)));
    EXPECT_EQ(std::ranges::count(picture_of({4 + 240, 636, 41 * 24, 24}), Color(0, 0, 0)), 0);
    for (const Command command : {Command::next_tile_strip, Command::forward_strip}) {
        execute(command);
        EXPECT_EQ(strip().first(), 0);
    }
    click(strip_cell(10));
    click(strip_cell(50));
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_FALSE(document().is_modified());
    for (const std::size_t grey : {0, 1, 2, 5, 6}) {
        EXPECT_EQ(look_of(buttons.at(grey)), Look::disabled) << grey;
    }
    EXPECT_EQ(look_of(buttons.at(4)), Look::normal);
}

TEST_F(Tile_Strip_Test, takes_more_tiles_from_a_file_than_can_be_added) {
    load(300);
    execute(Command::forward_strip);
    EXPECT_EQ(strip().first(), 249);
    click(strip_cell(50));
    EXPECT_EQ(tileset().current_index(), 299);
    EXPECT_EQ(tile_pixel(0, 0), color_of(299));
    EXPECT_EQ(look_of(buttons.at(4)), Look::disabled);
    execute(Command::add_new_tile);
    execute(Command::insert_new_tile);
    EXPECT_EQ(tileset().count(), 300);
    execute(Command::delete_tile);
    EXPECT_EQ(tileset().current_index(), 298);
    EXPECT_EQ(strip().first(), 248);
}

TEST_F(Tile_Strip_Test, works_without_tiles) {
    load(0);
    for (const Button& button : buttons) {
        click(button.middle);
        EXPECT_EQ(look_of(button), &button == &buttons[3] ? Look::normal : Look::disabled);
    }
    click(strip_cell(0));
    EXPECT_EQ(pixel_at(strip_cell(0)), pixel_at(strip_cell(1)));
    EXPECT_FALSE(document().is_modified());
    execute(Command::add_new_tile);
    EXPECT_EQ(tileset().count(), 1);
    EXPECT_EQ(pixel_at({4, 636}), Color(255, 255, 255));
}

TEST_F(Tile_Strip_Test, belongs_to_its_document) {
    load(200);
    execute(Command::forward_strip);
    load(120);
    execute(Command::next_tile_strip);
    EXPECT_EQ(strip().first(), 46);
    editor->documents().close_document();
    ASSERT_EQ(tileset().count(), 200);
    EXPECT_EQ(strip().first(), 149);
    EXPECT_EQ(tileset().current_index(), 0);
    editor->documents().resize_current({2, 2});
    EXPECT_EQ(strip().first(), 0);
    // Its first tile is current again, and shows.
    execute(Command::forward_strip);
    tileset().select(199);
    load(10);
    editor->documents().close_document();
    EXPECT_EQ(strip().first(), 0);
}

// What a user expects, with numbers for tiles.
class Model {
public:
    explicit Model(int count) {
        while (static_cast<int>(tiles.size()) < count) {
            tiles.push_back(next_number++);
        }
        remember();
    }

    std::vector<int> tiles;
    int current = 0;
    int first = 0;
    int next_number = 0;

    [[nodiscard]] int count() const { return static_cast<int>(tiles.size()); }
    void go_to(int index) {
        if (index >= 0 && index < count() && index != current) {
            current = index;
            remember();
            show();
        }
    }
    void insert(int index) {
        tiles.insert(tiles.begin() + index, next_number++);
        current = index;
        show();
    }
    void erase() {
        const int number = tiles.at(static_cast<std::size_t>(current));
        tiles.erase(tiles.begin() + current);
        current = std::min(current, count() - 1);
        const auto past = states_.begin() + position_ + 1;
        position_ -= static_cast<int>(std::count(states_.begin(), past, number));
        std::erase(states_, number);
        if (position_ < 0) {
            start_anew();
        }
        show();
    }
    void start_anew() {
        states_.clear();
        position_ = -1;
        remember();
    }
    void forget_all() {
        states_.clear();
        position_ = -1;
    }
    void walk(int step) {
        const int reached = position_ + step;
        if (reached < 0 || reached >= static_cast<int>(states_.size())) {
            return;
        }
        position_ = reached;
        const int number = states_.at(static_cast<std::size_t>(reached));
        const int index = static_cast<int>(std::ranges::find(tiles, number) - tiles.begin());
        if (index != current) {
            current = index;
            show();
        }
    }
    void scroll_to(int cell) {
        first = cell;
        clamp();
    }
    void show() {
        if (current < first) {
            first = current;
        } else if (current >= first + visible) {
            first = current - visible + 1;
        }
        clamp();
    }

private:
    void clamp() {
        if (count() <= visible + first) {
            first = count() - visible;
        }
        first = std::max(first, 0);
    }
    void remember() {
        states_.resize(static_cast<std::size_t>(position_ + 1));
        states_.push_back(tiles.at(static_cast<std::size_t>(current)));
        if (states_.size() > 18) {
            states_.erase(states_.begin());
        }
        position_ = static_cast<int>(states_.size()) - 1;
    }

    std::vector<int> states_;
    int position_ = -1;
};

class Strip_Walk : public Tile_Strip_Test {
protected:
    void expect_equal(const Model& model) {
        ASSERT_EQ(tileset().count(), model.count());
        EXPECT_EQ(tileset().current_index(), model.current);
        EXPECT_EQ(strip().first(), model.first);
        EXPECT_EQ(editor->canvas().tile(), tileset().current_tile());
        for (int i = 0; i < model.count(); ++i) {
            ASSERT_EQ(tileset().tile_at(i).get_pixel(0, 0),
                      color_of(model.tiles.at(static_cast<std::size_t>(i))))
                << "tile " << i;
        }
    }
    void paint_current(const Model& model) {
        paint(*tileset().current_tile(), model.tiles.at(static_cast<std::size_t>(model.current)));
    }
    // New tiles get their number as soon as they are there: no state of them is known before.
    void change_number_of_tiles(Model& model, int choice) {
        if (choice == 0 && model.count() > 40) {
            editor->execute(Command::delete_tile);
            model.erase();
            return;
        }
        if (model.count() < 256) {
            model.insert(choice == 1 ? model.count() : model.current);
        }
        editor->execute(choice == 1 ? Command::add_new_tile : Command::insert_new_tile);
        paint_current(model);
    }
    // As an arrangement of the tiles ends.
    void swap(Model& model, int i, int j) {
        tileset().swap_tiles(i, j);
        document().history().reset(tileset());
        std::swap(model.tiles.at(static_cast<std::size_t>(i)), model.tiles.at(static_cast<std::size_t>(j)));
        model.start_anew();
    }
    void resize(Model& model, Size size) {
        editor->documents().resize_current(size);
        for (int i = 0; i < model.count(); ++i) {
            paint(tileset().tile_at(i), model.tiles.at(static_cast<std::size_t>(i)));
        }
        model.forget_all();
        model.current = 0;
        model.show();
    }
    void scroll(Model& model, int choice) {
        constexpr std::array commands{Command::next_tile_strip, Command::previous_tile_strip,
                                      Command::rewind_strip, Command::forward_strip};
        const std::array targets{model.first + 46, model.first - 46, 0, 1000};
        editor->execute(commands.at(static_cast<std::size_t>(choice)));
        model.scroll_to(targets.at(static_cast<std::size_t>(choice)));
    }
};

TEST_F(Strip_Walk, agrees_with_a_simple_model_whatever_is_done) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&random](int limit) { return std::uniform_int_distribution(0, limit - 1)(random); };
    load(110);
    Model model(110);
    for (int step = 0; step < 600 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        const int choice = below(24);
        if (choice < 4) {
            editor->execute(choice < 2 ? Command::next_tile : Command::previous_tile);
            model.go_to(model.current + (choice < 2 ? 1 : -1));
        } else if (choice < 9) {
            const int cell = below(visible);
            click(strip_cell(cell));
            model.go_to(model.first + cell);
        } else if (choice < 13) {
            change_number_of_tiles(model, below(3));
        } else if (choice < 18) {
            scroll(model, below(4));
        } else if (choice < 21) {
            editor->execute(Command::undo);
            model.walk(-1);
        } else if (choice < 22) {
            editor->execute(Command::redo);
            model.walk(1);
        } else if (choice == 22) {
            swap(model, below(model.count()), below(model.count()));
        } else if (below(8) == 0) {
            resize(model, {1 + below(3), 1 + below(3)});
        }
        expect_equal(model);
    }
}

} // namespace
} // namespace quadrelle::testing
