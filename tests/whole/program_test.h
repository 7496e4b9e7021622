#pragma once

// Tests of the whole program: everything is started as it is for a user, with a window that nobody sees, and
// is driven by events.

#include "app/documents.h"
#include "app/editor.h"
#include "canvas/canvas_view.h"
#include "commands/command.h"
#include "tests/support/tiles.h"
#include "tests/support/window_test.h"
#include "tools/options.h"
#include "tools/tool_state.h"
#include "ui/button_dialog_item.h"
#include "views/ask_for_file.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle::testing {

// The middle of a pixel of the first tile: 24 x 24 cells of ten window pixels in the middle of the viewport.
[[nodiscard]] constexpr Point cell(int column, int row) {
    return {400 + 10 * column + 5, 200 + 10 * row + 5};
}

class Program_Test : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Until every event of the script is answered and the window is drawn again.
    void play();
    // The steps are those that were just added to the script.
    void play(const Script& /*steps*/) { play(); }
    // One command, and the events of the script while it asks something.
    void execute(Command command);

    // As if it had been chosen in the dialog.
    static void set_option(Option option, int value);

    [[nodiscard]] Script& script() { return *script_; }
    [[nodiscard]] Program_Folder& folder() { return *folder_; }
    [[nodiscard]] static Tileset_Document& document() { return editor->documents().current(); }
    // What the tools work with; the panes read it anew whenever they are drawn.
    [[nodiscard]] static Tool_State& tools();
    [[nodiscard]] static Color tile_pixel(int x, int y);
    [[nodiscard]] static Tile_Picture tile_picture() {
        return picture_of(*document().tileset().current_tile());
    }
    [[nodiscard]] static std::string window_title();
    // How many pixels of the preview have that colour; it repeats the tile twice each way.
    [[nodiscard]] static int count_in_preview(Color color);

    // At this step of the script the window shows a dialog with exactly this title and text.
    Script& expect_message(const std::string& title, const std::string& text);
    Script& expect_question(const std::string& title, const std::string& text,
                            Button_Type yes = Button_Type::ok);
    // At this step the loop with that name waits.
    Script& expect_loop(const std::string& name);

    // Another set with that many tiles, the first one current. Its history knows a black tile.
    void make_set(Size size, int count, const std::function<Color(int tile, Point pixel)>& color);
    // A set of that size without tiles, which no command makes.
    void load_empty_set(Size size);

    // What the system's file dialog answers from now on, and whether it was asked since.
    void answer_files(File_Answer_State state, const std::string& path = {});
    [[nodiscard]] std::optional<File_Dialog_Kind> asked_file() const { return asked_file_; }

    // The window's pixels row by row, as words of colours.
    using Picture = std::vector<std::uint32_t>;
    [[nodiscard]] static Picture window_picture();

private:
    struct Shown_Dialog {
        std::string title;
        std::string text;
        std::optional<Button_Type> yes; // of a question
        Picture window;
    };

    Script& expect_dialog(Shown_Dialog expected);
    void compare_shown_dialogs();
    void compare(const Shown_Dialog& shown);

    std::optional<Program_Folder> folder_;
    std::optional<Script> script_;
    std::vector<Shown_Dialog> shown_dialogs_;
    std::optional<File_Dialog_Kind> asked_file_;
};

} // namespace quadrelle::testing
