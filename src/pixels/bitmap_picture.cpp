// Windows and OS/2 bitmaps. They are written by SDL and read here, because SDL takes memory for what a header
// says.

#include "pixels/bitmap_header.h"
#include "pixels/picture_formats.h"

#include <SDL3/SDL_iostream.h>
#include <SDL3/SDL_surface.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace quadrelle {

namespace {

// A channel: its bits within a pixel, and what they mean.
class Channel {
public:
    explicit Channel(std::uint32_t mask) {
        constexpr int most_bits = 8;
        if (mask != 0) {
            const int bits = static_cast<int>(std::bit_width(mask)) - std::countr_zero(mask);
            shift_ = std::countr_zero(mask) + std::max(bits - most_bits, 0);
            most_ = (1U << static_cast<unsigned>(std::min(bits, most_bits))) - 1;
            for (std::uint32_t value = 0; value <= most_; ++value) {
                values_[value] = static_cast<std::uint8_t>((value * 255 + most_ / 2) / most_);
            }
        }
    }

    [[nodiscard]] std::uint8_t of(std::uint32_t pixel) const {
        return values_[pixel >> static_cast<unsigned>(shift_) & most_];
    }

private:
    int shift_ = 0;
    std::uint32_t most_ = 0;
    std::array<std::uint8_t, 256> values_{};
};

// The rows as they are shown. `row_at(y)` is where a row of the file goes to.
class Bitmap_Rows {
public:
    explicit Bitmap_Rows(const Bitmap_Header& header)
        : header_(header), pixels_(static_cast<std::size_t>(header.size.width) *
                                   static_cast<std::size_t>(header.size.height)) {
        std::ranges::fill(pixels_, header.palette[0]);
    }

    [[nodiscard]] std::span<Color> row_at(int y) {
        const auto width = static_cast<std::size_t>(header_.size.width);
        const int shown = header_.is_from_top ? y : header_.size.height - 1 - y;
        return std::span(pixels_).subspan(static_cast<std::size_t>(shown) * width, width);
    }
    void set(int x, int y, Color color) {
        if (x < header_.size.width && y < header_.size.height) {
            row_at(y)[static_cast<std::size_t>(x)] = color;
        }
    }
    [[nodiscard]] std::vector<Color> take() { return std::move(pixels_); }

private:
    const Bitmap_Header& header_;
    std::vector<Color> pixels_;
};

std::uint8_t index_at(Picture_Bytes row, std::size_t x, std::size_t depth) {
    const std::size_t bit = x * depth;
    return static_cast<std::uint8_t>(row[bit / 8] >> (8 - depth - bit % 8) & ((1U << depth) - 1));
}

void read_indices(const Bitmap_Header& header, Picture_Bytes row, std::span<Color> target) {
    const auto depth = static_cast<std::size_t>(header.depth);
    for (std::size_t x = 0; x < target.size(); ++x) {
        target[x] = header.palette[index_at(row, x, depth)];
    }
}

class Color_Reader {
public:
    explicit Color_Reader(const Bitmap_Header& header)
        : bytes_(static_cast<std::size_t>(header.depth) / 8), red_(header.masks[0]), green_(header.masks[1]),
          blue_(header.masks[2]), alpha_(header.masks[3]), has_alpha_(header.masks[3] != 0) {}

    void read(Picture_Bytes row, std::span<Color> target) const {
        for (std::size_t x = 0; x < target.size(); ++x) {
            const std::uint32_t pixel = number_at(row, x * bytes_, bytes_);
            target[x] =
                Color(red_.of(pixel), green_.of(pixel), blue_.of(pixel), has_alpha_ ? alpha_.of(pixel) : 255);
        }
    }

private:
    std::size_t bytes_;
    Channel red_, green_, blue_, alpha_;
    bool has_alpha_;
};

// Programs that know no alpha leave the fourth byte at 0, which then means nothing.
void drop_unused_alpha(std::vector<Color>& pixels) {
    if (std::ranges::all_of(pixels, [](Color pixel) { return pixel.a == 0; })) {
        std::ranges::for_each(pixels, [](Color& pixel) { pixel.a = 255; });
    }
}

// Without pixels when the data is too short.
std::vector<Color> read_rows(const Bitmap_Header& header, Picture_Bytes data) {
    constexpr std::size_t word_bits = 32;
    const std::size_t bits =
        static_cast<std::size_t>(header.size.width) * static_cast<std::size_t>(header.depth);
    const std::size_t row_bytes = (bits + word_bits - 1) / word_bits * 4;
    if (data.size() / row_bytes < static_cast<std::size_t>(header.size.height)) {
        return {};
    }
    Bitmap_Rows rows(header);
    const Color_Reader colors(header);
    for (int y = 0; y < header.size.height; ++y) {
        const Picture_Bytes row = data.subspan(static_cast<std::size_t>(y) * row_bytes, row_bytes);
        if (header.has_palette()) {
            read_indices(header, row, rows.row_at(y));
        } else {
            colors.read(row, rows.row_at(y));
        }
    }
    std::vector<Color> pixels = rows.take();
    if (header.may_lack_alpha) {
        drop_unused_alpha(pixels);
    }
    return pixels;
}

// Runs of one or two colours, and stretches of pixels that are stored one by one.
class Run_Reader {
public:
    Run_Reader(const Bitmap_Header& header, Picture_Bytes data)
        : header_(header), rest_(data), rows_(header), depth_(static_cast<std::size_t>(header.depth)) {}

