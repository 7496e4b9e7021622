#include "tests/whole/program_test.h"

#include "app/application.h"
#include "app/screen.h"
#include "ui/dialogs.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace quadrelle::testing {

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
    dialogs->set_backdrop({});
    script_->check([&] { expected = window_picture(); }).key(key::escape);
    if (shown.is_question) {
        EXPECT_FALSE(dialogs->ask(shown.title, shown.text));
    } else {
        dialogs->message(shown.title, shown.text);
    }
    dialogs->set_backdrop([] { editor->redraw(Present::no); });

    // The shadow to the right and below is translucent; the corner above it is the dialog's own.
    constexpr int shadow_width = 4;
    const int width = screen->size().width;
    const auto covered = [&](std::size_t i) { return expected.at(i) != expected.front(); };
    Rectangle dialog{width, 0, 0, 0};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (covered(i)) {
            const Point point{static_cast<int>(i) % width, static_cast<int>(i) / width};
            dialog.y = dialog.is_empty() ? point.y : dialog.y;
            const int right = std::max(dialog.right(), point.x + 1);
            dialog.x = std::min(dialog.x, point.x);
            dialog.width = right - dialog.x;
            dialog.height = point.y + 1 - dialog.y;
        }
    }
    int differing = 0;
    for (int y = dialog.y; y < dialog.bottom() - shadow_width; ++y) {
        for (int x = dialog.x; x < dialog.right() - shadow_width; ++x) {
            const auto i = static_cast<std::size_t>(y * width + x);
            differing += shown.window.at(i) != expected.at(i) ? 1 : 0;
        }
    }
    EXPECT_EQ(differing, 0) << "another picture than that of \"" << shown.title << "\": " << shown.text;
    EXPECT_GT(dialog.width, 100);
}

} // namespace quadrelle::testing
