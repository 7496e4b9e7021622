#include "views/about.h"

#include "app/screen.h"
#include "app/version.h"

#include <SDL3/SDL_version.h>

namespace quadrelle {

namespace {

std::string library_version() {
    const int version = SDL_GetVersion();
    return std::to_string(SDL_VERSIONNUM_MAJOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MINOR(version)) + "." +
           std::to_string(SDL_VERSIONNUM_MICRO(version));
}

} // namespace

std::string about_text() {
    return std::string(product_name) + " " + product_version + ", an editor for tiles and tilesets\r\r" +
           "Renderer: " + screen->renderer_name() + "\r" + "SDL " + library_version() +
           " (zlib licence, www.libsdl.org)\r" + "Fonts: see the licence texts in the folder art/fonts";
}

} // namespace quadrelle
