#include "app/command_table.h"
#include "app/screen.h"
#include "tests/whole/program_test.h"
#include "tools/tool_colors.h"
#include "tools/toolbox.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

using Tile_Picture = std::vector<Color>;

constexpr Color white(255, 255, 255);
constexpr Color black(0, 0, 0);
constexpr Size tile_size{24, 24};

Tile_Picture picture_of(const Tile& tile) {
    return {tile.pixels().begin(), tile.pixels().end()};
}

// What a user expects of undo and redo, with every tile and every state kept as a full picture.
class Model {
public:
    Model() { record(); }

    void paint(Tile_Point pixel, Color color) {
        Color& painted =
            tiles_[current_].picture.at(static_cast<std::size_t>(pixel.y * tile_size.width + pixel.x));
        if (painted != color) {
            if (states_[position_].id != tiles_[current_].id) {
                record();
            }
            painted = color;
            record();
        }
    }
    void next() {
        if (current_ + 1 < tiles_.size()) {
            ++current_;
            record();
        }
    }
    void previous() {
        if (current_ > 0) {
            --current_;
            record();
        }
    }
    void add() {
        tiles_.push_back(blank());
        current_ = tiles_.size() - 1;
    }
    void insert() { tiles_.insert(tiles_.begin() + static_cast<std::ptrdiff_t>(current_), blank()); }
    void erase() {
        const int id = tiles_[current_].id;
        tiles_.erase(tiles_.begin() + static_cast<std::ptrdiff_t>(current_));
        if (tiles_.empty()) {
            tiles_.push_back(blank());
        }
        current_ = std::min(current_, tiles_.size() - 1);
        forget(id);
    }
    void undo() {
        if (position_ > 0) {
            --position_;
            restore();
        }
    }
    void redo() {
        if (position_ + 1 < states_.size()) {
            ++position_;
            restore();
        }
    }

    void expect_shown_by(const Tileset& tileset) const {
        ASSERT_EQ(tileset.count(), static_cast<int>(tiles_.size()));
        EXPECT_EQ(tileset.current_index(), static_cast<int>(current_));
        for (std::size_t i = 0; i < tiles_.size(); ++i) {
            EXPECT_EQ(picture_of(tileset.tile_at(static_cast<int>(i))), tiles_[i].picture) << "tile " << i;
        }
    }

private:
    struct State {
        int id; // of the tile, whatever its place
        Tile_Picture picture;
    };

    State blank() { return {next_id_++, Tile_Picture(tile_size.width * tile_size.height, black)}; }
    void record() {
        if (!states_.empty()) {
            states_.resize(position_ + 1, {});
        }
        states_.push_back(tiles_[current_]);
        if (states_.size() > 18) {
            states_.erase(states_.begin());
        }
        position_ = states_.size() - 1;
    }
    void restore() {
        const State& state = states_[position_];
        const auto tile = std::ranges::find(tiles_, state.id, &State::id);
        ASSERT_NE(tile, tiles_.end());
        tile->picture = state.picture;
        current_ = static_cast<std::size_t>(tile - tiles_.begin());
    }
    void forget(int id) {
        std::vector<State> undoable(states_.begin(),
                                    states_.begin() + static_cast<std::ptrdiff_t>(position_) + 1);
        std::erase_if(undoable, [id](const State& state) { return state.id == id; });
        if (undoable.empty()) {
            states_.clear();
            record();
            return;
        }
        position_ = undoable.size() - 1;
        std::erase_if(states_, [id](const State& state) { return state.id == id; });
    }

    int next_id_ = 0;
    std::vector<State> tiles_{blank()};
    std::size_t current_ = 0;
    std::vector<State> states_;
    std::size_t position_ = 0;
};

class Undo_Test : public Program_Test {
protected:
    static const Undo_History& history() { return document().history(); }
    static Tile_Picture picture() { return picture_of(*document().tileset().current_tile()); }

    void stroke(const std::vector<Point>& points) {
        script().drag(points);
        play();
    }
    void press_undo() {
        script().key('z', Modifier::control);
        play();
    }
    void press_redo() {
        script().key('r', Modifier::control);
        play();
    }
};

TEST_F(Undo_Test, takes_a_stroke_as_one_step_and_none_when_it_changed_nothing) {
    ASSERT_EQ(history().entries().size(), 1U);
    press_undo();
    press_redo();
    EXPECT_FALSE(document().is_modified());
    stroke({cell(2, 2), cell(9, 2), cell(9, 9), cell(2, 9)});
    stroke({cell(2, 2), cell(9, 2)});
    EXPECT_EQ(history().entries().size(), 2U);
    EXPECT_EQ(history().entries().back().kind, Command::pen);
    const Tile_Picture drawn = picture();

    document().clear_modified();
    press_undo();
    EXPECT_EQ(picture(), Tile_Picture(drawn.size(), black));
    EXPECT_EQ(pixel_at(cell(9, 5)), black);
    EXPECT_EQ(window_title(), "Quadrelle 0.90 - untitled0.qdl*");
    press_redo();
    EXPECT_EQ(picture(), drawn);
    EXPECT_EQ(pixel_at(cell(9, 5)), white);
}

