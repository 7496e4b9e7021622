// PNG, by libpng. It reports an error by a long jump, which may leave no C++ object behind: each call that
// can fail is made by `attempt_png`.

#include "pixels/picture_formats.h"
#include "pixels/png_attempt.h"

#include <png.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace quadrelle {

namespace {

void take_bytes(png_structp png, png_bytep target, std::size_t length) {
    auto& rest = *static_cast<Picture_Bytes*>(png_get_io_ptr(png));
    if (length > rest.size()) {
        png_error(png, "cut off");
    }
    std::copy_n(rest.data(), length, target);
    rest = rest.subspan(length);
}

[[noreturn]] void give_up(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*message*/) {}

class Png_Reader {
public:
    explicit Png_Reader(Picture_Bytes bytes)
        : rest_(bytes), png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, give_up, ignore)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    Png_Reader(const Png_Reader&) = delete;
    Png_Reader& operator=(const Png_Reader&) = delete;
    ~Png_Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }

    // These answer false, or without pixels, when libpng gave up.
    [[nodiscard]] bool read_header();
    [[nodiscard]] std::vector<Color> read_pixels();

    [[nodiscard]] png_uint_32 width() const { return png_get_image_width(png_, info_); }
    [[nodiscard]] png_uint_32 height() const { return png_get_image_height(png_, info_); }

private:
    void ask_for_colors();

    Picture_Bytes rest_;
    png_structp png_;
    png_infop info_;
};

bool Png_Reader::read_header() {
    return info_ != nullptr && attempt_png(png_, [this] {
               constexpr png_uint_32 any_size = std::numeric_limits<std::int32_t>::max();
               png_set_user_limits(png_, any_size, any_size);
               // Texts, profiles and the like are skipped: unpacked they may be as large as their writer
               // likes.
               png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
               png_set_read_fn(png_, &rest_, take_bytes);
               png_read_info(png_, info_);
           });
}

// Blue, green, red, alpha, whatever is stored. Gamma and colour profiles are left alone.
void Png_Reader::ask_for_colors() {
    constexpr png_uint_32 opaque = 0xff;
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_add_alpha(png_, opaque, PNG_FILLER_AFTER);
    png_set_bgr(png_);
}

std::vector<Color> Png_Reader::read_pixels() {
    int passes = 0;
    const bool can_begin = attempt_png(png_, [&] {
        ask_for_colors();
        passes = png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
    });
    const std::size_t row_length = width();
    if (!can_begin || png_get_rowbytes(png_, info_) != row_length * sizeof(Color)) {
        return {};
    }
    std::vector<Color> pixels;
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t y = 0; y < height(); ++y) {
            if (pass == 0) {
                pixels.resize((y + 1) * row_length);
            }
            auto* const row = reinterpret_cast<png_bytep>(&pixels[y * row_length]);
            if (!attempt_png(png_, [&] { png_read_row(png_, row, nullptr); })) {
                return {};
            }
        }
    }
    return pixels;
}

// Of libpng, which may keep memory of its own until it is released.
struct Png_Image {
    Png_Image() { image.version = PNG_IMAGE_VERSION; }
    Png_Image(const Png_Image&) = delete;
    Png_Image& operator=(const Png_Image&) = delete;
    ~Png_Image() { png_image_free(&image); }

    png_image image{};
};

} // namespace

Decoded_Picture decode_png(Picture_Bytes bytes, int largest_edge) {
    Png_Reader reader(bytes);
    if (!reader.read_header()) {
        return {std::nullopt, Picture_Fault::broken};
    }
    const Size size{static_cast<int>(reader.width()), static_cast<int>(reader.height())};
    Decoded_Picture result{std::nullopt, fault_of_size(size.width, size.height, largest_edge)};
    if (result.fault != Picture_Fault::none) {
        return result;
    }
    std::vector<Color> pixels = reader.read_pixels();
    if (pixels.empty()) {
        return {std::nullopt, Picture_Fault::broken};
    }
    result.picture.emplace(size, std::move(pixels));
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
