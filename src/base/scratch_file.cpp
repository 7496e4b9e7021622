#include "base/scratch_file.h"

#include "base/platform_files.h"

namespace quadrelle {

std::optional<std::int64_t> Scratch_File::put(std::span<const std::uint8_t> bytes) {
    const auto count = static_cast<std::int64_t>(bytes.size());
    if (!file_) {
        file_ = open_scratch_file();
    }
    if (!file_ || end_ + count > most_bytes ||
        std::fseek(file_.get(), static_cast<long>(end_), SEEK_SET) != 0 || !write_bytes(file_.get(), bytes) ||
        std::fflush(file_.get()) != 0) {
        return std::nullopt;
    }
    end_ += count;
    return end_ - count;
}

bool Scratch_File::get(std::int64_t place, std::span<std::uint8_t> buffer) {
    return file_ && std::fseek(file_.get(), static_cast<long>(place), SEEK_SET) == 0 &&
           read_bytes(file_.get(), buffer) == buffer.size();
}

} // namespace quadrelle
