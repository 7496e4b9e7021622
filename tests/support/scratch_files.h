#pragma once

// Files and fatal errors of a test, out of the way of everything else.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace quadrelle::test {

// An own folder in the system's temporary one, removed at the end.
class Scratch_Folder {
public:
    Scratch_Folder()
        : path_(std::filesystem::temp_directory_path() /
                ("quadrelle_" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(path_);
    }
    ~Scratch_Folder() { std::filesystem::remove_all(path_); }
    Scratch_Folder(const Scratch_Folder&) = delete;
    Scratch_Folder& operator=(const Scratch_Folder&) = delete;

    [[nodiscard]] std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

inline void put_bytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

[[nodiscard]] inline std::string bytes_of_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The text as a record file holds it: a length, the text, a colon.
[[nodiscard]] inline std::string record_bytes(const std::string& text) {
    const std::size_t length = text.size() + 1;
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(length >> shift & 255U);
    }
    return bytes + text + ':';
}

// What the action prints to standard output while it ends its process with status 1, as is checked.
template <typename Action>
[[nodiscard]] std::string fatal_output(Action action) {
    const Scratch_Folder folder;
    const std::string path = folder.file("output");
    const auto redirected = [&] {
        if (std::freopen(path.c_str(), "w", stdout) != nullptr) {
            action();
        }
    };
    EXPECT_EXIT(redirected(), ::testing::ExitedWithCode(1), "");
    return bytes_of_file(path);
}

} // namespace quadrelle::test
