#include "ui/control.h"

#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"

namespace quadrelle {

namespace {

constexpr Color glow{255, 255, 255, 38};
constexpr Color shade{0, 0, 0, 56};
constexpr Color deep_shade{0, 0, 0, 120};

int layers_in_front = 0;

Color veil_color() {
    Color veil = standard_color(Standard_Color::pane_background);
    veil.a = 180;
    return veil;
}

// As if the light from the top left did not reach into it.
void draw_hollow(const Rectangle& area) {
    screen->fill_rect({area.x, area.y, area.width, 1}, deep_shade);
    screen->fill_rect({area.x, area.y + 1, 1, area.height - 1}, deep_shade);
}

} // namespace

Behind::Behind() {
    ++layers_in_front;
}

Behind::~Behind() {
    --layers_in_front;
}

bool is_pointed_at(const Rectangle& area) {
    return layers_in_front == 0 && area.contains(followed_pointer().position);
}

Control_State control_state(const Rectangle& area, Usable usable) {
    if (usable == Usable::no) {
        return Control_State::disabled;
    }
    const Followed_Pointer& pointer = followed_pointer();
    if (!is_pointed_at(area) || !area.contains(pointer.pressed_at.value_or(pointer.position))) {
        return Control_State::idle;
    }
    return pointer.pressed_at ? Control_State::held : Control_State::hovered;
}

Color answer_tint(Control_State state) {
    switch (state) {
    case Control_State::hovered: return glow;
    case Control_State::held: return shade;
    case Control_State::disabled: return veil_color();
    case Control_State::idle: break;
    }
    return standard_color(Standard_Color::transparent);
}

void draw_answer(const Rectangle& area, Usable usable) {
    const Control_State state = control_state(area, usable);
    if (state == Control_State::idle) {
        return;
    }
    screen->fill_rect(area, answer_tint(state));
    if (state == Control_State::held) {
        draw_hollow(area);
    }
}

void draw_outlined_answer(const Rectangle& area, Control_State state) {
    if (state == Control_State::idle) {
        return;
    }
    screen->draw_outline(area, standard_color(Standard_Color::highlight));
    if (state == Control_State::held) {
        screen->draw_outline(area.inset(1), standard_color(Standard_Color::black));
    }
}

} // namespace quadrelle
