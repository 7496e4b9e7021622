// The panes of the copies, and the clipboard that is shared with other programs.

#include "app/window_panes.h"
#include "pixels/picture_formats.h"
#include "selection/copy_buffer.h"
#include "tests/whole/selection_scene.h"

#include <SDL3/SDL_clipboard.h>

namespace quadrelle::testing {
namespace {

// The panes lie beside the entry of the tool; the grid's cells are 32 pixels apart.
class Copy_Panes_Test : public Selection_Test {
protected:
    static constexpr Point first_copy{1028 + 16, 266 + 122 + 4 + 26 + 16};
    static constexpr Point next(Point point, int columns) { return {point.x + 32 * columns, point.y}; }

    // Newest first: five, four, three, two pixels wide.
    void make_copies() {
        for (int width = 2; width < 6; ++width) {
            paint_noise(static_cast<unsigned>(width));
            select_rectangle({0, 0}, {width, 1});
            execute(Command::copy);
            execute(Command::deselect);
        }
    }
};

TEST_F(Copy_Panes_Test, a_click_makes_a_previous_copy_current) {
    make_copies();
    play(script().click(next(first_copy, 3)));
    EXPECT_EQ(editor->copies().current_index(), 3U);
    execute(Command::paste);
    EXPECT_EQ(work().paste()->picture->size(), (Size{2, 1}));
    // Nothing was copied there, and the panes show beside no other tool.
    execute(Command::rectangle_selector);
    play(script().click(next(first_copy, 4)));
    execute(Command::pen);
    play(script().click(first_copy));
    EXPECT_EQ(editor->copies().current_index(), 3U);
}

TEST_F(Copy_Panes_Test, a_double_click_pastes_that_copy_and_a_right_click_removes_it) {
    make_copies();
    // There is nothing to paste in an empty cell, and quick clicks on two copies are no double click.
    play(script().click(next(first_copy, 5)).second_press(next(first_copy, 5)));
    EXPECT_FALSE(work().paste());
    play(script().click(next(first_copy, 2)).second_press(next(first_copy, 1)));
    EXPECT_FALSE(work().paste());
    EXPECT_EQ(editor->copies().current_index(), 1U);
    const std::size_t steps = document().history().entries().size();
    play(script().second_press(next(first_copy, 1)));
    ASSERT_TRUE(work().paste());
    EXPECT_EQ(work().paste()->picture->size(), (Size{4, 1}));
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    const auto remove = [&] { play(script().click(first_copy, Mouse_Button::right)); };
    remove();
    play(script().second_press(first_copy));
    EXPECT_EQ(editor->copies().copies().size(), 3U);
    EXPECT_EQ(editor->copies().current_index(), 0U);
    EXPECT_EQ(editor->copies().current()->picture->size(), (Size{4, 1}));
}

TEST_F(Copy_Panes_Test, buttons_carry_out_their_commands) {
    // Four rows of two: Copy, Cut; Paste, Clone; Clear, Fill; Invert, Deselect.
    const auto press = [&](int column, int row) {
        play(script().click({1028 + 20 + column * 97, 549 + 10 + row * 20}));
    };
    select_rectangle({0, 0}, {4, 4});
    press(1, 2);
    EXPECT_EQ(count(tools().colors.of(Mouse_Button::left)), 16);
    press(0, 0);
    EXPECT_EQ(editor->copies().copies().size(), 1U);
    press(0, 2);
    EXPECT_EQ(count(clear), 16);
    press(0, 3);
    EXPECT_EQ(work().selection().count(), 576 - 16);
    press(1, 3);
    EXPECT_FALSE(work().has_selection());
    press(0, 1);
    EXPECT_TRUE(work().paste());
}

// Or a second Ctrl+x would leave the hole as the copy.
TEST_F(Copy_Panes_Test, what_is_transparent_is_no_copy) {
    paint_noise(1);
    select_rectangle({2, 2}, {5, 5});
    execute(Command::cut);
    const Tile copy = editor->copies().current()->picture;
    const std::size_t steps = document().history().entries().size();
    for (const Command command : {Command::cut, Command::copy, Command::clone}) {
        execute(command);
        EXPECT_EQ(editor->panes().hint_lines().lines().at(1), "Nothing visible is there.");
    }
    EXPECT_EQ(document().history().entries().size(), steps);
    execute(Command::wand_selector);
    tools().options.wand_mode = Wand_Mode::quick_cut;
    click({3, 3});
    EXPECT_FALSE(work().paste());
    EXPECT_TRUE(editor->copies().current()->picture->same_pixels(copy));
    EXPECT_EQ(editor->copies().copies().size(), 1U);
}

// What another program puts onto the clipboard.
class Other_Program {
public:
    Other_Program(const char* media_type, std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {
        EXPECT_TRUE(SDL_SetClipboardData(give, nullptr, this, &media_type, 1));
    }
    ~Other_Program() { SDL_ClearClipboardData(); }
    Other_Program(const Other_Program&) = delete;
    Other_Program& operator=(const Other_Program&) = delete;

private:
    static const void* give(void* self, const char* /*media_type*/, std::size_t* size) {
        const auto& bytes = static_cast<const Other_Program*>(self)->bytes_;
        *size = bytes.size();
        return bytes.data();
    }

    std::vector<std::uint8_t> bytes_;
};

class Clipboard_Test : public Selection_Test {
protected:
    static Tile picture(Size size, Color color) {
        Tile tile(size.width, size.height);
        tile.fill(color);
        return tile;
    }
    static Tile on_clipboard(const Picture_Format& format) {
        std::size_t size = 0;
        void* const data = SDL_GetClipboardData(format.media_type, &size);
        const Decoded_Picture decoded = format.decode({static_cast<const std::uint8_t*>(data), size});
        SDL_free(data);
        return decoded.picture.value_or(Tile(0, 0));
    }
};

TEST_F(Clipboard_Test, what_is_copied_is_there_for_others_in_every_format) {
    paint_noise(5);
    tile().set_pixel(3, 3, {1, 2, 3, 77});
    select_rectangle({2, 2}, {7, 5});
    execute(Command::copy);
    for (const Picture_Format& format : picture_formats) {
        const Tile taken = on_clipboard(format);
        EXPECT_EQ(taken.size(), (Size{5, 3})) << format.media_type;
        EXPECT_EQ(taken.get_pixel(1, 1), Color(1, 2, 3, 77)) << format.media_type;
        EXPECT_EQ(taken.get_pixel(4, 2), tile_pixel(6, 4)) << format.media_type;
    }
    // The program does not take its own.
    execute(Command::paste);
    EXPECT_EQ(editor->copies().copies().size(), 1U);
    select_rectangle({3, 3}, {4, 4});
    execute(Command::copy);
    EXPECT_EQ(on_clipboard(picture_formats.front()).size(), (Size{1, 1}));
}

TEST_F(Clipboard_Test, pictures_of_others_are_pasted_once_and_then_are_copies_like_any) {
    int blue = 0;
    for (const Picture_Format& format : picture_formats) {
        SCOPED_TRACE(format.media_type);
        const Color color(9, 8, ++blue, 60);
        execute(Command::copy);
        const std::size_t copies = editor->copies().copies().size();
        {
            const Other_Program other(format.media_type, format.encode(picture({10, 4}, color)));
            execute(Command::paste);
            EXPECT_EQ(work().paste()->position, (Tile_Point{7, 10}));
            EXPECT_EQ(work().paste()->picture->get_pixel(9, 3), color);
            execute(Command::paste);
            EXPECT_EQ(editor->copies().copies().size(), copies + 1);
        }
        // Nothing there: the current copy.
        execute(Command::paste);
        EXPECT_EQ(work().paste()->picture->size(), (Size{10, 4}));
        execute(Command::deselect);
    }
}

TEST_F(Clipboard_Test, a_deleted_tile_comes_back_before_the_picture_of_another_program) {
    make_set({24, 24}, 2, [](int, Point) { return red; });
    const Other_Program other("image/bmp", encode_bitmap(picture({10, 4}, black)));
    execute(Command::delete_tile);
    execute(Command::paste);
    EXPECT_EQ(work().paste()->picture->get_pixel(20, 20), red);
    EXPECT_EQ(editor->copies().copies().at(1).picture->size(), (Size{10, 4}));
}

TEST_F(Clipboard_Test, of_a_picture_larger_than_the_tile_nothing_is_lost) {
    const Tile large = picture({300, 30}, red);
    const Other_Program other("image/bmp", encode_bitmap(large));
    execute(Command::paste);
    EXPECT_EQ(work().paste()->position, Tile_Point{});
    EXPECT_EQ(work().paste()->picture->size(), large.size());
    drag({20, 20}, {5, 5});
    EXPECT_EQ(count(red), 0);
    execute(Command::plot_paste);
    EXPECT_EQ(count(red), 24 * 15);
}

TEST_F(Clipboard_Test, damaged_and_huge_pictures_get_a_note) {
    execute(Command::copy);
    const std::vector<std::uint8_t> whole = encode_bitmap(picture({10, 4}, red));
    const std::string broken = "The picture on the clipboard can't be read.";
    const std::string too_large = "The picture on the clipboard is too large.";
    for (const auto& [media_type, bytes, text] :
         {std::tuple{"image/bmp", std::vector(whole.begin(), whole.end() - 30), broken},
          std::tuple{"image/bmp", std::vector<std::uint8_t>(3, 'B'), broken},
          std::tuple{"image/bmp", encode_bitmap(picture({5000, 1}, red)), too_large},
          std::tuple{"image/bmp", std::vector<std::uint8_t>(most_picture_bytes + 1), too_large}}) {
        const Other_Program other(media_type, bytes);
        expect_message("Note", text).key(key::enter);
        editor->execute(Command::paste);
        play();
        EXPECT_FALSE(work().paste());
        EXPECT_EQ(tools().tool, Tool::pen);
        // It was told once; from now on the program's own copy is meant.
        execute(Command::paste);
        EXPECT_TRUE(work().paste());
        execute(Command::deselect);
        execute(Command::pen);
    }
    const Other_Program text("text/plain;charset=utf-8", {'a', 'b'});
    execute(Command::paste);
    EXPECT_TRUE(work().paste());
}

} // namespace
} // namespace quadrelle::testing
