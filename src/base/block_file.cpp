#include "base/block_file.h"

#include "base/atomic_file.h"
#include "base/platform_files.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

Block_File::Block_File(std::string path) : path_(std::move(path)) {}

bool Block_File::open_read() {
    if (!file_) {
        file_ = open_file(path_, File_Mode::read);
    }
    return is_open();
}

bool Block_File::open_write() {
    if (!file_) {
        file_ = open_file(path_, File_Mode::write);
    }
    return is_open();
}

bool Block_File::try_read_block(std::span<std::uint8_t> buffer) {
    return file_ != nullptr && read_bytes(file_.get(), buffer) == buffer.size();
}

void Block_File::read_block(std::span<std::uint8_t> buffer, Remedy remedy) {
    if (!try_read_block(buffer)) {
        fatal("Unable to load block from ", path_, {path_, remedy});
    }
}

bool Block_File::write_block(std::span<const std::uint8_t> block) {
    return file_ != nullptr && write_bytes(file_.get(), block);
}

std::int64_t Block_File::remaining() const {
    if (!file_) {
        return 0;
    }
    return std::max<std::int64_t>(0, file_size(file_.get()) - std::ftell(file_.get()));
}

bool Block_File::close() {
    return !file_ || close_file(std::exchange(file_, nullptr));
}

std::int64_t write_file(const std::string& path, std::span<const std::uint8_t> bytes) {
    Atomic_File file(path);
    file.write(bytes);
    return file.commit() ? static_cast<std::int64_t>(bytes.size()) : -1;
}

bool read_file(const std::string& path, std::span<std::uint8_t> buffer) {
    Block_File file(path);
    if (!file.open_read()) {
        return false;
    }
    file.read_block(buffer);
    return true;
}

void read_file_or_die(const std::string& path, std::span<std::uint8_t> buffer) {
    if (!read_file(path, buffer)) {
        fatal("Unable to load file ", path, {path, Remedy::put_copy});
    }
}

} // namespace quadrelle