TEST_F(Undo_Test, walks_seventeen_of_twenty_strokes_back_and_exactly_forth_again) {
    std::vector<Tile_Picture> pictures;
    for (int i = 0; i < 20; ++i) {
        stroke({cell(i, 3), cell(23 - i, 20 - i)});
        pictures.push_back(picture());
    }
    for (std::size_t i = 19; i > 2; --i) {
        press_undo();
        EXPECT_EQ(picture(), pictures[i - 1]);
    }
    press_undo();
    EXPECT_EQ(picture(), pictures[2]);
    for (std::size_t i = 3; i < 20; ++i) {
        press_redo();
        EXPECT_EQ(picture(), pictures[i]);
    }
    press_redo();
    EXPECT_EQ(picture(), pictures.back());
}

TEST_F(Undo_Test, goes_back_to_the_tile_that_a_step_was_made_on) {
    execute(Command::add_new_tile);
    stroke({cell(1, 1)});
    execute(Command::previous_tile);
    stroke({cell(5, 5)});
    // The new tile as it was before its first stroke is there too.
    EXPECT_EQ(history().entries().size(), 5U);
    EXPECT_EQ(history().entries()[3].kind, Command::previous_tile);
    press_undo();
    EXPECT_EQ(tile_pixel(5, 5), black);
    EXPECT_EQ(document().tileset().current_index(), 0);
    press_undo();
    EXPECT_EQ(document().tileset().current_index(), 1);
    EXPECT_EQ(editor->canvas().tile(), document().tileset().current_tile());
    EXPECT_EQ(pixel_at(cell(1, 1)), white);
    EXPECT_EQ(count_in_preview(white), 4);
    press_redo();
    press_redo();
    EXPECT_EQ(document().tileset().current_index(), 0);
    EXPECT_EQ(pixel_at(cell(5, 5)), white);
}

TEST_F(Undo_Test, takes_back_the_first_stroke_on_a_tile_that_came_without_a_step) {
    execute(Command::add_new_tile);
    script().click(cell(3, 3));
    script().click(cell(4, 4)).motion({1, 1});
    play();
    EXPECT_EQ(history().entries().size(), 4U);
    press_undo();
    press_undo();
    EXPECT_EQ(document().tileset().current_index(), 1);
    EXPECT_EQ(tile_pixel(3, 3), black);
    press_undo();
    EXPECT_EQ(document().tileset().current_index(), 0);

    editor->documents().resize_current({24, 24});
    // What changes nothing adds nothing.
    tool_colors->set_color(Mouse_Button::left, black);
    stroke({cell(1, 1)});
    EXPECT_TRUE(history().entries().empty());
    execute(Command::mirror);
    tool_colors->set_color(Mouse_Button::left, white);
    stroke({cell(1, 1)});
    press_undo();
    press_undo();
    EXPECT_EQ(tile_pixel(1, 1), black);
    EXPECT_EQ(history().position(), 0);
}

TEST_F(Undo_Test, makes_the_tool_of_the_step_current_again) {
    stroke({cell(1, 1)});
    toolbox->select(Command::stamp_brush);
    editor->execute(Command::change_tile);
    ASSERT_EQ(history().entries().back().tool, Tool::stamp_brush);
    press_undo();
    EXPECT_EQ(toolbox->current_tool(), Tool::pen);
    press_redo();
    EXPECT_EQ(toolbox->current_tool(), Tool::stamp_brush);
}

TEST_F(Undo_Test, records_no_command_that_only_looks_or_adds) {
    for (const Command command : {Command::zoom_tile_up, Command::swap_tool_colors, Command::add_new_tile,
                                  Command::next_tile, Command::center_tile_on_view}) {
        execute(command);
    }
    EXPECT_EQ(history().entries().size(), 1U);
}

