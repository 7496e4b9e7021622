#pragma once

// Bytes of a file, and the file.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

namespace quadrelle {

using Bytes = std::vector<std::uint8_t>;

// The lowest byte first.
inline void put_number(Bytes& bytes, std::size_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

// Answers whether all of it could be written.
inline bool write_bytes(const Bytes& bytes, const std::filesystem::path& path) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

} // namespace quadrelle
