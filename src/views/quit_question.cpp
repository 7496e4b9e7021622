#include "views/quit_question.h"

#include "ui/dialogs.h"

namespace quadrelle {

bool confirm_quit(bool has_unsaved_tiles) {
    return dialogs->ask("Quit", has_unsaved_tiles
                                    ? "Quit Quadrelle without saving tiles?\r(Progress will be lost.)"
                                    : "Quit Quadrelle?");
}

} // namespace quadrelle
