#include "tileset/bitmap_export.h"

#include "base/atomic_file.h"

#include <SDL3/SDL_iostream.h>
#include <SDL3/SDL_surface.h>

#include <algorithm>
#include <memory>
#include <span>

namespace quadrelle {

namespace {

struct Stream_Closer {
    void operator()(SDL_IOStream* stream) const { SDL_CloseIO(stream); }
};
using Stream_Handle = std::unique_ptr<SDL_IOStream, Stream_Closer>;

struct Surface_Destroyer {
    void operator()(SDL_Surface* surface) const { SDL_DestroySurface(surface); }
};
using Surface_Handle = std::unique_ptr<SDL_Surface, Surface_Destroyer>;

// More than the headers of a bitmap take.
constexpr Sint64 room_for_headers = 256;

// Growing by as much as the whole file, so that the bytes are moved only once.
Stream_Handle make_stream(Sint64 size) {
    Stream_Handle stream(SDL_IOFromDynamicMem());
    if (stream) {
        SDL_SetNumberProperty(SDL_GetIOProperties(stream.get()), SDL_PROP_IOSTREAM_DYNAMIC_CHUNKSIZE_NUMBER,
                              size);
    }
    return stream;
}

std::span<const std::uint8_t> bytes_of(SDL_IOStream* stream) {
    const auto* const memory = static_cast<const std::uint8_t*>(SDL_GetPointerProperty(
        SDL_GetIOProperties(stream), SDL_PROP_IOSTREAM_DYNAMIC_MEMORY_POINTER, nullptr));
    const Sint64 size = SDL_GetIOSize(stream);
    return memory == nullptr || size < 0
               ? std::span<const std::uint8_t>()
               : std::span<const std::uint8_t>(memory, static_cast<std::size_t>(size));
}

// Borrows the pixels. Colours lie in memory as the format says: blue, green, red, alpha.
Surface_Handle surface_of(const Tile& picture) {
    return Surface_Handle(SDL_CreateSurfaceFrom(picture.width(), picture.height(), SDL_PIXELFORMAT_BGRA32,
                                                const_cast<Color*>(picture.pixels().data()),
                                                picture.width() * static_cast<int>(sizeof(Color))));
}

} // namespace

Tile export_picture(const Tileset& tileset) {
    const Size tile = tileset.tile_size();
    Tile picture(export_columns * tile.width, export_rows * tile.height);
    for (int i = 0; i < std::min(tileset.count(), exported_tiles); ++i) {
        tileset.tile_at(i).paste_into(picture, i % export_columns * tile.width,
                                      i / export_columns * tile.height);
    }
    return picture;
}

// In memory first: the library goes back to fill in sizes, which a file that is written in one go cannot.
bool save_bitmap(const Tile& picture, const std::string& path) {
    const Surface_Handle surface = surface_of(picture);
    const Stream_Handle stream =
        make_stream(Sint64{picture.pixel_count()} * static_cast<Sint64>(sizeof(Color)) + room_for_headers);
    if (!surface || !stream || !SDL_SaveBMP_IO(surface.get(), stream.get(), false)) {
        return false;
    }
    Atomic_File file(path);
    file.write(bytes_of(stream.get()));
    return file.commit();
}

} // namespace quadrelle
