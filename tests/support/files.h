#pragma once

// Folders and files of a test, out of the way of everything else, and the check of a fatal error.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quadrelle::testing {

using Bytes = std::vector<std::uint8_t>;

// Where the tests find the project's own files and the program that was built beside them.
[[nodiscard]] std::filesystem::path source_folder();
[[nodiscard]] std::filesystem::path built_program();

// A folder that a test may fill; it goes away with the object.
class Temporary_Folder {
public:
    Temporary_Folder();
    Temporary_Folder(const Temporary_Folder&) = delete;
    Temporary_Folder& operator=(const Temporary_Folder&) = delete;
    ~Temporary_Folder();

    // UTF-8, as the program's own functions take it.
    [[nodiscard]] std::string path(const std::string& name) const;
    [[nodiscard]] const std::filesystem::path& native_path() const { return folder_; }
    [[nodiscard]] int entry_count() const;

private:
    std::filesystem::path folder_;
};

// A folder with "data/pool.bmp", in which the test runs, so that it writes no file elsewhere.
class Program_Folder : public Temporary_Folder {
public:
    Program_Folder();
    Program_Folder(const Program_Folder&) = delete;
    Program_Folder& operator=(const Program_Folder&) = delete;
    ~Program_Folder();

    [[nodiscard]] std::string data_path(const std::string& name) const { return path("data/" + name); }

private:
    std::string home_;
};

[[nodiscard]] std::filesystem::path native(const std::string& path);
void store(const std::string& path, const Bytes& bytes);
void store_text(const std::string& path, const std::string& text);
[[nodiscard]] Bytes stored(const std::string& path);
[[nodiscard]] std::string stored_text(const std::string& path);

// The text as a record file holds it: a length, the text, a colon.
[[nodiscard]] std::string record_bytes(const std::string& text);

// A folder in which one file is already there.
struct Old_File {
    Temporary_Folder folder;
    std::string path = folder.path("old file");
    Bytes bytes = {'o', 'l', 'd'};

    Old_File() { store(path, bytes); }
    void expect_untouched() const;
};

// The file operation with that number, from 0, fails while this lives, or kills the process. A second one may
// fail too.
class Fault {
public:
    enum class Kind { failure, kill };
    explicit Fault(int operation, Kind kind = Kind::failure, int second = -1);
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;
    ~Fault();

    [[nodiscard]] static bool is_reached();
};

// Death tests read standard error: they get what goes to standard output, and nothing else.
void send_output_alone_to_standard_error();

} // namespace quadrelle::testing

// The statement ends the process with exit status 1 after printing exactly "Error: TEXT!".
#define EXPECT_FATAL(statement, text)                                                                        \
    EXPECT_EXIT(                                                                                             \
        {                                                                                                    \
            quadrelle::testing::send_output_alone_to_standard_error();                                       \
            statement;                                                                                       \
        },                                                                                                   \
        ::testing::ExitedWithCode(1), ::testing::Eq("Error: " + std::string(text) + "!\n"))
