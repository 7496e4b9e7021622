#include "views/file_dialog.h"

#include "base/file_names.h"
#include "base/table.h"
#include "screen/events.h"
#include "ui/dialogs.h"
#include "views/file_chooser.h"

#include <SDL3/SDL_dialog.h>
#include <SDL3/SDL_hints.h>
#include <SDL3/SDL_stdinc.h>

#include <array>
#include <atomic>
#include <memory>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

struct File_Dialog_Row {
    File_Dialog_Kind id;
    std::string_view title;
    File_Direction direction;
    SDL_DialogFileFilter filter;
    std::string_view forced_extension;
};

// clang-format off
constexpr std::array<File_Dialog_Row, 6> file_dialog_table{{
    {File_Dialog_Kind::load_tileset,    "Load",   File_Direction::open, {"Quadrelle file (*.qdl)", "qdl"}, ""},
    {File_Dialog_Kind::save_tileset,    "Save",   File_Direction::save, {"Quadrelle file (*.qdl)", "qdl"}, "qdl"},
    {File_Dialog_Kind::open_any,        "Open",   File_Direction::open, {"All files (*.*)",        "*"},   ""},
    {File_Dialog_Kind::open_any_second, "Open",   File_Direction::open, {"All files (*.*)",        "*"},   ""},
    {File_Dialog_Kind::import_bitmap,   "Import", File_Direction::open, {"Bitmap file (*.bmp)",    "bmp"}, ""},
    {File_Dialog_Kind::export_bitmap,   "Export", File_Direction::save, {"Bitmap file (*.bmp)",    "bmp"}, "bmp"},
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
    if (row.direction == File_Direction::open) {
        SDL_ShowOpenFileDialog(take_answer, share.release(), nullptr, &row.filter, 1, nullptr, false);
    } else {
        SDL_ShowSaveFileDialog(take_answer, share.release(), nullptr, &row.filter, 1, nullptr);
    }
}

const File_Dialog_Row& row_of(File_Dialog_Kind kind) {
    return file_dialog_table.at(static_cast<std::size_t>(kind));
}

File_Answer ask_system(File_Dialog_Kind kind) {
    const auto answer = std::make_shared<Shared_Answer>();
    show_dialog(row_of(kind), answer);
    while (answer->state == File_Answer_State::pending) {
        if (idle("file dialog") == Idle_Outcome::events_taken) {
            dialogs->show_backdrop();
        }
    }
    return {answer->state, answer->path};
}

// Elsewhere the desktop decides whether there is a dialog, and an error may mean that there is none.
#if defined(_WIN32) || defined(__APPLE__)
constexpr bool system_has_dialogs = true;
#else
constexpr bool system_has_dialogs = false;
#endif

enum class Way { system, zenity, own };

// Up to 3.2 the library hands libdbus a null message when a portal answers with an error, and libdbus ends
// the program for that unless it is told not to. The environment has the last word.
void survive_portal_errors() {
    constexpr int keep_if_set = 0;
    SDL_setenv_unsafe("DBUS_FATAL_WARNINGS", "0", keep_if_set);
}

// Zenity may be there although a desktop portal, which is asked first, answers with an error. False where the
// user has set the hint.
bool prefer_zenity() {
    return SDL_SetHint(SDL_HINT_FILE_DIALOG_DRIVER, "zenity");
}

// A way that failed is not tried again in this run.
File_Answer ask_user(File_Dialog_Kind kind) {
    static Way way = Way::system;
    survive_portal_errors();
    while (way != Way::own) {
        File_Answer answer = ask_system(kind);
        if (answer.state != File_Answer_State::failed || system_has_dialogs) {
            return answer;
        }
        way = way == Way::system && prefer_zenity() ? Way::zenity : Way::own;
    }
    return ask_own_dialog(kind);
}

File_Chooser& chooser() {
    static File_Chooser the_chooser = ask_user;
    return the_chooser;
}

} // namespace

File_Answer ask_own_dialog(File_Dialog_Kind kind) {
    const File_Dialog_Row& row = row_of(kind);
    return run_file_chooser(
        {row.title, row.direction, row.filter.name, row.filter.pattern, row.forced_extension});
}

void set_file_chooser(File_Chooser new_chooser) {
    chooser() = new_chooser ? std::move(new_chooser) : ask_user;
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
    const std::string_view forced = row_of(kind).forced_extension;
    path = forced.empty() ? answer.path : with_extension(answer.path, std::string(forced));
    return true;
}

} // namespace quadrelle
