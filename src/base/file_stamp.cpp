#include "base/file_stamp.h"

#include "base/fingerprint.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

namespace {

constexpr std::size_t block_size = std::size_t{1} << 20U;

std::optional<std::uint64_t> fingerprint_of_file(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    if (!file) {
        return std::nullopt;
    }
    Fingerprint sum;
    std::vector<std::uint8_t> block(block_size);
    while (const std::size_t size = read_bytes(file.get(), block)) {
        sum.add(std::span(block).first(size));
    }
    return sum.value();
}

} // namespace

bool is_changed(const std::string& path, const File_Stamp& stamp) {
    const std::optional<File_State> now = file_state(path);
    if (!now || *now == stamp.state) {
        return false;
    }
    return now->size != stamp.state.size || fingerprint_of_file(path) != stamp.fingerprint;
}

} // namespace quadrelle
