#include "pixels/picture_formats.h"

#include "base/platform_files.h"

#include <algorithm>

namespace quadrelle {

namespace {

// What the largest picture takes with 16 bits a channel, packed badly, and some room for what is beside it.
constexpr std::int64_t most_file_bytes =
    (std::int64_t{largest_file_edge} * largest_file_edge * 8) / 100 * 101;

const Picture_Format* format_of(Picture_Bytes start) {
    const auto* const found = std::ranges::find_if(picture_formats, [&](const Picture_Format& format) {
        const auto is_byte = [](char letter, std::uint8_t byte) {
            return static_cast<std::uint8_t>(letter) == byte;
        };
        return start.size() >= format.start.size() &&
               std::ranges::equal(format.start, start.first(format.start.size()), is_byte);
    });
    return found == picture_formats.end() ? nullptr : found;
}

Decoded_Picture failed(Picture_Fault fault) {
    return {std::nullopt, fault};
}

} // namespace

Picture_Fault fault_of_size(std::int64_t width, std::int64_t height, int largest_edge) {
    if (width > largest_edge || height > largest_edge) {
        return Picture_Fault::too_large;
    }
    return width > 0 && height > 0 ? Picture_Fault::none : Picture_Fault::broken;
}

Decoded_Picture read_picture(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0) {
        return failed(Picture_Fault::unreadable);
    }
    std::vector<std::uint8_t> bytes(picture_formats.front().start.size());
    bytes.resize(read_bytes(file.get(), bytes));
    const Picture_Format* const format = format_of(bytes);
    if (format == nullptr || size > most_file_bytes) {
        return failed(format == nullptr ? Picture_Fault::unknown : Picture_Fault::too_large);
    }
    const std::size_t start = bytes.size();
    bytes.resize(static_cast<std::size_t>(size));
    const std::span<std::uint8_t> rest = std::span(bytes).subspan(start);
    return read_bytes(file.get(), rest) == rest.size() ? format->decode(bytes, largest_file_edge)
                                                       : failed(Picture_Fault::unreadable);
}

const char* text_of(Picture_Fault fault) {
    switch (fault) {
    case Picture_Fault::unreadable: return "The file cannot be read.";
    case Picture_Fault::unknown: return "The file is neither a PNG picture nor a bitmap.";
    case Picture_Fault::broken: return "The picture is damaged, or of a kind that is not known.";
    case Picture_Fault::too_large: return "The picture is larger than 8192 x 8192 pixels.";
    case Picture_Fault::none: break;
    }
    return "";
}

} // namespace quadrelle
