#pragma once

// The system's own dialogs for choosing a file to open or to save to.

#include <cstdint>
#include <functional>
#include <string>

namespace quadrelle {

enum class File_Dialog_Kind : std::int32_t {
    load_tileset,
    save_tileset,
    open_any,
    open_any_second,
    import_bitmap,
    export_bitmap,
    count
};

// Shows the dialog and waits for its end. True with the chosen path (UTF-8, absolute, with the kind's
// extension where one is forced); false, with `path` unchanged, when it was cancelled or failed. A failure is
// told to the user here.
[[nodiscard]] bool choose_file(File_Dialog_Kind kind, std::string& path);

// The path with its extension, if any, replaced.
[[nodiscard]] std::string with_extension(const std::string& path, const std::string& extension);

enum class File_Answer_State : int { pending = -1, chosen = 0, failed = 1, cancelled = 2 };

struct File_Answer {
    File_Answer_State state = File_Answer_State::pending;
    std::string path;
};

// Stands in for the system's dialogs, for tests; an empty function takes them back.
using File_Chooser = std::function<File_Answer(File_Dialog_Kind)>;
void set_file_chooser(File_Chooser chooser);

} // namespace quadrelle
