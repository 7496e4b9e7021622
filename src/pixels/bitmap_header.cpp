#include "pixels/bitmap_header.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

// Where things stand in a file. The second header begins with its own length.
constexpr std::size_t pixels_offset = 10;
constexpr std::size_t second_header = 14;
constexpr std::size_t old_header_length = 12;
constexpr std::size_t header_length = 40;
// Of the kind that may leave out what is 0 at its end.
constexpr std::size_t least_header_length = 16;
constexpr std::size_t length_with_alpha = 56;
constexpr std::size_t masks_offset = second_header + header_length;

enum Packing : std::uint32_t { plain = 0, runs_of_8 = 1, runs_of_4 = 2, masked = 3, masked_with_alpha = 6 };

class Header_Reader {
public:
    Header_Reader(Picture_Bytes bytes, Bitmap_Header& header)
        : bytes_(bytes), header_(header),
          length_(bytes.size() < second_header + 4 ? 0 : number_at(bytes, second_header, 4)) {}

    [[nodiscard]] Picture_Fault read(int largest_edge) {
        if (!is_a_known_length() || bytes_[0] != 'B' || bytes_[1] != 'M') {
            return Picture_Fault::broken;
        }
        const Picture_Fault fault = read_size(largest_edge);
        if (fault != Picture_Fault::none) {
            return fault;
        }
        header_.pixels_at = number_at(bytes_, pixels_offset, 4);
        const bool is_whole = header_.pixels_at <= bytes_.size() && read_packing() &&
                              (header_.has_palette() ? read_palette() : read_masks());
        return is_whole ? Picture_Fault::none : Picture_Fault::broken;
    }

private:
    [[nodiscard]] bool is_old() const { return length_ == old_header_length; }
    [[nodiscard]] bool is_a_known_length() const {
        return (is_old() || length_ >= least_header_length) && bytes_.size() >= second_header &&
               length_ <= bytes_.size() - second_header;
    }

    // Of four bytes, 0 where the header ends before it does.
    [[nodiscard]] std::uint32_t number_in_header(std::size_t offset) const {
        return offset + 4 <= second_header + length_ ? number_at(bytes_, offset, 4) : 0;
    }

    Picture_Fault read_size(int largest_edge) {
        const auto signed_at = [&](std::size_t offset) {
            return std::int64_t{static_cast<std::int32_t>(number_at(bytes_, offset, 4))};
        };
        const std::int64_t width = is_old() ? number_at(bytes_, 18, 2) : signed_at(18);
        const std::int64_t height = is_old() ? number_at(bytes_, 20, 2) : signed_at(22);
        const Picture_Fault fault = fault_of_size(width, std::abs(height), largest_edge);
        if (fault == Picture_Fault::none) {
            header_.size = {static_cast<int>(width), static_cast<int>(std::abs(height))};
            header_.is_from_top = height < 0;
        }
        return fault;
    }

    bool read_packing() {
        header_.depth = static_cast<int>(number_at(bytes_, is_old() ? 24 : 28, 2));
        packing_ = is_old() ? plain : number_in_header(30);
        header_.has_runs = packing_ == runs_of_8 || packing_ == runs_of_4;
        constexpr std::array depths{1, 2, 4, 8, 16, 24, 32};
        switch (packing_) {
        case plain: return std::ranges::count(depths, header_.depth) > 0;
        case runs_of_8: return header_.depth == 8;
        case runs_of_4: return header_.depth == 4;
        case masked:
        case masked_with_alpha: return header_.depth == 16 || header_.depth == 32;
        default: return false;
        }
    }

    bool read_palette() {
        constexpr std::size_t used_offset = 46;
        const std::size_t entry = is_old() ? 3 : 4;
        const std::size_t start = second_header + length_;
        const std::size_t all = std::size_t{1} << static_cast<unsigned>(header_.depth);
        const std::size_t used = is_old() ? 0 : number_in_header(used_offset);
        const std::size_t count = used == 0 || used > all ? all : used;
        if (count * entry > bytes_.size() - start) {
            return false;
        }
        for (std::size_t i = 0; i < count; ++i) {
            const Picture_Bytes color = bytes_.subspan(start + i * entry, 3);
            header_.palette.at(i) = Color(color[2], color[1], color[0]);
        }
        return true;
    }

    bool read_masks() {
        if (packing_ == plain) {
            const bool is_short = header_.depth == 16;
            header_.masks = is_short ? std::array<std::uint32_t, 4>{0x7c00, 0x3e0, 0x1f, 0}
                                     : std::array<std::uint32_t, 4>{0xff0000, 0xff00, 0xff, 0};
            header_.may_lack_alpha = header_.depth == 32;
            header_.masks[3] = header_.may_lack_alpha ? 0xff000000 : 0;
            return true;
        }
        const bool has_alpha = packing_ == masked_with_alpha || length_ >= length_with_alpha;
        const std::size_t count = has_alpha ? 4 : 3;
        if (masks_offset + 4 * count > bytes_.size()) {
            return false;
        }
        for (std::size_t i = 0; i < count; ++i) {
            header_.masks.at(i) = number_at(bytes_, masks_offset + 4 * i, 4);
        }
        return true;
    }

    Picture_Bytes bytes_;
    Bitmap_Header& header_;
    std::size_t length_;
    std::uint32_t packing_ = plain;
};

} // namespace

Picture_Fault read_bitmap_header(Picture_Bytes bytes, int largest_edge, Bitmap_Header& header) {
    return Header_Reader(bytes, header).read(largest_edge);
}

} // namespace quadrelle
