#include "screen/cursor.h"

#include <SDL3/SDL_mouse.h>

namespace quadrelle {

void set_cursor(Cursor cursor) {
    if (cursor == current_cursor()) {
        return;
    }
    if (cursor == Cursor::shown) {
        SDL_ShowCursor();
    } else {
        SDL_HideCursor();
    }
}

Cursor current_cursor() {
    return SDL_CursorVisible() ? Cursor::shown : Cursor::hidden;
}

} // namespace quadrelle
