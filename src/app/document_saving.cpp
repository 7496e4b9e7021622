#include "app/document_saving.h"

#include "base/file_names.h"
#include "base/file_stamp.h"
#include "base/platform_files.h"
#include "map/map_file.h"
#include "tileset/history_file.h"
#include "tileset/previous_copy.h"
#include "ui/button_dialog_item.h"
#include "ui/dialogs.h"

namespace quadrelle {

namespace {

// The map file that saving replaces or removes; empty where it does neither.
std::string map_file_to_save(const Tileset_Document& document) {
    const std::string path = map_path(document.file_name());
    return document.map() != nullptr || document.map_file() == path ? path : "";
}

// Which files of the document others have written to.
std::string changed_files(const Tileset_Document& document) {
    const std::string& path = document.file_name();
    const std::optional<Own_File>& own = document.own_file();
    const bool is_set_changed = own && is_changed(path, own->stamp);
    const bool is_map_changed = document.map_file() == map_path(path) && document.map_stamp() &&
                                is_changed(document.map_file(), *document.map_stamp());
    const std::string map = is_map_changed ? file_part(document.map_file()) : "";
    if (!is_set_changed) {
        return map + (is_map_changed ? " has" : "");
    }
    return file_part(path) + (is_map_changed ? " and " + map + " have" : " has");
}

} // namespace

bool confirms_changes_of_others(const Tileset_Document& document) {
    const std::string changed = changed_files(document);
    return changed.empty() || dialogs->ask("Save",
                                           changed + " been written by another program or from another tab\r"
                                                     "since it was loaded or saved here. Overwrite that?",
                                           Button_Type::overwrite);
}

Saving save_keeping_previous(Tileset_Document& document) {
    const bool has_surplus = document.own_file() && document.own_file()->surplus > 0;
    Previous_Copy previous(document.file_name(), map_file_to_save(document),
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
    return {outcome, are_tiles_saved && previous.keep()};
}

} // namespace quadrelle
