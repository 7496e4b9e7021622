// Random events, as somebody makes them who presses whatever there is. What notices a fault are the program's
// own checks (a debug build compares each frame with one drawn from nothing) and the sanitizers.

#include "commands/command_table.h"
#include "commands/key_table.h"
#include "pixels/picture_formats.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"

#include <cstdlib>
#include <random>
#include <string>

namespace quadrelle::testing {
namespace {

// QUADRELLE_MONKEY_EVENTS and QUADRELLE_MONKEY_SEED choose others.
int chosen(const char* variable, int otherwise) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? otherwise : std::atoi(text);
}

class Monkey_Test : public Program_Test {
protected:
    void SetUp() override {
        Program_Test::SetUp();
        store_text(folder().path("sun.gpl"), "GIMP Palette\n1 2 3\n4 5 6 #04050607\n");
        store_text(folder().path("broken.hex"), "no colors\n");
        store(folder().path("sheet.png"), encode_png(random_tile({48, 36}, 1)));
        store(folder().path("one.qdl"), {'Q', 'D', 'L', '\n', 0, 1, 1, 1, 0, 0, 0, 9, 9, 9, 255});
        set_file_chooser([this](File_Dialog_Kind, const std::string&) {
            return one_in(3) ? File_Answer{} : File_Answer{File_Answer_State::chosen, some_path()};
        });
        script().set_afterwards([this](std::string_view loop) { add_events(loop); });
    }

    // Also ends what runs when all was sent.
    void add_events(std::string_view loop) {
        is_over_ = sent_ >= wanted_ && loop == "main" && !is_held_;
        if (sent_ < wanted_) {
            ++sent_;
            add_something();
        } else if (is_held_) {
            toggle_button();
        } else {
            script().key(is_over_ ? key::f1 + 1 : key::escape);
        }
    }

    int wanted_ = chosen("QUADRELLE_MONKEY_EVENTS", 3000);
    bool is_over_ = false;

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    bool one_in(int count) { return below(count) == 0; }

    void add_something() {
        switch (below(16)) {
        case 0:
        case 1:
        case 2: press_some_key(); break;
        case 3: script().wheel(one_in(2) ? 1.0F : -1.0F, pointer_); break;
        case 4: script().text(one_in(2) ? "7" : "\xc3\xa4"); break;
        case 5: add_something_rare(); break;
        case 6:
        case 7:
        case 8:
        case 9: toggle_button(); break;
        default: move(); break;
        }
    }
    void add_something_rare() {
        switch (below(6)) {
        case 0: script().drop_file(some_path()); break;
        case 1: script().pointer_leaves(); break;
        case 2: script().second_press(pointer_).release(pointer_); break;
        case 3: script().press_number(pointer_, 2 + below(4)); break;
        default: script().quit(); break;
        }
    }
    // A key of a command most often, with its modifier or another one; Return where a dialog asks.
    void press_some_key() {
        const Command_Row& row = command_table.at(static_cast<std::size_t>(below(std::ssize(command_table))));
        const Key_Row& further = key_table[static_cast<std::size_t>(below(std::ssize(key_table)))];
        const auto some = static_cast<Modifier>(below(4));
        switch (below(6)) {
        case 0: script().key(key::enter); break;
        case 1: script().key(key::escape); break;
        case 2: script().key(further.key, further.modifier).key_up(further.key, further.modifier); break;
        case 3: script().key(static_cast<Keycode>(' ' + below(95)), some); break;
        case 4: script().key(key::right + static_cast<Keycode>(below(4)), some); break;
        default: script().key(row.key, row.modifier).key_up(row.key, row.modifier); break;
        }
    }
    // Near the last place mostly, as a hand does.
    void move() {
        const Size window = screen->size();
        const bool is_near = !one_in(4);
        pointer_ = is_near ? Point{pointer_.x + below(41) - 20, pointer_.y + below(41) - 20}
                           : Point{below(window.width), below(window.height)};
        script().motion(pointer_);
    }
    void toggle_button() {
        if (is_held_) {
            script().release(pointer_, held_);
        } else {
            held_ = one_in(3) ? Mouse_Button::right : Mouse_Button::left;
            script().press(pointer_, held_);
        }
        is_held_ = !is_held_;
    }
    std::string some_path() {
        constexpr std::array names{"sheet.png",   "sun.gpl", "one.qdl", "broken.hex",
                                   "missing.qdl", "a.qdl",   "no/b.qdl"};
        return folder().path(names.at(static_cast<std::size_t>(below(std::ssize(names)))));
    }

    std::mt19937 random_{static_cast<unsigned>(chosen("QUADRELLE_MONKEY_SEED", 1))};
    Point pointer_{500, 300};
    Mouse_Button held_ = Mouse_Button::left;
    bool is_held_ = false;
    int sent_ = 0;
};

TEST_F(Monkey_Test, nothing_that_is_pressed_anywhere_does_harm) {
    while (!is_over_) {
        editor->handle_one_event();
        editor->redraw(Present::yes);
    }
    EXPECT_GT(editor->documents().count(), 0);
}

} // namespace
} // namespace quadrelle::testing
