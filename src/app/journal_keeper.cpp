#include "app/journal_keeper.h"

#include "app/documents.h"
#include "app/selection_desk.h"
#include "base/data_directory.h"
#include "base/fatal.h"
#include "canvas/canvas_view.h"
#include "map/map_file.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace quadrelle {

namespace {

// How much of a set that lies in a file follows at once.
constexpr std::int64_t most_bytes_at_once = std::int64_t{1} << 17U;

using Versions = std::vector<std::uint64_t>;

// As the tile is when it is not shifted. In the canvas its pixels stand so far right and below.
Tile shifted_back(const Tile& tile, Tile_Point shift) {
    Tile result(tile.width(), tile.height());
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            result.set_pixel(x, y,
                             tile.get_pixel((x + shift.x) % tile.width(), (y + shift.y) % tile.height()));
        }
    }
    return result;
}

// Which of the versions were not among those before. After a stroke it is one.
std::vector<std::size_t> new_places(const Versions& versions, const Versions& before) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < versions.size(); ++i) {
        if (i >= before.size() || before[i] != versions[i]) {
            places.push_back(i);
        }
    }
    if (places.size() > 1) {
        const std::unordered_set<std::uint64_t> known(before.begin(), before.end());
        std::erase_if(places, [&](std::size_t i) { return known.contains(versions[i]); });
    }
    return places;
}

Known_Files files_of(const Tileset_Document& document) {
    Known_Files files;
    if (const std::optional<Own_File>& own = document.own_file()) {
        files.set = own->stamp;
        files.surplus = own->surplus;
    }
    if (document.map_file() == map_path(document.file_name())) {
        files.map = document.map_stamp();
    }
    return files;
}

std::vector<int> indices_of(const Tile_Ids& ids) {
    std::vector<int> indices;
    indices.reserve(static_cast<std::size_t>(ids.count()));
    for (int id = 0; id < ids.count(); ++id) {
        indices.push_back(ids.index_of(id));
    }
    return indices;
}

} // namespace

Journal_Keeper::Journal_Keeper(const Documents& documents, const Canvas_View& canvas,
                               const Selection_Desk& desk)
    : documents_(documents), canvas_(canvas), desk_(desk), writer_(data_directory().path("journal")) {
    set_last_act([this] { drain(); });
}

Journal_Keeper::~Journal_Keeper() {
    set_last_act({});
}

// Only the current document is changed. With hundreds of them it takes a while to look at all.
void Journal_Keeper::follow() {
    const Tileset_Document& current = documents_.current();
    const bool is_lost = writer_.take_loss();
    if (is_lost) {
        // All of it is told anew.
        for (auto& [number, followed] : followed_) {
            followed = {};
        }
    }
    if (!is_lost && is_rest_told_ && current_ == current.number() &&
        followed_.size() == documents_.all().size()) {
        follow(current);
        return;
    }
    current_ = current.number();
    for (const auto& document : documents_.all()) {
        follow(*document);
    }
    forget_closed();
    is_rest_told_ = std::ranges::all_of(followed_, [this](const auto& entry) {
        return entry.first == current_ || !entry.second.is_told || entry.second.in_file.empty();
    });
}

void Journal_Keeper::follow(const Tileset_Document& document) {
    const auto [found, is_new] = followed_.try_emplace(document.number());
    Followed_Set& followed = found->second;
    if (!document.is_modified()) {
        if (is_new || followed.changes != document.changes() || followed.is_told) {
            end(document.number(), followed);
            take_as_saved(document, followed);
        }
    } else if (!followed.is_told || followed.changes != document.changes() ||
               followed.name != document.file_name() || !followed.in_file.empty()) {
        hand_over(document, followed);
    }
}

void Journal_Keeper::take_as_saved(const Tileset_Document& document, Followed_Set& followed) {
    followed = {};
    followed.changes = document.changes();
    followed.name = document.file_name();
    if (document.is_named()) {
        const Tileset& tileset = document.tileset();
        for (int i = 0; i < tileset.count(); ++i) {
            followed.in_file.emplace(tileset.tile_at(i).version(), i);
        }
    }
}

void Journal_Keeper::forget_closed() {
    if (followed_.size() == documents_.all().size()) {
        return;
    }
    std::unordered_set<Set_Number> open;
    for (const auto& document : documents_.all()) {
        open.insert(document->number());
    }
    for (auto entry = followed_.begin(); entry != followed_.end();) {
        const bool is_open = open.contains(entry->first);
        if (!is_open) {
            end(entry->first, entry->second);
        }
        entry = is_open ? std::next(entry) : followed_.erase(entry);
    }
}

