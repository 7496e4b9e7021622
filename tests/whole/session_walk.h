#pragma once

// What the random steps of a session work with: the program, the model that does the same, and the comparison
// of the two.

#include "selection/copy_buffer.h"
#include "tests/whole/program_test.h"
#include "tests/whole/session_model.h"

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {

class Session_Walk : public Program_Test {
protected:
    // Half of 26 is odd; 60 tiles are more than the strip shows.
    void SetUp() override {
        Program_Test::SetUp();
        tools().chosen_brush.select_size(0);
        model_.add_set({24, 24}, "untitled0.qdl");
        shown_sets_.push_back(&document());
        for (const Size size : {Size{13, 30}, Size{26, 26}, Size{8, 8}}) {
            new_set(size);
            for (int i = 1; i < (size.width == 8 ? 60 : 4); ++i) {
                perform(Command::add_new_tile, &Session_Model::add_tile);
            }
        }
    }

    void expect_same() {
        expect_same_tiles(document().tileset());
        EXPECT_EQ(document().tileset().current_index(), static_cast<int>(model_.set().current));
        EXPECT_EQ(editor->canvas().tile(), document().tileset().current_tile());
        EXPECT_TRUE(same(*editor->canvas().history(), *model_.history));
        EXPECT_EQ(document().strip().first(), model_.set().first);
        EXPECT_EQ(window_title(),
                  "Quadrelle 0.90 - " + model_.set().name + (model_.set().is_modified ? "*" : ""));
        EXPECT_EQ(editor->documents().has_unsaved(),
                  std::ranges::any_of(model_.sets, &Set_Model::is_modified));
        EXPECT_EQ(tools().tool, model_.tool);
        const Work_Area& work = editor->canvas().work_area();
        EXPECT_TRUE(work.selection() == *model_.work.area);
        EXPECT_FALSE(work.candidate());
        ASSERT_EQ(work.paste().has_value(), model_.work.paste != nullptr);
        if (work.paste()) {
            expect_same_paste(*work.paste(), *model_.work.paste);
        }
        ASSERT_EQ(editor->copies().copies().size(), model_.copies.size());
        for (std::size_t i = 0; i < model_.copies.size(); ++i) {
            expect_same_paste(editor->copies().copies()[i], *model_.copies[i]);
        }
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    bool one_in(int count) { return below(count) == 0; }
    Tile_Point some_pixel(int beyond = 0) {
        return {below(model_.size().width + beyond), below(model_.size().height + beyond)};
    }
    Mouse_Button some_button() { return one_in(3) ? Mouse_Button::right : Mouse_Button::left; }
    Color choose_color() {
        const Color color{below(3) * 100, below(3) * 100, below(3) * 100, one_in(3) ? below(256) : 255};
        tools().colors.set(Mouse_Button::left, color);
        return color;
    }

    static Point window_point(Tile_Point pixel, int part = 5) {
        const Canvas_View& canvas = editor->canvas();
        return {canvas.origin().x + pixel.x * canvas.pixel_size() + part,
                canvas.origin().y + pixel.y * canvas.pixel_size() + part};
    }
    void click(Point point, Mouse_Button button = Mouse_Button::left) { play(script().click(point, button)); }
    void drag(Tile_Point from, Tile_Point to, Mouse_Button button, int part = 5) {
        script().drag({window_point(from, part), window_point(some_pixel(), part), window_point(to, part)},
                      button);
        play();
    }
    void select_tool(Tool tool) {
        editor->execute(row_of(tool).command);
        model_.select_tool(tool);
    }
    void perform(Command command, void (Session_Model::*step)()) {
        editor->execute(command);
        (model_.*step)();
    }
    void change(Command command, const std::function<void()>& expected, bool is_always_recorded = false) {
        editor->execute(command);
        model_.edit(expected, is_always_recorded);
    }

    void new_set(Size size) {
        if (model_.sets.size() < 5) {
            ASSERT_TRUE(editor->documents().new_document(size));
            model_.add_set(size, "untitled" + std::to_string(next_untitled_++) + ".qdl");
            shown_sets_.push_back(&document());
        }
    }
    void expect_same_tiles(const Tileset& tileset) {
        ASSERT_EQ(tileset.count(), model_.set().count());
        for (int i = 0; i < tileset.count(); ++i) {
            ASSERT_TRUE(same(tileset.tile_at(i), *model_.set().tiles[static_cast<std::size_t>(i)].picture))
                << "tile " << i;
        }
    }
    static void expect_same_paste(const Floating_Paste& paste, const Floating_Paste& expected) {
        EXPECT_EQ(paste.position, expected.position);
        EXPECT_TRUE(same(paste.picture, expected.picture));
    }

    std::mt19937 random_;
    Session_Model model_;
    std::vector<const Tileset_Document*> shown_sets_;

private:
    int next_untitled_ = 1;
};

} // namespace quadrelle::testing
