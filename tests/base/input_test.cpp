#include "screen/events.h"

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <array>

namespace quadrelle {
namespace {

struct Modifier_Case {
    SDL_Keymod held;
    Modifier expected;
};

TEST(Key_Chord, has_the_strongest_modifier_of_either_side) {
    constexpr std::array cases{
        Modifier_Case{SDL_KMOD_NONE, Modifier::none},
        Modifier_Case{SDL_KMOD_RSHIFT, Modifier::shift},
        Modifier_Case{SDL_KMOD_RCTRL, Modifier::control},
        Modifier_Case{SDL_KMOD_RALT, Modifier::alt},
        Modifier_Case{SDL_KMOD_LSHIFT | SDL_KMOD_LCTRL | SDL_KMOD_LALT, Modifier::shift},
        Modifier_Case{SDL_KMOD_LCTRL | SDL_KMOD_RALT, Modifier::control},
        Modifier_Case{SDL_KMOD_NUM | SDL_KMOD_CAPS | SDL_KMOD_LGUI, Modifier::none},
        Modifier_Case{SDL_KMOD_NUM | SDL_KMOD_LALT, Modifier::alt},
    };
    for (const Modifier_Case& test : cases) {
        SDL_KeyboardEvent event{};
        event.key = SDLK_A;
        event.mod = test.held;
        EXPECT_EQ(key_chord_of(event), (Key_Chord{'a', test.expected})) << test.held;
    }
}

TEST(Pointer_State, keeps_only_the_buttons_that_act_and_truncates_toward_zero) {
    SDL_MouseButtonEvent event{};
    event.x = 12.9F;
    event.y = -0.9F;
    constexpr std::array expected = {Mouse_Button::none,  Mouse_Button::left, Mouse_Button::none,
                                     Mouse_Button::right, Mouse_Button::none, Mouse_Button::none};
    for (std::size_t number = 0; number < expected.size(); ++number) {
        event.button = static_cast<Uint8>(number);
        EXPECT_EQ(pointer_of(event).button, expected.at(number)) << number;
    }
    EXPECT_EQ(pointer_of(event).point(), (Point{12, 0}));
}

} // namespace
} // namespace quadrelle
