#include "views/system_file_dialog.h"

#include "views/dialog_wait.h"

#include <SDL3/SDL_dialog.h>
#include <SDL3/SDL_hints.h>
#include <SDL3/SDL_stdinc.h>

#include <atomic>
#include <memory>

namespace quadrelle {

namespace {

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

void show_dialog(File_Direction direction, const SDL_DialogFileFilter& filter,
                 const std::shared_ptr<Shared_Answer>& answer) {
    auto share = std::make_unique<std::shared_ptr<Shared_Answer>>(answer);
    if (direction == File_Direction::open) {
        SDL_ShowOpenFileDialog(take_answer, share.release(), nullptr, &filter, 1, nullptr, false);
    } else {
        SDL_ShowSaveFileDialog(take_answer, share.release(), nullptr, &filter, 1, nullptr);
    }
}

// Up to 3.2 the library hands libdbus a null message when a portal answers with an error, and libdbus ends
// the program for that unless it is told not to. The environment has the last word.
void survive_portal_errors() {
    constexpr int keep_if_set = 0;
    SDL_setenv_unsafe("DBUS_FATAL_WARNINGS", "0", keep_if_set);
}

} // namespace

File_Answer ask_system_dialog(const File_Request& request) {
    survive_portal_errors();
    const SDL_DialogFileFilter filter{request.filter_label, request.pattern};
    const auto answer = std::make_shared<Shared_Answer>();
    show_dialog(request.direction, filter, answer);
    switch (wait_for_dialog([&answer] { return answer->state != File_Answer_State::pending; })) {
    case Wait_End::given_up: return {File_Answer_State::given_up, {}};
    case Wait_End::quit: return {File_Answer_State::cancelled, {}};
    case Wait_End::answered: break;
    }
    return {answer->state, answer->path};
}

bool prefer_helper_dialog() {
    return SDL_SetHint(SDL_HINT_FILE_DIALOG_DRIVER, "zenity");
}

} // namespace quadrelle
