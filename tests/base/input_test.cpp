#include "screen/events.h"

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

namespace quadrelle {
namespace {

TEST(Key_Chord, has_the_strongest_modifier_of_either_side) {
    for (const auto& [held, expected] : std::vector<std::pair<SDL_Keymod, Modifier>>{
             {SDL_KMOD_NONE, Modifier::none},
             {SDL_KMOD_RSHIFT, Modifier::shift},
             {SDL_KMOD_RCTRL, Modifier::control},
             {SDL_KMOD_RALT, Modifier::alt},
             {SDL_KMOD_LSHIFT | SDL_KMOD_LCTRL | SDL_KMOD_LALT, Modifier::shift},
             {SDL_KMOD_LCTRL | SDL_KMOD_RALT, Modifier::control},
             {SDL_KMOD_NUM | SDL_KMOD_CAPS | SDL_KMOD_LGUI, Modifier::none},
             {SDL_KMOD_NUM | SDL_KMOD_LALT, Modifier::alt}}) {
        SDL_Event event{.type = SDL_EVENT_KEY_DOWN};
        event.key.key = SDLK_A;
        event.key.mod = held;
        EXPECT_EQ(input_event_of(event).chord, (Key_Chord{'a', expected})) << held;
    }
}

TEST(Pointer_State, keeps_only_the_buttons_that_act_and_truncates_toward_zero) {
    SDL_Event event{.type = SDL_EVENT_MOUSE_BUTTON_DOWN};
    event.button.x = 12.9F;
    event.button.y = -0.9F;
    constexpr std::array expected = {Mouse_Button::none,  Mouse_Button::left, Mouse_Button::none,
                                     Mouse_Button::right, Mouse_Button::none, Mouse_Button::none};
    for (std::size_t number = 0; number < expected.size(); ++number) {
        event.button.button = static_cast<Uint8>(number);
        EXPECT_EQ(input_event_of(event).pointer.button, expected.at(number)) << number;
    }
    EXPECT_EQ(input_event_of(event).pointer.point(), (Point{12, 0}));
}

} // namespace
} // namespace quadrelle
