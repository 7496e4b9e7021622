#pragma once

// A folder that a test may fill; it goes away with the object.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {

using Bytes = std::vector<std::uint8_t>;

class Temporary_Folder {
public:
    Temporary_Folder() {
        folder_ = std::filesystem::temp_directory_path() /
                  ("quadrelle-test-" + std::to_string(std::random_device()()));
        std::filesystem::create_directory(folder_);
    }
    Temporary_Folder(const Temporary_Folder&) = delete;
    Temporary_Folder& operator=(const Temporary_Folder&) = delete;
    ~Temporary_Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    // UTF-8, as the program's own functions take it.
    std::string path(const std::string& name) const {
        const std::u8string text = (folder_ / std::u8string(name.begin(), name.end())).u8string();
        return {text.begin(), text.end()};
    }
    const std::filesystem::path& native_path() const { return folder_; }
    int entry_count() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_), {}));
    }

private:
    std::filesystem::path folder_;
};

inline std::filesystem::path native(const std::string& path) {
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

inline void store(const std::string& path, const Bytes& bytes) {
    std::ofstream(native(path), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline Bytes stored(const std::string& path) {
    std::ifstream file(native(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace quadrelle::testing
