#pragma once

// Choosing a file to open or to save to: in the system's dialog, or in the program's own where there is none.

#include "views/file_request.h"

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
    import_palette,
    export_gpl,
    export_hex,
    export_png_palette,
    export_png,
    import_map,
    export_map,
    count
};

// Shows the dialog and waits for its end. Returns true with the chosen path (UTF-8, absolute, with the
// kind's extension where one is forced); false, with `path` unchanged, when it was cancelled or failed. A
// failure is told to the user here. To save, the program's own dialog proposes the `path` that it is given.
[[nodiscard]] bool choose_file(File_Dialog_Kind kind, std::string& path);

// Asks with the program's own dialog, for whoever wants no other one.
[[nodiscard]] File_Answer ask_own_dialog(File_Dialog_Kind kind, const std::string& proposed);

// Puts a function into the place of all dialogs, for tests; an empty one takes them back.
using File_Chooser = std::function<File_Answer(File_Dialog_Kind, const std::string& proposed)>;
void set_file_chooser(File_Chooser chooser);

} // namespace quadrelle
