#include "screen/surface.h"

#include "base/block_file.h"
#include "base/fatal.h"

#include <SDL3/SDL.h>

#include <array>
#include <cstdlib>

namespace quadrelle {

namespace {

constexpr SDL_PixelFormat pixel_format = SDL_PIXELFORMAT_ARGB8888;

std::uint32_t to_word(Rgba_Quad color) {
    return static_cast<std::uint32_t>(color.a) << 24U | static_cast<std::uint32_t>(color.r) << 16U |
           static_cast<std::uint32_t>(color.g) << 8U | color.b;
}

Rgba_Quad to_quad(std::uint32_t word) {
    return {static_cast<std::uint8_t>(word >> 16U), static_cast<std::uint8_t>(word >> 8U),
            static_cast<std::uint8_t>(word), static_cast<std::uint8_t>(word >> 24U)};
}

SDL_Rect to_sdl(const Rectangle& area) {
    return {area.x, area.y, area.width, area.height};
}

// A header may claim any size: memory is only taken for pixels that the file has.
bool holds_its_pixels(const std::string& file_name) {
    constexpr std::size_t width_place = 18;
    constexpr std::size_t height_place = 22;
    constexpr std::size_t depth_place = 28;
    std::array<std::uint8_t, 30> header{};
    Block_File file(file_name);
    if (!file.open_read() || file.remaining() < static_cast<std::int64_t>(header.size())) {
        return false;
    }
    const std::int64_t bits = file.remaining() * 8;
    file.read_block(header);
    const auto number = [&header](std::size_t place) {
        std::uint32_t word = 0;
        for (std::size_t i = 4; i-- > 0;) {
            word = word << 8U | header.at(place + i);
        }
        return std::abs(std::int64_t{static_cast<std::int32_t>(word)});
    };
    const std::int64_t width = number(width_place);
    const std::int64_t height = number(height_place);
    const std::int64_t row_bits = width * header.at(depth_place);
    return row_bits == 0 || height <= bits / row_bits;
}

} // namespace

void Surface::Deleter::operator()(SDL_Surface* surface) const {
    SDL_DestroySurface(surface);
}

Surface::Surface(Size size) {
    make(size);
}

Surface::Surface(const std::string& file_name, std::optional<Rgba_Quad> key) {
    const Handle bitmap(holds_its_pixels(file_name) ? SDL_LoadBMP(file_name.c_str()) : nullptr);
    if (!bitmap) {
        // The placeholder is printed as it stands: the file name follows as the detail.
        fatal("Could not load SDL surface from %s.", file_name, {file_name, Remedy::unpack_again});
    }
    make({bitmap->w, bitmap->h});
    take_bitmap(*bitmap);
    apply_key(key);
}

void Surface::make(Size size) {
    if (SDL_GetPixelFormatDetails(pixel_format) == nullptr) {
        fatal("Could not get SDL pixel format details.");
    }
    size_ = size;
    surface_.reset(SDL_CreateSurface(size.width, size.height, pixel_format));
    if (!surface_) {
        fatal("Could not set SDL surface.");
    }
}

void Surface::take_bitmap(SDL_Surface& bitmap) {
    SDL_SetSurfaceBlendMode(&bitmap, SDL_BLENDMODE_NONE);
    SDL_BlitSurface(&bitmap, nullptr, surface_.get(), nullptr);
}

void Surface::apply_key(std::optional<Rgba_Quad> key) {
    constexpr std::uint32_t opaque = 0xff000000U;
    const std::uint32_t key_word = key ? to_word(*key) | opaque : 0;
    for (int y = 0; y < size_.height; ++y) {
        std::uint32_t* row = pixel(0, y);
        for (int x = 0; x < size_.width; ++x) {
            row[x] |= opaque;
            if (key && row[x] == key_word) {
                row[x] &= ~opaque;
            }
        }
    }
}

void Surface::set_color_key(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    SDL_SetSurfaceColorKey(surface_.get(), true, SDL_MapSurfaceRGB(surface_.get(), r, g, b));
}

void Surface::blit_to(Surface& destination, const Rectangle& from, const Rectangle& to) const {
    const SDL_Rect source = to_sdl(from);
    const SDL_Rect target = to_sdl(to);
    SDL_BlitSurface(surface_.get(), &source, destination.surface_.get(), &target);
}

void Surface::fill(Rgba_Quad color) {
    SDL_FillSurfaceRect(surface_.get(), nullptr, to_word(color));
}

void Surface::fill_rect(const Rectangle& area, Rgba_Quad color) {
    const SDL_Rect rect = to_sdl(area);
    SDL_FillSurfaceRect(surface_.get(), &rect, to_word(color));
}

bool Surface::contains(int x, int y) const {
    return Rectangle{0, 0, size_.width, size_.height}.contains({x, y});
}

std::uint32_t* Surface::pixel(int x, int y) const {
    auto* row =
        static_cast<std::uint8_t*>(surface_->pixels) + static_cast<std::ptrdiff_t>(y) * surface_->pitch;
    return reinterpret_cast<std::uint32_t*>(row) + x;
}

// The words of the surface are those of `Color`.
const Color* Surface::row(int y) const {
    return reinterpret_cast<const Color*>(pixel(0, y));
}

void Surface::set_pixel(int x, int y, Rgba_Quad color) {
    if (contains(x, y)) {
        *pixel(x, y) = to_word(color);
    }
}

Rgba_Quad Surface::get_pixel(int x, int y) const {
    return contains(x, y) ? to_quad(*pixel(x, y)) : Rgba_Quad{255, 0, 255, 255};
}

} // namespace quadrelle
