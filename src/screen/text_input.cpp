#include "screen/text_input.h"

#include "screen/screen.h"

#include <SDL3/SDL.h>

#include <memory>

namespace quadrelle {

Text_Input::Text_Input() : was_active_(SDL_TextInputActive(screen->window())) {
    SDL_StartTextInput(screen->window());
}

Text_Input::~Text_Input() {
    if (!was_active_) {
        SDL_StopTextInput(screen->window());
    }
}

std::string clipboard_text() {
    const std::unique_ptr<char, void (*)(void*)> text(SDL_GetClipboardText(), SDL_free);
    return text ? text.get() : "";
}

void set_clipboard_text(const std::string& text) {
    SDL_SetClipboardText(text.c_str());
}

} // namespace quadrelle
