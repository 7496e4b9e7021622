#include "views/about.h"

#include "base/version.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/dialog_container.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/text_button.h"

#include <SDL3/SDL_version.h>

#include <string>

namespace quadrelle {

namespace {

constexpr const char* licences =
    "Window, drawing and events: SDL, under the zlib licence\r"
    "PNG pictures: libpng, under the PNG Reference Library License version 2, and zlib, under the\r"
    "zlib licence\r\r"
    "Letters: modified from the 75dpi Helvetica bitmaps\r"
    "Copyright 1984-1989, 1994 Adobe Systems Incorporated.\r"
    "Copyright 1988, 1994 Digital Equipment Corporation.\r"
    "Permission to use, copy, modify, distribute and sell this software and its documentation for\r"
    "any purpose and without fee is hereby granted, provided that the above copyright notices\r"
    "appear in all copies and that both those copyright notices and this permission notice appear\r"
    "in supporting documentation, and that the names of Adobe Systems and Digital Equipment\r"
    "Corporation not be used in advertising or publicity pertaining to distribution of the\r"
    "software without specific, written prior permission. Adobe Systems and Digital Equipment\r"
    "Corporation make no representations about the suitability of this software for any purpose.\r"
    "It is provided \"as is\" without express or implied warranty.";

constexpr Font font = Font::regular;
constexpr int margin = 14;
constexpr Rectangle logo = sprite_rect(Sprite::logo);
// Where the letters stand in the sprite; they are to begin where the text does.
constexpr int logo_overhang = 25;
constexpr int logo_width = 260;
constexpr int button_width = 100;
constexpr int text_lines = 2;
constexpr Size below_title{logo_width + 2 * margin,
                           logo.height + text_lines* line_height(font) + text_button_height + 4 * margin};

std::string library_version() {
    const int version = SDL_GetVersion();
    return std::to_string(SDL_VERSIONNUM_MAJOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MINOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MICRO(version));
}

std::string version_text() {
    return "Version " + std::string(product_version) + "\r" + "Renderer: " + screen->renderer_name() +
           ", SDL " + library_version();
}

Dialog_Frame sized_frame() {
    Dialog_Frame frame("About");
    frame.set_size(below_title);
    return frame;
}

class About {
public:
    void run() const {
        run_dialog({"dialog \"About\"", [this] { draw(); },
                    [this](const Input_Event& event) {
                        return event.kind == Input_Kind::button_press ? press(event.pointer)
                                                                      : Loop_Step::go_on;
                    },
                    [] { return Loop_Step::end; }});
    }

private:
    void draw() const;
    [[nodiscard]] Loop_Step press(const Pointer_State& pointer) const;

    Dialog_Frame frame_ = sized_frame();
    Rectangle inside_ = frame_.area().inset(margin);
    std::string text_ = version_text();
    Text_Button ok_{"Ok",
                    {inside_.x, inside_.bottom() - text_button_height, button_width, text_button_height}};
    Text_Button licences_{"Licences",
                          {inside_.right() - button_width, inside_.bottom() - text_button_height,
                           button_width, text_button_height}};
};

void About::draw() const {
    frame_.draw();
    const int top = frame_.area().y + dialog_title_height + margin;
    screen->draw_sprite(Sprite::logo, {inside_.x - logo_overhang, top});
    screen->draw_text(font, {inside_.x, top + logo.height + margin}, text_);
    ok_.draw(Button_Look::by_default);
    licences_.draw(Button_Look::plain);
}

Loop_Step About::press(const Pointer_State& pointer) const {
    if (pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    if (licences_.contains(pointer.point())) {
        run_message("Licences", licences);
    }
    return ok_.contains(pointer.point()) ? Loop_Step::end : Loop_Step::go_on;
}

} // namespace

void show_about() {
    About().run();
}

} // namespace quadrelle
