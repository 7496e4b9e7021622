#include "pixels/picture_rows.h"

#include "base/atomic_file.h"
#include "pixels/png_attempt.h"

#include <png.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace quadrelle {

namespace {

constexpr std::size_t block_size = std::size_t{1} << 20U;

// Collects what comes in small parts: each one that is written takes a while of its own.
class Block_Writer {
public:
    explicit Block_Writer(const std::string& path) : file_(path) { block_.reserve(block_size); }

    bool write(std::span<const std::uint8_t> bytes) {
        if (block_.size() + bytes.size() > block_size) {
            flush();
        }
        block_.insert(block_.end(), bytes.begin(), bytes.end());
        return is_good_;
    }
    [[nodiscard]] bool commit() {
        flush();
        return is_good_ && file_.commit();
    }

private:
    void flush() {
        is_good_ = is_good_ && file_.write(block_);
        block_.clear();
    }

    Atomic_File file_;
    std::vector<std::uint8_t> block_;
    bool is_good_ = true;
};

void give_bytes(png_structp png, png_bytep bytes, std::size_t length) {
    if (!static_cast<Block_Writer*>(png_get_io_ptr(png))->write({bytes, length})) {
        png_error(png, "not written");
    }
}

void flush_nothing(png_structp /*png*/) {}

[[noreturn]] void give_up(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*message*/) {}

// An error of libpng is a long jump, which may leave no C++ object behind: each call that can fail is one
// attempt.
class Png_Writer {
public:
    Png_Writer() : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, give_up, ignore)) {
        info_ = png_ == nullptr ? nullptr : png_create_info_struct(png_);
    }
    Png_Writer(const Png_Writer&) = delete;
    Png_Writer& operator=(const Png_Writer&) = delete;
    ~Png_Writer() { png_destroy_write_struct(&png_, &info_); }

    [[nodiscard]] bool begin(Block_Writer& file, Size size) {
        // Few colours in short repeats: filters would hide them from the compression.
        constexpr int quick = 4;
        return info_ != nullptr && attempt_png(png_, [&] {
                   png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
                   png_set_write_fn(png_, &file, give_bytes, flush_nothing);
                   png_set_compression_level(png_, quick);
                   png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
                   png_set_IHDR(png_, info_, static_cast<png_uint_32>(size.width),
                                static_cast<png_uint_32>(size.height), 8, PNG_COLOR_TYPE_RGB_ALPHA,
                                PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
                   png_write_info(png_, info_);
                   png_set_bgr(png_);
               });
    }
    [[nodiscard]] bool write_row(std::span<const Color> row) {
        return attempt_png(png_, [&] { png_write_row(png_, reinterpret_cast<png_const_bytep>(row.data())); });
    }
    [[nodiscard]] bool end() {
        return attempt_png(png_, [&] { png_write_end(png_, info_); });
    }

private:
    png_structp png_;
    png_infop info_;
};

// The header that says which bits of a pixel are alpha; its colours are those of sRGB.
std::vector<std::uint8_t> bitmap_header(Size size) {
    constexpr std::uint32_t file_header = 14;
    constexpr std::uint32_t info_header = 108;
    constexpr std::uint32_t has_masks = 3;
    const auto width = static_cast<std::uint32_t>(size.width);
    const auto height = static_cast<std::uint32_t>(size.height);
    const std::uint32_t pixel_bytes = width * height * 4;
    std::vector<std::uint8_t> bytes{'B', 'M'};
    for (const std::uint32_t word : std::initializer_list<std::uint32_t>{
             file_header + info_header + pixel_bytes, 0, file_header + info_header, info_header, width,
             height, 32U << 16U | 1U, has_masks, pixel_bytes, 0, 0, 0, 0, 0x00ff0000, 0x0000ff00, 0x000000ff,
             0xff000000, 0x73524742}) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<std::uint8_t>(word >> shift));
        }
    }
    bytes.resize(file_header + info_header);
    return bytes;
}

} // namespace

bool write_png_rows(const std::string& path, Size size, const Picture_Rows& rows) {
    Block_Writer file(path);
    Png_Writer png;
    std::vector<Color> row(static_cast<std::size_t>(size.width));
    bool is_good = png.begin(file, size);
    for (int y = 0; y < size.height && is_good; ++y) {
        rows(y, row);
        is_good = png.write_row(row);
    }
    return is_good && png.end() && file.commit();
}

bool write_bitmap_rows(const std::string& path, Size size, const Picture_Rows& rows) {
    Block_Writer file(path);
    std::vector<Color> row(static_cast<std::size_t>(size.width));
    bool is_good = file.write(bitmap_header(size));
    for (int y = size.height - 1; y >= 0 && is_good; --y) {
        rows(y, row);
        is_good = file.write({reinterpret_cast<const std::uint8_t*>(row.data()), row.size() * sizeof(Color)});
    }
    return is_good && file.commit();
}

} // namespace quadrelle