void Journal_Keeper::end(Set_Number number, Followed_Set& followed) {
    if (std::exchange(followed.is_told, false)) {
        Handed_Set over;
        over.number = number;
        over.is_over = true;
        writer_.add(std::move(over));
    }
}

// What was lifted off it is plotted; what the seam tools have shifted is in its place.
std::shared_ptr<const Tile> Journal_Keeper::current_as_saved(const Tileset_Document& document) const {
    const Tile* const tile = canvas_.tile();
    const Tileset& tileset = document.tileset();
    const bool is_in_view = &document == &documents_.current() && tile != nullptr && tileset.has_tiles() &&
                            tile == &tileset.tile_at(tileset.current_index());
    if (!is_in_view) {
        return nullptr;
    }
    std::optional<Tile> settled = desk_.settled_tile();
    if (canvas_.is_shifted()) {
        return std::make_shared<const Tile>(shifted_back(settled ? *settled : *tile, canvas_.seam_shifts()));
    }
    return settled ? std::make_shared<const Tile>(*std::move(settled)) : nullptr;
}

void Journal_Keeper::hand_over(const Tileset_Document& document, Followed_Set& followed) {
    if (followed.name != document.file_name() && !followed.in_file.empty()) {
        // The file that has them is another one.
        followed.in_file.clear();
        followed.versions.clear();
    }
    const Tileset& tileset = document.tileset();
    const std::shared_ptr<const Tile> as_saved = current_as_saved(document);
    Handed_Set handed;
    handed.number = document.number();
    handed.name = document.file_name();
    handed.is_named = document.is_named();
    handed.files = files_of(document);
    handed.tile_size = tileset.tile_size();
    handed.versions.reserve(static_cast<std::size_t>(tileset.count()));
    for (int i = 0; i < tileset.count(); ++i) {
        handed.versions.push_back(tileset.tile_at(i).version());
    }
    if (as_saved) {
        handed.versions[static_cast<std::size_t>(tileset.current_index())] = as_saved->version();
    }
    for (const int index : places_to_hand(handed, followed)) {
        const bool is_current = as_saved && index == tileset.current_index();
        handed.tiles.push_back({index, is_current ? as_saved : copy_of(document, index)});
    }
    hand_map(document, handed, followed);
    followed.is_told = true;
    followed.changes = document.changes();
    followed.name = handed.name;
    followed.versions = handed.versions;
    writer_.add(std::move(handed));
}

// After a stroke the history has one already, which stays as it is.
std::shared_ptr<const Tile> Journal_Keeper::copy_of(const Tileset_Document& document, int index) {
    const Tile& tile = document.tileset().tile_at(index);
    const Undo_Entry* const entry = document.history().current();
    if (entry != nullptr && entry->snapshot->tile.version() == tile.version()) {
        return {entry->snapshot, &entry->snapshot->tile};
    }
    return std::make_shared<const Tile>(tile);
}

// What is not told of yet, and then as many as there is time for of those that the file has. The others are
// told of by their index there.
std::vector<int> Journal_Keeper::places_to_hand(Handed_Set& handed, Followed_Set& followed) {
    const Versions& versions = handed.versions;
    std::vector<int> places;
    for (const std::size_t i : new_places(versions, followed.versions)) {
        if (!followed.in_file.contains(versions[i])) {
            places.push_back(static_cast<int>(i));
        }
    }
    if (followed.in_file.empty()) {
        return places;
    }
    const std::int64_t tile_bytes = std::int64_t{4} * handed.tile_size.width * handed.tile_size.height;
    std::int64_t bytes_left = most_bytes_at_once;
    handed.indices_in_file.resize(versions.size());
    for (std::size_t i = 0; i < versions.size(); ++i) {
        const auto found = followed.in_file.find(versions[i]);
        if (found == followed.in_file.end()) {
            continue;
        }
        handed.indices_in_file[i] = found->second;
        if (bytes_left > 0) {
            bytes_left -= tile_bytes;
            places.push_back(static_cast<int>(i));
            followed.in_file.erase(found);
        }
    }
    if (bytes_left > 0) {
        followed.in_file.clear();
    }
    std::ranges::sort(places);
    return places;
}

// All of it, whatever was changed: few maps are large.
void Journal_Keeper::hand_map(const Tileset_Document& document, Handed_Set& handed, Followed_Set& followed) {
    const Edited_Map* const map = document.map();
    handed.has_map = map != nullptr;
    if (map == nullptr) {
        followed.map_version.reset();
        return;
    }
    std::vector<int> indices = indices_of(map->ids());
    if (followed.map_version != map->version() || followed.map_indices != indices) {
        handed.map = Handed_Map{map->map(), indices};
        followed.map_version = map->version();
        followed.map_indices = std::move(indices);
    }
}

} // namespace quadrelle
