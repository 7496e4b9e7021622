#include "tileset/file_dialog.h"

#include "app/events.h"
#include "app/table.h"
#include "ui/dialogs.h"

#include <SDL3/SDL_dialog.h>

#include <array>
#include <atomic>
#include <memory>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

enum class Direction { open, save };

struct File_Dialog_Row {
    File_Dialog_Kind id;
    Direction direction;
    SDL_DialogFileFilter filter;
    std::string_view forced_extension;
};

// clang-format off
constexpr std::array<File_Dialog_Row, 6> file_dialog_table{{
    {File_Dialog_Kind::load_tileset,    Direction::open, {"Quadrelle file (*.qdl)", "qdl"}, ""},
    {File_Dialog_Kind::save_tileset,    Direction::save, {"Quadrelle file (*.qdl)", "qdl"}, "qdl"},
    {File_Dialog_Kind::open_any,        Direction::open, {"All files (*.*)",        "*"},   ""},
    {File_Dialog_Kind::open_any_second, Direction::open, {"All files (*.*)",        "*"},   ""},
    {File_Dialog_Kind::import_bitmap,   Direction::open, {"Bitmap file (*.bmp)",    "bmp"}, ""},
    {File_Dialog_Kind::export_bitmap,   Direction::save, {"Bitmap file (*.bmp)",    "bmp"}, "bmp"},
}};
// clang-format on

static_assert(file_dialog_table.size() == static_cast<std::size_t>(File_Dialog_Kind::count));
static_assert(rows_follow_their_ids(file_dialog_table));

// Written by the system's callback, which may run on another thread: first the path, then the state.
struct Shared_Answer {
    std::string path;
    std::atomic<File_Answer_State> state{File_Answer_State::pending};
};

// Some systems answer a cancelled dialog with a list that holds one empty name.
bool holds_a_name(const char* const* files) {
    return *files != nullptr && **files != '\0';
}

// Owns its share of the answer, so that a dialog which outlives the wait writes to no dead object.
void SDLCALL take_answer(void* user_data, const char* const* files, int /*filter*/) {
    const std::unique_ptr<std::shared_ptr<Shared_Answer>> share(
        static_cast<std::shared_ptr<Shared_Answer>*>(user_data));
    Shared_Answer& answer = **share;
    if (files == nullptr) {
        answer.state = File_Answer_State::failed;
    } else if (!holds_a_name(files)) {
        answer.state = File_Answer_State::cancelled;
    } else {
        answer.path = *files;
        answer.state = File_Answer_State::chosen;
    }
}

void show_dialog(const File_Dialog_Row& row, const std::shared_ptr<Shared_Answer>& answer) {
    auto share = std::make_unique<std::shared_ptr<Shared_Answer>>(answer);
    if (row.direction == Direction::open) {
        SDL_ShowOpenFileDialog(take_answer, share.release(), nullptr, &row.filter, 1, nullptr, false);
    } else {
        SDL_ShowSaveFileDialog(take_answer, share.release(), nullptr, &row.filter, 1, nullptr);
    }
}

File_Answer ask_system(File_Dialog_Kind kind) {
    const auto answer = std::make_shared<Shared_Answer>();
    show_dialog(file_dialog_table.at(static_cast<std::size_t>(kind)), answer);
    while (answer->state == File_Answer_State::pending) {
        if (idle("file dialog") == Idle_Outcome::events_taken) {
            dialogs->show_backdrop();
        }
    }
    return {answer->state, answer->path};
}

File_Chooser& chooser() {
    static File_Chooser the_chooser = ask_system;
    return the_chooser;
}

// The place of the dot that starts the extension; a dot at the start of a name starts none.
std::size_t extension_start(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    const std::size_t separator = path.find_last_of("/\\");
    const std::size_t name = separator == std::string::npos ? 0 : separator + 1;
    return dot == std::string::npos || dot <= name ? std::string::npos : dot;
}

} // namespace

void set_file_chooser(File_Chooser new_chooser) {
    chooser() = new_chooser ? std::move(new_chooser) : ask_system;
}

std::string with_extension(const std::string& path, const std::string& extension) {
    return path.substr(0, extension_start(path)) + "." + extension;
}

bool choose_file(File_Dialog_Kind kind, std::string& path) {
    const File_Answer answer = chooser()(kind);
    dialogs->show_backdrop();
    if (answer.state == File_Answer_State::failed) {
        dialogs->message("Note", "Unknown error occurred in file dialog.");
    }
    if (answer.state != File_Answer_State::chosen) {
        return false;
    }
    const std::string_view forced = file_dialog_table.at(static_cast<std::size_t>(kind)).forced_extension;
    path = forced.empty() ? answer.path : with_extension(answer.path, std::string(forced));
    return true;
}

} // namespace quadrelle