TEST_F(Undo_Test, belongs_to_its_document) {
    stroke({cell(1, 1)});
    const std::string path = folder().data_path("set.qdl");
    answer_files(File_Answer_State::chosen, path);
    execute(Command::save_as);
    execute(Command::load);
    ASSERT_EQ(editor->documents().count(), 2);
    EXPECT_EQ(history().entries().size(), 1U);
    EXPECT_EQ(history().entries().front().kind, Command::change_tile);
    EXPECT_FALSE(document().is_modified());
    stroke({cell(7, 7)});
    press_undo();
    EXPECT_EQ(tile_pixel(7, 7), black);
    EXPECT_EQ(tile_pixel(1, 1), white);
    press_undo();
    EXPECT_EQ(tile_pixel(1, 1), white);

    document().clear_modified();
    execute(Command::close);
    press_undo();
    EXPECT_EQ(tile_pixel(1, 1), black);
    press_redo();
    EXPECT_EQ(tile_pixel(1, 1), white);

    editor->documents().resize_current({24, 24});
    EXPECT_TRUE(history().entries().empty());
    press_undo();
    EXPECT_EQ(tile_pixel(1, 1), white);
}

// Enough steps that the oldest states fall off.
TEST_F(Undo_Test, agrees_with_a_simple_model_whatever_is_done) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&random](int limit) { return std::uniform_int_distribution(0, limit - 1)(random); };
    Model model;
    for (int step = 0; step < 400 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        const int choice = below(20);
        if (choice < 8) {
            const Tile_Point pixel{below(4), below(4)};
            const Color color = below(2) == 0 ? white : Color(200, 30, 60);
            tool_colors->set_color(Mouse_Button::left, color);
            script().click(cell(pixel.x, pixel.y));
            play();
            model.paint(pixel, color);
        } else if (choice < 12) {
            editor->execute(Command::undo);
            model.undo();
        } else if (choice < 15) {
            editor->execute(Command::redo);
            model.redo();
        } else if (choice == 15) {
            editor->execute(Command::next_tile);
            model.next();
        } else if (choice == 16) {
            editor->execute(Command::previous_tile);
            model.previous();
        } else if (choice == 17) {
            editor->execute(Command::add_new_tile);
            model.add();
        } else if (choice == 18) {
            editor->execute(Command::insert_new_tile);
            model.insert();
        } else {
            editor->execute(Command::delete_tile);
            model.erase();
        }
        model.expect_shown_by(document().tileset());
    }
}

TEST_F(Undo_Test, shows_the_newest_seven_states_in_its_pane) {
    constexpr Point first{36, 394};
    constexpr int step = 26;
    // A thumbnail of this tile has the size of the tile; its pixel (12, 3 + i) comes with the i-th stroke.
    const auto shows = [&](int place, int number) {
        return pixel_at({first.x + place * step + 12, first.y + 3 + number}) == white;
    };
    for (int i = 0; i < 3; ++i) {
        stroke({cell(12, 3 + i)});
    }
    for (int place = 1; place < 4; ++place) {
        EXPECT_TRUE(shows(place, place - 1)) << place;
        EXPECT_FALSE(shows(place, place)) << place;
    }
    for (int i = 3; i < 9; ++i) {
        stroke({cell(12, 3 + i)});
    }
    for (int place = 0; place < 7; ++place) {
        EXPECT_TRUE(shows(place, place + 2)) << place;
        EXPECT_FALSE(shows(place, place + 3)) << place;
    }
    const Color marked = pixel_at({first.x + 6 * step, first.y});
    press_undo();
    EXPECT_NE(pixel_at({first.x + 6 * step, first.y}), marked);
    EXPECT_EQ(pixel_at({first.x + 5 * step, first.y}), marked);
}

TEST_F(Undo_Test, lists_all_states_until_any_key_click_or_quit) {
    const auto expect_list = [this]() -> Script& { return expect_loop("dialog \"Undo history\""); };
    for (int i = 0; i < 3; ++i) {
        stroke({cell(i, 3)});
    }
    // Four rows, the newest one on top: only it is lit, until something is undone.
    constexpr int dialog_height = 24 + 4 * 30 + 7;
    const Point row{466 + 290, (664 - dialog_height) / 2 + 24 + 4 + 14};
    const Color active(70, 130, 75);
    expect_list().check([&] {
        EXPECT_EQ(pixel_at(row), active);
        EXPECT_NE(pixel_at({row.x, row.y + 30}), active);
    });
    script().motion({5, 5});
    expect_list().key('z', Modifier::control);
    execute(Command::view_undo_history);
    press_undo();
    expect_list().check([&] {
        EXPECT_NE(pixel_at(row), active);
        EXPECT_EQ(pixel_at({row.x, row.y + 30}), active);
    });
    script().click(cell(5, 5));
    editor->execute(Command::view_undo_history);
    play();
    expect_list().quit();
    execute(Command::view_undo_history);
    EXPECT_EQ(tile_pixel(5, 5), black);
    EXPECT_EQ(history().entries().size(), 4U);
    EXPECT_EQ(history().position(), 2);
}

} // namespace
} // namespace quadrelle::testing
