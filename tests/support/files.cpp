#include "tests/support/files.h"

#include "base/data_directory.h"
#include "base/platform_files.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quadrelle::testing {

Temporary_Folder::Temporary_Folder()
    : folder_(std::filesystem::temp_directory_path() /
              ("quadrelle-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directory(folder_);
}

Temporary_Folder::~Temporary_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string Temporary_Folder::path(const std::string& name) const {
    const std::u8string text = (folder_ / native(name)).u8string();
    return {text.begin(), text.end()};
}

int Temporary_Folder::entry_count() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_), {}));
}

Program_Folder::Program_Folder() : home_(current_directory()) {
    std::filesystem::create_directory(native_path() / "data");
    std::filesystem::copy_file(source_folder() / "data" / "pool.bmp", native_path() / "data" / "pool.bmp");
    EXPECT_TRUE(change_directory(path("")));
}

Program_Folder::~Program_Folder() {
    data_directory().leave();
    EXPECT_TRUE(change_directory(home_));
}

std::filesystem::path native(const std::string& path) {
    return {std::u8string(path.begin(), path.end())};
}

void store(const std::string& path, const Bytes& bytes) {
    store_text(path, {bytes.begin(), bytes.end()});
}

void store_text(const std::string& path, const std::string& text) {
    std::ofstream(native(path), std::ios::binary) << text;
}

Bytes stored(const std::string& path) {
    const std::string text = stored_text(path);
    return {text.begin(), text.end()};
}

std::string stored_text(const std::string& path) {
    std::ifstream file(native(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string record_bytes(const std::string& text) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>((text.size() + 1) >> shift & 255U);
    }
    return bytes + text + ':';
}

void Old_File::expect_untouched() const {
    EXPECT_EQ(stored(path), bytes);
    EXPECT_EQ(folder.entry_count(), 1);
}

namespace {

int operations_done = 0;
int failing_operation = 0;
int second_failing_operation = 0;

bool is_failing_operation() {
    const int operation = operations_done++;
    return operation == failing_operation || operation == second_failing_operation;
}

} // namespace

Fault::Fault(int operation, Kind kind, int second) {
    operations_done = 0;
    failing_operation = operation;
    second_failing_operation = second;
    if (kind == Kind::failure) {
        set_file_fault_hook(is_failing_operation);
    } else {
        set_file_fault_hook([] { return is_failing_operation() && std::raise(SIGTERM) == 0; });
    }
}

Fault::~Fault() {
    set_file_fault_hook(nullptr);
}

bool Fault::is_reached() {
    return operations_done > failing_operation;
}

void send_output_alone_to_standard_error() {
#ifdef _WIN32
    _dup2(_fileno(stderr), _fileno(stdout));
    _dup2(_open("NUL", _O_WRONLY), _fileno(stderr));
#else
    dup2(fileno(stderr), fileno(stdout));
    dup2(open("/dev/null", O_WRONLY), fileno(stderr));
#endif
}

} // namespace quadrelle::testing
