#include "app/document_saving.h"

#include "base/file_names.h"
#include "base/file_stamp.h"
#include "base/platform_files.h"
#include "tileset/history_file.h"
#include "tileset/previous_copy.h"
#include "ui/button_dialog_item.h"
#include "ui/dialogs.h"

namespace quadrelle {

bool confirms_changes_of_others(const Tileset_Document& document) {
    const std::string& path = document.file_name();
    const std::optional<Own_File>& own = document.own_file();
    return !own || !is_changed(path, own->stamp) ||
           dialogs->ask("Save",
                        file_part(path) + " has been written by another program or from another tab\r"
                                          "since it was loaded or saved here. Overwrite that?",
                        Button_Type::overwrite);
}

Saving save_keeping_previous(Tileset_Document& document) {
    const bool has_surplus = document.own_file() && document.own_file()->surplus > 0;
    Previous_Copy previous(document.file_name(),
                           has_surplus ? Previous_Copy::Place::apart : Previous_Copy::Place::usual);
    if (has_surplus && !previous.is_safe()) {
        set_file_fault(
            "The file holds more than its tiles, and no copy of it can be kept in the folder data");
        return {};
    }
    const Save_Outcome outcome = save_document(document);
    const bool are_tiles_saved = outcome == Save_Outcome::saved || outcome == Save_Outcome::map_failed;
    if (are_tiles_saved) {
        keep_history(document);
    }
    return {outcome, are_tiles_saved && previous.is_safe() && previous.keep()};
}

} // namespace quadrelle
