#include "tileset/journal_file.h"

#include "base/platform_files.h"
#include "pixels/changed_area.h"

#include <algorithm>
#include <chrono>
#include <unordered_map>
#include <utility>

namespace quadrelle {

namespace {

// Beyond twice what it was when it was the shortest, and this, a journal is written anew.
constexpr std::size_t room_to_grow = std::size_t{1} << 20U;
// What can be written nowhere is given up beyond that.
constexpr std::size_t most_pending = 1000;

// Unlike that of any other program, also of one that had the same number before.
std::string name_of_our_own() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::to_string(process_number()) + "-" +
           std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

// Tells where tiles were before, when they have changed places.
class Places {
public:
    explicit Places(const std::vector<std::uint64_t>& versions) : versions_(versions) {}

    std::optional<int> of(std::uint64_t version, std::size_t likely) {
        if (likely < versions_.size() && versions_[likely] == version) {
            return static_cast<int>(likely);
        }
        index();
        const auto found = place_of_.find(version);
        return found == place_of_.end() ? std::nullopt : std::optional(found->second);
    }

private:
    void index() {
        for (; indexed_ < versions_.size(); ++indexed_) {
            place_of_.emplace(versions_[indexed_], static_cast<int>(indexed_));
        }
    }

    const std::vector<std::uint64_t>& versions_;
    std::unordered_map<std::uint64_t, int> place_of_;
    std::size_t indexed_ = 0;
};

// Not as sets are saved: what that does once for the whole program is not for two threads.
bool replace_journal(const std::string& path, const Bytes& bytes) {
    const std::string anew = journal_rest_path(path);
    remove_file(anew);
    File_Handle file = open_file(anew, File_Mode::create);
    const bool is_written = file && write_bytes(file.get(), bytes) && flush_to_disk(file.get());
    const bool is_done = file && close_file(std::move(file)) && is_written && replace_file(anew, path);
    if (!is_done) {
        remove_file(anew);
    }
    return is_done;
}

} // namespace

std::string journal_rest_path(const std::string& journal) {
    return journal + ".new";
}

std::string journal_lock_path(const std::string& journal) {
    return journal + ".lock";
}

Journal_File::Journal_File(std::string folder) : folder_(std::move(folder)) {}

Journal_File::~Journal_File() = default;

bool Journal_File::write(const std::vector<Handed_Set>& sets) {
    is_lost_ = file_ && is_removed(file_.get());
    if (is_lost_) {
        remove();
        return true;
    }
    for (const Handed_Set& set : sets) {
        note(set);
    }
    if (is_given_up_) {
        return false;
    }
    if (written_.empty()) {
        remove();
        return true;
    }
    if (!begin() || !append_pending() || !flush_to_disk(file_.get())) {
        return false;
    }
    if (size_ > 2 * size_when_folded_ + room_to_grow) {
        // What it holds is whole, however long it is.
        static_cast<void>(fold());
    }
    return true;
}

void Journal_File::note(const Handed_Set& set) {
    is_given_up_ = is_given_up_ || pending_.size() >= most_pending;
    if (is_given_up_) {
        pending_.clear();
    } else if (!set.is_over) {
        pending_.push_back(change_record(set));
    } else if (written_.erase(set.number) > 0) {
        pending_.push_back(end_record_of(set.number));
    }
}

bool Journal_File::begin() {
    if (path_.empty()) {
        if (!make_folder(folder_)) {
            return false;
        }
        path_ = folder_ + path_separator + name_of_our_own() + journal_ending;
        lock_ = std::make_unique<File_Lock>(journal_lock_path(path_));
    }
    if (!lock_->is_taken()) {
        path_.clear();
        return false;
    }
    if (file_ && !is_cut_) {
        return true;
    }
    file_.reset();
    if (size_ > 0) {
        return fold();
    }
    remove_file(path_);
    file_ = open_file(path_, File_Mode::create);
    if (!file_) {
        return false;
    }
    std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    flush_folder(folder_);
    is_cut_ = false;
    return append(journal_head());
}

bool Journal_File::append(const Bytes& bytes) {
    if (!write_bytes(file_.get(), bytes)) {
        is_cut_ = true;
        return false;
    }
    size_ += bytes.size();
    return true;
}

bool Journal_File::append_pending() {
    while (!pending_.empty() && append(pending_.front())) {
        pending_.pop_front();
    }
    return pending_.empty();
}

bool Journal_File::fold() {
    size_when_folded_ = size_; // that large it has to become again, should this fail
    const std::optional<Bytes> old = file_bytes(path_);
    if (!old) {
        return false;
    }
    const Bytes folded = journal_of(read_journal(*old).sets);
    const bool was_cut = std::exchange(is_cut_, true);
    // Some systems replace no file that is open.
    file_.reset();
    const bool is_done = replace_journal(path_, folded);
    file_ = open_file(path_, File_Mode::append);
    if (!file_) {
        return false;
    }
    std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    is_cut_ = was_cut && !is_done;
    if (is_done) {
        size_ = folded.size();
        size_when_folded_ = size_;
    }
    return is_done;
}

void Journal_File::remove() {
    file_.reset();
    if (!path_.empty()) {
        remove_file(path_);
        lock_.reset();
        path_.clear();
        remove_folder(folder_);
    }
    size_ = 0;
    size_when_folded_ = 0;
    is_cut_ = false;
    pending_.clear();
    written_.clear();
}

// What is different from the tile that was there, where that is known.
Tile_Change Journal_File::given_tile(const Handed_Set& set, const Handed_Tile& given, Written_Set& written) {
    const auto place = static_cast<std::size_t>(given.index);
    const Tile& picture = *given.picture;
    const bool is_known = place < written.versions.size() && written.tile_size == set.tile_size &&
                          written.versions[place] == written.last_version &&
                          written.last_pixels.size() == picture.pixels().size() &&
                          std::ranges::count(set.versions, written.last_version) == 0;
    written.last_version = set.versions[place];
    if (!is_known) {
        written.last_pixels.assign(picture.pixels().begin(), picture.pixels().end());
        return {Tile_Source::whole, 0, &picture, {}};
    }
    const Rectangle area = update_copy(picture.pixels(), picture.size(), written.last_pixels);
    return {Tile_Source::patched, given.index, &picture, area};
}

Bytes Journal_File::change_record(const Handed_Set& set) {
    Written_Set& written = written_[set.number];
    Set_Change change;
    change.number = set.number;
    change.name = set.name;
    change.is_named = set.is_named;
    change.files = set.files;
    change.tile_size = set.tile_size;
    change.has_map = set.has_map;
    change.tiles.reserve(set.versions.size());
    Places places(written.versions);
    auto given = set.tiles.begin();
    for (std::size_t i = 0; i < set.versions.size(); ++i) {
        if (given != set.tiles.end() && given->index == static_cast<int>(i)) {
            change.tiles.push_back(given_tile(set, *given++, written));
        } else if (const std::optional<int> place = places.of(set.versions[i], i)) {
            change.tiles.push_back({Tile_Source::kept, *place, nullptr, {}});
        } else {
            const int index = i < set.indices_in_file.size() ? set.indices_in_file[i] : static_cast<int>(i);
            change.tiles.push_back({Tile_Source::in_file, index, nullptr, {}});
        }
    }
    if (set.map) {
        change.map = std::make_shared<const Bytes>(packed_map(*set.map));
    }
    written.versions = set.versions;
    written.tile_size = set.tile_size;
    return record_of(change);
}

} // namespace quadrelle
