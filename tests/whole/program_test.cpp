#include "tests/whole/program_test.h"

#include "app/start_up.h"
#include "screen/screen.h"
#include "ui/dialogs.h"
#include "ui/modal_dialog.h"

#include <SDL3/SDL.h>

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

// What is drawn on a window that otherwise is of one colour.
Rectangle covered_area(const std::vector<std::uint32_t>& window, int width) {
    int left = width;
    int top = static_cast<int>(window.size());
    int right = 0;
    int bottom = 0;
    for (std::size_t i = 0; i < window.size(); ++i) {
        if (window[i] != window.front()) {
            const int x = static_cast<int>(i) % width;
            const int y = static_cast<int>(i) / width;
            left = std::min(left, x);
            top = std::min(top, y);
            right = std::max(right, x + 1);
            bottom = std::max(bottom, y + 1);
        }
    }
    return {left, top, right - left, bottom - top};
}

// It is translucent, to the right and below.
Rectangle without_shadow(Rectangle dialog) {
    constexpr int shadow_width = 4;
    return {dialog.x, dialog.y, dialog.width - shadow_width, dialog.height - shadow_width};
}

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

Color Program_Test::tile_pixel(int x, int y) {
    return document().tileset().current_pixel(x, y);
}

std::string Program_Test::window_title() {
    return SDL_GetWindowTitle(SDL_GetRenderWindow(screen->renderer()));
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
    return expect_dialog({title, text, false, {}});
}

Script& Program_Test::expect_question(const std::string& title, const std::string& text) {
    return expect_dialog({title, text, true, {}});
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
    set_file_chooser([this, state, path](File_Dialog_Kind kind) {
        asked_file_ = kind;
        return File_Answer{state, path};
    });
}

Program_Test::Picture Program_Test::window_picture() {
    using Handle = std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)>;
    const Handle read(SDL_RenderReadPixels(screen->renderer(), nullptr), SDL_DestroySurface);
    const Handle surface(SDL_ConvertSurface(read.get(), SDL_PIXELFORMAT_ARGB8888), SDL_DestroySurface);
    Picture picture;
    for (int y = 0; y < surface->h; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            static_cast<const std::byte*>(surface->pixels) + y * surface->pitch);
        picture.insert(picture.end(), row, row + surface->w);
    }
    return picture;
}

void Program_Test::compare_shown_dialogs() {
    for (const Shown_Dialog& shown : std::exchange(shown_dialogs_, {})) {
        compare(shown);
    }
}

// Shows the expected dialog over an empty window, and looks at what it covers.
void Program_Test::compare(const Shown_Dialog& shown) {
    Picture expected;
    set_backdrop({});
    script_->check([&] { expected = window_picture(); }).key(key::escape);
    if (shown.is_question) {
        EXPECT_FALSE(dialogs->ask(shown.title, shown.text));
    } else {
        dialogs->message(shown.title, shown.text);
    }
    set_backdrop([] { editor->redraw(Present::no); });

    const int width = screen->size().width;
    int differing = 0;
    const Rectangle dialog = without_shadow(covered_area(expected, width));
    for (int y = dialog.y; y < dialog.bottom(); ++y) {
        for (int x = dialog.x; x < dialog.right(); ++x) {
            const auto i = static_cast<std::size_t>(y * width + x);
            differing += shown.window.at(i) != expected.at(i) ? 1 : 0;
        }
    }
    EXPECT_EQ(differing, 0) << "another picture than that of \"" << shown.title << "\": " << shown.text;
    EXPECT_GT(dialog.width, 100);
}

} // namespace quadrelle::testing
