#include "app/documents.h"

#include "app/document_saving.h"
#include "base/debug_monitor.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "map/map_file.h"
#include "screen/screen.h"
#include "tileset/previous_copy.h"
#include "tools/options.h"
#include "ui/dialogs.h"
#include "views/ask_for_file.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

constexpr int last_untitled = 999;
constexpr Size default_tile_size{24, 24};

Tileset set_of_one_tile(Size tile_size) {
    Tileset tileset(tile_size);
    tileset.add_tile();
    return tileset;
}

constexpr std::string_view untitled_name = "untitled";

// Of another name -1.
int untitled_number(std::string_view name) {
    int number = -1;
    if (name.starts_with(untitled_name)) {
        name.remove_prefix(untitled_name.size());
        std::from_chars(name.data(), name.data() + name.size(), number);
    }
    return std::min(number, last_untitled);
}

std::unique_ptr<Tileset_Document> make_untitled(Tileset tileset, int number) {
    const std::string name = std::string(untitled_name) + std::to_string(number) + ".qdl";
    auto document = std::make_unique<Tileset_Document>(name, std::move(tileset));
    document->history().reset(document->tileset());
    return document;
}

std::string text_of_failure(Save_Outcome outcome, const std::string& map_name) {
    switch (outcome) {
    case Save_Outcome::map_refused: return "Unable to create " + map_name + " for the map. Nothing is saved.";
    case Save_Outcome::map_failed:
        return "The tiles are saved. Unable to create " + map_name + " for the map beside them.";
    default: return "Unable to create a save file in the destination device.";
    }
}

void tell_failure(Save_Outcome outcome, const std::string& path) {
    const std::string map = map_path(path);
    dialogs->file_message(text_of_failure(outcome, file_part(map)) + "\rCheck out write access properties.",
                          outcome == Save_Outcome::failed ? path : map);
}

// A map that is not shown as it was is never hidden.
std::string text_of_map(const Loaded_Document& loaded, const std::string& name) {
    switch (loaded.map) {
    case Found_Map::unreadable:
        return name + " beside the tiles is no map that can be read. It stays as it is.";
    case Found_Map::strange:
        return name + " beside the tiles was laid out with others, and is not shown. It stays as it is.";
    case Found_Map::other_tiles:
        return "The tiles are not all those that " + name +
               " was laid out with. Each place shows the tile\r"
               "that it had, wherever that is now. Places that are empty because it is gone: " +
               std::to_string(loaded.emptied) + ".";
    default: return "";
    }
}

} // namespace

Documents::Documents(std::function<void()> leaving, std::function<void()> current_changed)
    : leaving_(std::move(leaving)), current_changed_(std::move(current_changed)) {}

Documents::~Documents() = default;

bool Documents::has_unsaved() const {
    return std::ranges::any_of(documents_, [](const auto& document) { return document->is_modified(); });
}

bool Documents::is_untouched() const {
    return count() == 1 && !current().is_modified() && !current().is_named();
}

bool Documents::new_document(Size tile_size) {
    if (untitled_counter_ > last_untitled) {
        return false;
    }
    add(make_untitled(set_of_one_tile(tile_size), untitled_counter_++));
    return true;
}

bool Documents::add_unsaved(Tileset tileset) {
    if (untitled_counter_ > last_untitled) {
        return false;
    }
    std::unique_ptr<Tileset_Document> document = make_untitled(std::move(tileset), untitled_counter_++);
    document->mark_changed();
    add(std::move(document));
    return true;
}

void Documents::add_recovered(std::vector<std::unique_ptr<Tileset_Document>> documents) {
    const bool replaces_first = is_untouched() && !documents.empty();
    for (std::unique_ptr<Tileset_Document>& document : documents) {
        if (!document->is_named()) {
            untitled_counter_ = std::max(untitled_counter_, untitled_number(document->file_name()) + 1);
        }
        add(std::move(document));
    }
    if (replaces_first) {
        documents_.erase(documents_.begin());
        make_current(documents_.size() - 1);
    }
}

void Documents::add(std::unique_ptr<Tileset_Document> document) {
    if (count() > 0) {
        leaving_();
    }
    documents_.push_back(std::move(document));
    make_current(documents_.size() - 1);
}

void Documents::make_current(std::size_t index) {
    current_ = index;
    if (current().tileset().current_index() != 0) {
        current().tileset().select(0);
        current().strip().show_current();
    }
    refresh_titles();
    current_changed_();
}

void Documents::go_to_tile(int index) {
    leaving_();
    current().tileset().select(index);
}

void Documents::show_tile(int index) {
    current().tileset().select(index);
    current_changed_();
    current().strip().show_current();
}

void Documents::resize_current(Size tile_size) {
    leaving_();
    current().resize_tiles(tile_size);
    current().strip().show_current();
    current_changed_();
}

bool Documents::load_document(const std::string& path) {
    Loaded_Document loaded = quadrelle::load_document(path);
    if (!loaded.document) {
        return false;
    }
    trace("Loaded " + path + ", tiles: " + std::to_string(loaded.document->tileset().count()));
    const std::string note = text_of_map(loaded, file_part(map_path(path)));
    add(std::move(loaded.document));
    if (!note.empty()) {
        dialogs->message("Note", note);
    }
    return true;
}

