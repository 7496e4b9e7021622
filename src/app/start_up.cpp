#include "app/start_up.h"

#include "app/editor.h"
#include "base/data_directory.h"
#include "base/debug_monitor.h"
#include "base/end_signals.h"
#include "base/error_note.h"
#include "base/fatal.h"
#include "base/platform_files.h"
#include "color/color_data.h"
#include "color/palette_list.h"
#include "color/palette_store.h"
#include "panes/toolbox.h"
#include "screen/screen.h"
#include "tools/options.h"
#include "ui/dialogs.h"
#include "ui/window_layout.h"
#include "views/new_tileset_dialog.h"
#include "views/options_dialog.h"

#include <SDL3/SDL.h>

namespace quadrelle {

namespace {

void start_video() {
    SDL_SetHintWithPriority(SDL_HINT_APP_NAME, "Quadrelle", SDL_HINT_DEFAULT);
    if (!SDL_Init(SDL_INIT_VIDEO)) {
        fatal("Unable to initialize SDL video.");
    }
    catch_end_signals();
    // A video program keeps the screen from sleeping unless it says otherwise.
    SDL_EnableScreenSaver();
}

void enter_data() {
    if (!data_directory().enter(Data_Directory::inside)) {
        fatal("Unable to open 'data' directory.", Faulty_File{"data", Remedy::unpack_again});
    }
    data_directory().claim();
    data_directory().hold();
}

} // namespace

void start_application() {
    keep_error_note_in(current_directory());
    start_video();
    message_log = std::make_unique<Debug_Monitor>();
    enter_data();
    screen = std::make_unique<Screen>(window_layout::window);
    palette_store = std::make_unique<Palette_Store>();
    dialogs = std::make_unique<Dialogs>();
    toolbox = std::make_unique<Toolbox>(corner_of(window_layout::tool_list));
    data_directory().leave();
    palette_list = std::make_unique<Palette_List>(*palette_store, data_directory().path("palettes"));
    color_data = std::make_unique<Color_Data>();
    new_tileset_dialog = std::make_unique<New_Tileset_Dialog>();
    options = std::make_unique<Options>(std::make_unique<Options_Dialog>());
    options->load();
    editor = std::make_unique<Editor>();
}

void shut_down_application() {
    options.reset();
    editor.reset();
    new_tileset_dialog.reset();
    color_data.reset();
    palette_list.reset();
    data_directory().enter(Data_Directory::inside);
    palette_store.reset();
    toolbox.reset();
    data_directory().give_back();
    data_directory().leave();
    data_directory().let_go();
    dialogs.reset();
    screen.reset();
    message_log.reset();
    release_end_signals();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
}

void run_application() {
    start_application();
    editor->run();
    shut_down_application();
}

} // namespace quadrelle