    // Without pixels when there is no end.
    [[nodiscard]] std::vector<Color> read() {
        while (rest_.size() >= 2 && !is_over_) {
            const std::uint8_t count = rest_[0];
            const std::uint8_t value = rest_[1];
            rest_ = rest_.subspan(2);
            if (count > 0) {
                repeat(count, value);
            } else {
                escape(value);
            }
        }
        return is_over_ || is_complete() ? rows_.take() : std::vector<Color>{};
    }

private:
    // Not every program says where the last row ends.
    [[nodiscard]] bool is_complete() const {
        return y_ >= header_.size.height || (y_ == header_.size.height - 1 && x_ == header_.size.width);
    }
    // In four bits, the two halves of the value take turns.
    void repeat(int count, std::uint8_t value) {
        const std::array pair{value};
        for (int i = 0; i < count; ++i) {
            plot(index_at(pair, depth_ == 4 ? static_cast<std::size_t>(i % 2) : 0, depth_));
        }
    }

    void escape(std::uint8_t code) {
        constexpr std::uint8_t end_of_row = 0;
        constexpr std::uint8_t end_of_picture = 1;
        constexpr std::uint8_t jump = 2;
        if (code == end_of_row) {
            x_ = 0;
            ++y_;
        } else if (code == end_of_picture) {
            is_over_ = true;
        } else if (code == jump && rest_.size() >= 2) {
            x_ = std::min(x_ + rest_[0], header_.size.width);
            y_ = std::min(y_ + rest_[1], header_.size.height);
            rest_ = rest_.subspan(2);
        } else {
            copy(code);
        }
    }

    // They fill whole words of two bytes.
    void copy(std::size_t count) {
        const std::size_t length = (count * depth_ + 15) / 16 * 2;
        if (length > rest_.size()) {
            rest_ = {};
            return;
        }
        for (std::size_t i = 0; i < count; ++i) {
            plot(index_at(rest_, i, depth_));
        }
        rest_ = rest_.subspan(length);
    }

    void plot(std::uint8_t index) {
        rows_.set(x_, y_, header_.palette[index]);
        x_ = std::min(x_ + 1, header_.size.width);
    }

    const Bitmap_Header& header_;
    Picture_Bytes rest_;
    Bitmap_Rows rows_;
    std::size_t depth_;
    int x_ = 0;
    int y_ = 0;
    bool is_over_ = false;
};

// Two bytes make a run of 255 pixels at most: a file that says more holds too little for them.
std::vector<Color> read_runs(const Bitmap_Header& header, Picture_Bytes data) {
    constexpr std::size_t most_pixels_a_byte = 128;
    const auto count =
        static_cast<std::size_t>(header.size.width) * static_cast<std::size_t>(header.size.height);
    return count / most_pixels_a_byte > data.size() ? std::vector<Color>{} : Run_Reader(header, data).read();
}

struct Surface_Deleter {
    void operator()(SDL_Surface* surface) const { SDL_DestroySurface(surface); }
};
using Surface_Handle = std::unique_ptr<SDL_Surface, Surface_Deleter>;

struct Stream_Deleter {
    void operator()(SDL_IOStream* stream) const { SDL_CloseIO(stream); }
};
using Stream_Handle = std::unique_ptr<SDL_IOStream, Stream_Deleter>;

// Null when that failed.
Surface_Handle surface_of(const Tile& picture) {
    constexpr SDL_PixelFormat tile_format = SDL_PIXELFORMAT_BGRA32;
    const auto [width, height] = picture.size();
    Surface_Handle surface(SDL_CreateSurface(width, height, tile_format));
    const int pitch = width * static_cast<int>(sizeof(Color));
    const bool is_copied = surface && SDL_ConvertPixels(width, height, tile_format, picture.pixels().data(),
                                                        pitch, tile_format, surface->pixels, surface->pitch);
    return is_copied ? std::move(surface) : nullptr;
}

} // namespace

Decoded_Picture decode_bitmap(Picture_Bytes bytes, int largest_edge) {
    Bitmap_Header header;
    const Picture_Fault fault = read_bitmap_header(bytes, largest_edge, header);
    if (fault != Picture_Fault::none) {
        return {std::nullopt, fault};
    }
    const Picture_Bytes data = bytes.subspan(header.pixels_at);
    std::vector<Color> pixels = header.has_runs ? read_runs(header, data) : read_rows(header, data);
    if (pixels.empty()) {
        return {std::nullopt, Picture_Fault::broken};
    }
    return {Tile(header.size, std::move(pixels)), Picture_Fault::none};
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

} // namespace quadrelle
