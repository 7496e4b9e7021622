#include "selection/picture_formats.h"

#include <SDL3/SDL.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include <png.h>

namespace quadrelle {

namespace {

struct Surface_Deleter {
    void operator()(SDL_Surface* surface) const { SDL_DestroySurface(surface); }
};
using Surface_Handle = std::unique_ptr<SDL_Surface, Surface_Deleter>;

struct Stream_Deleter {
    void operator()(SDL_IOStream* stream) const { SDL_CloseIO(stream); }
};
using Stream_Handle = std::unique_ptr<SDL_IOStream, Stream_Deleter>;

// Blue, green, red, alpha in memory.
constexpr SDL_PixelFormat tile_format = SDL_PIXELFORMAT_BGRA32;

std::int64_t number_at(Picture_Bytes bytes, std::size_t offset, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = length; i > 0; --i) {
        number = number << 8U | bytes[offset + i - 1];
    }
    return length == 4 ? static_cast<std::int32_t>(number) : static_cast<std::int64_t>(number);
}

// Read before the bitmap itself is, because that takes as much memory as the header announces.
Picture_Fault fault_of_header(Picture_Bytes bytes) {
    constexpr std::size_t shortest = 26;
    if (bytes.size() < shortest || bytes[0] != 'B' || bytes[1] != 'M') {
        return Picture_Fault::broken;
    }
    const bool is_old = number_at(bytes, 14, 4) == 12;
    const std::int64_t width = is_old ? number_at(bytes, 18, 2) : number_at(bytes, 18, 4);
    const std::int64_t height = is_old ? number_at(bytes, 20, 2) : number_at(bytes, 22, 4);
    return fault_of_size(width, std::abs(height)); // negative for rows from the top
}

// Null when that failed.
Surface_Handle surface_of(const Tile& picture) {
    const auto [width, height] = picture.size();
    Surface_Handle surface(SDL_CreateSurface(width, height, tile_format));
    const int pitch = width * static_cast<int>(sizeof(Color));
    const bool is_copied = surface && SDL_ConvertPixels(width, height, tile_format, picture.pixels().data(),
                                                        pitch, tile_format, surface->pixels, surface->pitch);
    return is_copied ? std::move(surface) : nullptr;
}

Decoded_Picture decoded(SDL_Surface& surface) {
    const Surface_Handle converted(SDL_ConvertSurface(&surface, tile_format));
    if (!converted || fault_of_size(surface.w, surface.h) != Picture_Fault::none) {
        return {std::nullopt, Picture_Fault::broken};
    }
    Decoded_Picture result;
    Tile& picture = result.picture.emplace(surface.w, surface.h);
    const auto width = static_cast<std::size_t>(surface.w);
    picture.change_pixels([&](std::span<Color> pixels) {
        for (int y = 0; y < surface.h; ++y) {
            const auto* const row =
                static_cast<const std::byte*>(converted->pixels) + std::ptrdiff_t{y} * converted->pitch;
            std::memcpy(&pixels[static_cast<std::size_t>(y) * width], row, width * sizeof(Color));
        }
    });
    return result;
}

} // namespace

Picture_Fault fault_of_size(std::int64_t width, std::int64_t height) {
    if (width > largest_picture_edge || height > largest_picture_edge) {
        return Picture_Fault::too_large;
    }
    return width > 0 && height > 0 ? Picture_Fault::none : Picture_Fault::broken;
}

Decoded_Picture decode_bitmap(Picture_Bytes bytes) {
    const Picture_Fault fault = fault_of_header(bytes);
    if (fault != Picture_Fault::none) {
        return {std::nullopt, fault};
    }
    const Surface_Handle surface(SDL_LoadBMP_IO(SDL_IOFromConstMem(bytes.data(), bytes.size()), true));
    return surface ? decoded(*surface) : Decoded_Picture{std::nullopt, Picture_Fault::broken};
}

std::vector<std::uint8_t> encode_bitmap(const Tile& picture) {
    constexpr std::size_t room_for_headers = 256;
    const Surface_Handle surface = surface_of(picture);
    std::vector<std::uint8_t> bytes(picture.pixels().size() * sizeof(Color) + room_for_headers);
    const Stream_Handle stream(SDL_IOFromMem(bytes.data(), bytes.size()));
    const bool is_written = surface && stream && SDL_SaveBMP_IO(surface.get(), stream.get(), false);
    bytes.resize(is_written ? static_cast<std::size_t>(SDL_TellIO(stream.get())) : 0);
    return bytes;
}

namespace {

// Of libpng, which may keep memory of its own until it is released.
struct Png_Image {
    Png_Image() { image.version = PNG_IMAGE_VERSION; }
    Png_Image(const Png_Image&) = delete;
    Png_Image& operator=(const Png_Image&) = delete;
    ~Png_Image() { png_image_free(&image); }

    png_image image{};
};

} // namespace

Decoded_Picture decode_png(Picture_Bytes bytes) {
    Png_Image png;
    if (png_image_begin_read_from_memory(&png.image, bytes.data(), bytes.size()) == 0) {
        return {std::nullopt, Picture_Fault::broken};
    }
    Decoded_Picture result{std::nullopt, fault_of_size(png.image.width, png.image.height)};
    if (result.fault != Picture_Fault::none) {
        return result;
    }
    png.image.format = PNG_FORMAT_BGRA;
    Tile& picture =
        result.picture.emplace(static_cast<int>(png.image.width), static_cast<int>(png.image.height));
    bool is_read = false;
    picture.change_pixels([&](std::span<Color> pixels) {
        is_read = png_image_finish_read(&png.image, nullptr, pixels.data(), 0, nullptr) != 0;
    });
    if (!is_read) {
        return {std::nullopt, Picture_Fault::broken};
    }
    return result;
}

std::vector<std::uint8_t> encode_png(const Tile& picture) {
    Png_Image png;
    png.image.width = static_cast<png_uint_32>(picture.width());
    png.image.height = static_cast<png_uint_32>(picture.height());
    png.image.format = PNG_FORMAT_BGRA;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(png.image);
    std::vector<std::uint8_t> bytes(size);
    const bool is_written = png_image_write_to_memory(&png.image, bytes.data(), &size, 0,
                                                      picture.pixels().data(), 0, nullptr) != 0;
    bytes.resize(is_written ? size : 0);
    return bytes;
}

} // namespace quadrelle
