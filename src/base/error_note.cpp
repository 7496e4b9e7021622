#include "base/error_note.h"

#include "base/file_names.h"
#include "base/platform_files.h"

#include <cstdint>

namespace quadrelle {

namespace {

std::string& note_path() {
    static std::string path;
    return path;
}

} // namespace

void keep_error_note_in(const std::string& folder) {
    note_path() = joined_path(folder, error_note_name);
}

void write_error_note(std::string_view text) {
    const File_Handle file = note_path().empty() ? nullptr : open_file(note_path(), File_Mode::write);
    if (file) {
        std::fwrite(text.data(), 1, text.size(), file.get());
    }
}

std::string take_error_note() {
    constexpr std::size_t most = 4096; // somebody else may have written it
    std::string text(most, '\0');
    {
        const File_Handle file = open_file(note_path(), File_Mode::read);
        text.resize(file ? std::fread(text.data(), 1, text.size(), file.get()) : 0);
    }
    return remove_file(note_path()) ? text : std::string();
}

} // namespace quadrelle
