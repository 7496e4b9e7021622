#include "views/about.h"

#include "base/version.h"
#include "screen/screen.h"
#include "ui/dialog_container.h"

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

std::string library_version() {
    const int version = SDL_GetVersion();
    return std::to_string(SDL_VERSIONNUM_MAJOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MINOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MICRO(version));
}

std::string about_text() {
    return "\rVersion " + std::string(product_version) + "\r" + "Renderer: " + screen->renderer_name() +
           ", SDL " + library_version() + "\r\r" + licences;
}

} // namespace

void show_about() {
    const std::string text = about_text();
    Dialog_Container dialog("About");
    dialog.add_image_row(Sprite::logo);
    dialog.add_text_row(text).items().front()->area.height += dialog_margin;
    dialog.finish_ok();
    dialog.run();
}

} // namespace quadrelle
