#include "tests/whole/program_test.h"

#include "app/start_up.h"
#include "app/window_panes.h"
#include "panes/toolbox.h"
#include "screen/screen.h"
#include "ui/dialogs.h"
#include "ui/modal_dialog.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace quadrelle::testing {

namespace {

class Chosen_Options : public Option_Source {
public:
    Chosen_Options() {
        for (std::size_t i = 0; i < values_.size(); ++i) {
            values_.at(i) = options->value(static_cast<Option>(i));
        }
    }
    void set(Option option, int value) { values_.at(static_cast<std::size_t>(option)) = value; }
    [[nodiscard]] int shown(Option option) const override {
        return values_.at(static_cast<std::size_t>(option));
    }
    bool run() override { return false; }

private:
    std::array<int, option_count> values_{};
};

} // namespace

void Program_Test::SetUp() {
    use_dummy_video();
    folder_.emplace();
    start_application();
    script_.emplace();
    ASSERT_TRUE(editor->show_first_frame());
    answer_files(File_Answer_State::cancelled);
}

void Program_Test::TearDown() {
    compare_shown_dialogs();
    script_.reset();
    set_file_chooser({});
    shut_down_application();
    folder_.reset();
}

void Program_Test::play() {
    while (!script_->is_played()) {
        editor->handle_one_event();
        editor->redraw(Present::yes);
    }
}

void Program_Test::set_option(Option option, int value) {
    auto chosen = std::make_unique<Chosen_Options>();
    chosen->set(option, value);
    options = std::make_unique<Options>(std::move(chosen));
    options->load();
}

void Program_Test::execute(Command command) {
    editor->execute(command);
    editor->redraw(Present::yes);
    EXPECT_TRUE(script_->is_played());
}

Tool_State& Program_Test::tools() {
    return toolbox->state();
}

Color Program_Test::tile_pixel(int x, int y) {
    return document().tileset().current_pixel(x, y);
}

std::string Program_Test::window_title() {
    return SDL_GetWindowTitle(screen->window());
}

int Program_Test::count_in_preview(Color color) {
    const Rectangle area = editor->panes().preview().client_area();
    const Picture window = window_picture();
    int count = 0;
    for (int y = area.y; y < area.bottom(); ++y) {
        const auto row = window.begin() + y * screen->size().width;
        count += static_cast<int>(std::count(row + area.x, row + area.right(), color.word()));
    }
    return count;
}

Script& Program_Test::expect_message(const std::string& title, const std::string& text) {
    return expect_dialog({title, text, std::nullopt, {}});
}

Script& Program_Test::expect_question(const std::string& title, const std::string& text, Button_Type yes) {
    return expect_dialog({title, text, yes, {}});
}

Script& Program_Test::expect_loop(const std::string& name) {
    return script_->check_loop([name](std::string_view loop) { EXPECT_EQ(loop, name); });
}

Script& Program_Test::expect_dialog(Shown_Dialog expected) {
    return script_->check_loop([this, expected](std::string_view loop) {
        EXPECT_EQ(loop, "dialog \"" + expected.title + "\"");
        shown_dialogs_.push_back(expected);
        shown_dialogs_.back().window = window_picture();
    });
}

void Program_Test::make_set(Size size, int count, const std::function<Color(int tile, Point pixel)>& color) {
    ASSERT_TRUE(editor->documents().new_document(size));
    Tileset& tileset = document().tileset();
    for (int i = 0; i < count; ++i) {
        if (i > 0) {
            tileset.append_loaded(std::make_unique<Tile>(size.width, size.height));
        }
        Tile& tile = tileset.tile_at(i);
        for (int pixel = 0; pixel < tile.pixel_count(); ++pixel) {
            tile.set_pixel_at(pixel, color(i, {pixel % size.width, pixel / size.width}));
        }
    }
    editor->redraw(Present::no);
}

void Program_Test::load_empty_set(Size size) {
    const std::string path = folder().data_path("empty.qdl");
    store(path, {'Q', 'D', 'L', '\n', 0, static_cast<std::uint8_t>(size.width),
                 static_cast<std::uint8_t>(size.height), 0, 0, 0, 0});
    answer_files(File_Answer_State::chosen, path);
    execute(Command::load);
    ASSERT_FALSE(document().tileset().has_tiles());
    answer_files(File_Answer_State::cancelled);
}

void Program_Test::answer_files(File_Answer_State state, const std::string& path) {
    asked_file_.reset();
    set_file_chooser([this, state, path](File_Dialog_Kind kind, const std::string& /*proposed*/) {
        asked_file_ = kind;
        return File_Answer{state, path};
    });
}

Program_Test::Picture Program_Test::window_picture() {
    screen->paint();
    Picture picture;
    const Pixel_Rows pixels = screen->pixels();
    for (int y = 0; y < pixels.size.height; ++y) {
        std::transform(pixels.row(y), pixels.row(y) + pixels.size.width, std::back_inserter(picture),
                       [](Color color) { return color.word(); });
    }
    return picture;
}

void Program_Test::compare_shown_dialogs() {
    for (const Shown_Dialog& shown : std::exchange(shown_dialogs_, {})) {
        compare(shown);
    }
}

// Shows the expected dialog over two backgrounds: what is the same over both is the dialog.
void Program_Test::compare(const Shown_Dialog& shown) {
    std::array<Picture, 2> expected;
    for (Picture& picture : expected) {
        const Color background = &picture == expected.data() ? black : white;
        set_backdrop([=] {
            screen->fill_rect({0, 0, screen->size().width, screen->size().height}, background);
        });
        script_->check([&] { picture = window_picture(); }).key(key::escape);
        if (shown.yes) {
            EXPECT_FALSE(dialogs->ask(shown.title, shown.text, *shown.yes));
        } else {
            dialogs->message(shown.title, shown.text);
        }
    }
    set_backdrop([] { editor->redraw(Present::no); });

    int compared = 0;
    int differing = 0;
    for (std::size_t i = 0; i < expected[0].size(); ++i) {
        const bool is_dialog = expected[0][i] == expected[1][i];
        compared += is_dialog ? 1 : 0;
        differing += is_dialog && shown.window.at(i) != expected[0][i] ? 1 : 0;
    }
    EXPECT_EQ(differing, 0) << "another picture than that of \"" << shown.title << "\": " << shown.text;
    EXPECT_GT(compared, 10000);
}

} // namespace quadrelle::testing
