#include "base/data_directory.h"

#include "base/platform_files.h"

#include <array>

namespace quadrelle {

namespace {

constexpr std::array<const char*, 2> folders = {"..", "data"};

} // namespace

bool Data_Directory::enter(int row) {
    if (row == index_ || row < outside || row > inside) {
        return false;
    }
    index_ = row;
    if (row == inside && held_ && held_->enter()) {
        return true;
    }
    return change_directory(folders[static_cast<std::size_t>(row)]);
}

void Data_Directory::leave() {
    if (index_ != outside) {
        enter(outside);
    }
}

// The first one has the folder itself, the others a file each.
void Data_Directory::claim() {
    constexpr int most_programs = 100;
    const std::string folder = current_directory();
    lock_ = File_Lock::of_folder(folder);
    program_number_ = 1;
    while (lock_->is_held_elsewhere() && program_number_ < most_programs) {
        ++program_number_;
        lock_ = std::make_unique<File_Lock>(folder + path_separator + "program" +
                                            std::to_string(program_number_) + ".lock");
    }
}

void Data_Directory::hold() {
    held_ = std::make_unique<Held_Folder>();
}

std::string Data_Directory::path(const std::string& file_name) const {
    if (index_ == inside) {
        return file_name;
    }
    if (const std::string held = held_ ? held_->path() : std::string(); !held.empty()) {
        return held + path_separator + file_name;
    }
    return current_directory() + path_separator + folders[inside] + path_separator + file_name;
}

Data_Directory& data_directory() {
    static Data_Directory directory;
    return directory;
}

} // namespace quadrelle