std::optional<std::string> Documents::ask_where_to_save(Save_As save_as) const {
    const Kept_Files copies = previous_copies();
    const bool is_copy = copies.holds(current().file_name());
    if (save_as == Save_As::no && current().is_named() && !is_copy) {
        const std::string& path = current().file_name();
        const bool is_confirmed =
            confirms_save() && confirms_changes_of_others(current()) && confirms_map(path);
        return is_confirmed ? std::optional(path) : std::nullopt;
    }
    // What is kept of other files does not last.
    std::string path = is_copy ? copies.original_name(current().file_name()) : current().file_name();
    const bool is_chosen = choose_file(File_Dialog_Kind::save_tileset, path) && confirms_map(path);
    return is_chosen ? std::optional(path) : std::nullopt;
}

// There may be anything: other programs have files with that ending too.
bool Documents::confirms_map(const std::string& path) const {
    const std::string name = file_part(map_path(path));
    if (lies_beside_strange_map(current(), path)) {
        return dialogs->ask("Save", name + " there is the map of another set, and stays as it is.\r"
                                           "Save the tiles beside it all the same?");
    }
    return !replaces_strange_map(current(), path) ||
           dialogs->ask("Save", name + " is there already, and is not the map of this set.\r"
                                       "Replace it by the map?");
}

bool Documents::save_document(const std::string& path) {
    Tileset_Document& document = current();
    document.set_file(path);
    const Saving saving = save_keeping_previous(document);
    const Save_Outcome outcome = saving.outcome;
    const bool is_saved = outcome == Save_Outcome::saved;
    lacks_previous_copy_ = !saving.is_previous_kept;
    trace((is_saved ? "Saved " : "Could not save ") + path);
    if (is_saved) {
        document.clear_modified();
    }
    refresh_titles();
    tell_watcher();
    if (!is_saved) {
        tell_failure(outcome, path);
    }
    return is_saved;
}

std::string Documents::what_was_saved() const {
    return "Saved and verified: " + current().file_name() +
           (lacks_previous_copy_ ? "\rWhat it held before could not be kept in data/previous." : "");
}

bool Documents::confirms_save() const {
    return !options->is_ticked(Option::confirm_quick_save) ||
           dialogs->ask("Save", "Save over existing file?");
}

bool Documents::close_document() {
    if (current().is_modified() &&
        !dialogs->ask("Close", "Current tileset is not saved. Close it anyway?\r(Progress will be lost.)")) {
        return false;
    }
    if (documents_.size() == 1) {
        // There is always a set, also when all numbers are used up.
        if (!new_document(default_tile_size)) {
            add(make_untitled(set_of_one_tile(default_tile_size), last_untitled));
        }
        documents_.erase(documents_.begin());
        make_current(0);
        return true;
    }
    leaving_();
    documents_.erase(documents_.begin() + static_cast<std::ptrdiff_t>(current_));
    make_current(std::min(current_, documents_.size() - 1));
    return true;
}

void Documents::mark_changed() {
    if (current().mark_changed()) {
        refresh_titles();
    }
    tell_watcher();
}

void Documents::mark_unchanged() {
    current().clear_modified();
    refresh_titles();
    tell_watcher();
}

void Documents::tell_watcher() const {
    if (watcher_) {
        watcher_();
    }
}

void Documents::refresh_titles() {
    std::vector<std::string> paths;
    paths.reserve(documents_.size());
    for (const auto& document : documents_) {
        paths.push_back(document->file_name());
    }
    // A set that changes keeps its name, and to find what tells many names apart takes a while.
    if (paths != paths_) {
        names_ = short_names(paths);
        paths_ = std::move(paths);
    }
    std::vector<std::string> titles = names_;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        titles[i] += documents_[i]->change_mark();
    }
    tabs_.set_titles(titles, current_);
    screen->set_title(current().title());
}

void Documents::draw_tabs() const {
    tabs_.draw();
}

const Tileset_Document* Documents::document_at(Point point) const {
    const int tab = tabs_.tab_at(point);
    return tab < 0 ? nullptr : documents_.at(static_cast<std::size_t>(tab)).get();
}

bool Documents::go_to(std::size_t index) {
    if (index == current_) {
        return false;
    }
    leaving_();
    make_current(index);
    return true;
}

bool Documents::go_to_file(const std::string& path) {
    const std::optional<std::size_t> found = find_file(path);
    if (found) {
        go_to(*found);
    }
    return found.has_value();
}

bool Documents::is_open_twice() const {
    const std::optional<std::size_t> found = find_file(current().file_name());
    return found && *found != current_;
}

// The first one whose file that is, by whichever name.
std::optional<std::size_t> Documents::find_file(const std::string& path) const {
    const auto whole = [](const std::string& name) {
        return resolved_path(current_directory(), resolve_links(name));
    };
    const std::string wanted = whole(path);
    for (std::size_t i = 0; i < documents_.size(); ++i) {
        if (documents_[i]->is_named() && whole(documents_[i]->file_name()) == wanted) {
            return i;
        }
    }
    return std::nullopt;
}

bool Documents::go_to_next() {
    return go_to((current_ + 1) % documents_.size());
}

bool Documents::click_tab(Point point) {
    const int tab = tabs_.tab_at(point);
    return tab >= 0 && go_to(static_cast<std::size_t>(tab));
}

} // namespace quadrelle
