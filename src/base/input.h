#pragma once

// What the pointer and the keyboard tell the program, free of the event library's types.

#include "base/geometry.h"

#include <cstdint>
#include <string>

namespace quadrelle {

enum class Mouse_Button : std::int32_t { none = 0, left = 1, right = 2 };

// As mice count their buttons.
constexpr int left_button_number = 1;
constexpr int middle_button_number = 2;
constexpr int right_button_number = 3;

// Every button but the left and the right one is none: it never acts.
[[nodiscard]] constexpr Mouse_Button mouse_button(int number) {
    return number == left_button_number    ? Mouse_Button::left
           : number == right_button_number ? Mouse_Button::right
                                           : Mouse_Button::none;
}

// The last pointer position in window pixels, and the button that is or was pressed there.
struct Pointer_State {
    float x = 0;
    float y = 0;
    Mouse_Button button = Mouse_Button::none;

    bool operator==(const Pointer_State&) const = default;

    // Returns both coordinates truncated toward zero.
    [[nodiscard]] constexpr Point point() const { return {static_cast<int>(x), static_cast<int>(y)}; }
};

using Keycode = std::uint32_t;

namespace key {
constexpr Keycode none = 0;
constexpr Keycode backspace = 0x08;
constexpr Keycode tab = 0x09;
constexpr Keycode enter = 0x0d;
constexpr Keycode escape = 0x1b;
constexpr Keycode space = 0x20;
constexpr Keycode delete_key = 0x7f;
constexpr Keycode f1 = 0x4000003a;
constexpr Keycode home = 0x4000004a;
constexpr Keycode page_up = 0x4000004b;
constexpr Keycode end = 0x4000004d;
constexpr Keycode page_down = 0x4000004e;
constexpr Keycode right = 0x4000004f;
constexpr Keycode left = 0x40000050;
constexpr Keycode down = 0x40000051;
constexpr Keycode up = 0x40000052;
constexpr Keycode keypad_multiply = 0x40000055;
constexpr Keycode keypad_minus = 0x40000056;
constexpr Keycode keypad_plus = 0x40000057;
constexpr Keycode keypad_enter = 0x40000058;
constexpr Keycode keypad_1 = 0x40000059;
constexpr Keycode keypad_0 = 0x40000062;
constexpr Keycode left_control = 0x400000e0;
constexpr Keycode left_shift = 0x400000e1;
constexpr Keycode left_alt = 0x400000e2;
constexpr Keycode right_control = 0x400000e4;
constexpr Keycode right_shift = 0x400000e5;
constexpr Keycode right_alt = 0x400000e6;
} // namespace key

enum class Modifier : std::int32_t { none = 0, shift = 1, alt = 2, control = 3 };

struct Held_Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
};

struct Key_Chord {
    Keycode key = key::none;
    Modifier modifier = Modifier::none;

    bool operator==(const Key_Chord&) const = default;
};

// Shift wins over Ctrl and Ctrl over Alt; a modifier key by itself is no key.
[[nodiscard]] Key_Chord make_key_chord(Keycode pressed, Held_Modifiers held);

enum class Input_Kind {
    other, // what nobody answers, but every loop draws after
    key_press,
    key_release,
    typed_text,
    pointer_motion,
    pointer_left, // the window
    button_press,
    button_release,
    wheel,
    quit,
};

struct Movement {
    float x = 0;
    float y = 0;
};

// One thing that the user did. Each kind has the fields that name it; the others are as here.
struct Input_Event {
    Input_Kind kind = Input_Kind::other;
    Key_Chord chord = {};          // of a key press; with AltGr of the key that would make the same without
    Keycode character = key::none; // of a press: what the key makes with Shift, unless Ctrl or Alt is held
    bool is_repeat = false;        // of a press: by a key that is held down
    std::string text = {};         // typed, UTF-8
    Pointer_State pointer = {}; // of a motion and the wheel, without a button; of a button's press, release
    int button_number = 0;      // also of the buttons that a pointer state does not know
    int clicks = 0;             // of a press: 2 for that of a double click
    Movement moved = {};        // the pointer, since the last motion; or the wheel: up and to the right
};

} // namespace quadrelle
