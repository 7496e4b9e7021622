#pragma once

// The file in which one running program keeps the work that is in no file yet. It is written by one thread,
// which hands over sets as they are after a gesture.

#include "base/file_handle.h"
#include "base/file_lock.h"
#include "tileset/journal_map.h"
#include "tileset/journal_record.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quadrelle {

struct Handed_Tile {
    int index = 0;
    std::shared_ptr<const Tile> picture;
};

// What was told of a set: the versions of all its tiles, and the pixels of those that were not told of before
// or are in the file.
struct Handed_Set {
    Set_Number number = 0;
    bool is_over = false; // nothing of it is unsaved any more, and all else here is empty
    std::string name;
    bool is_named = false;
    Known_Files files;
    Size tile_size;
    std::vector<std::uint64_t> versions; // no two of them the same
    std::vector<Handed_Tile> tiles;      // in the order of the indices
    std::vector<int> indices_in_file;    // of each tile, the first time that the set is told of
    bool has_map = false;
    std::optional<Handed_Map> map; // when it is another one than before
};

// What the names of journals end with. Beside each that is in use lies a lock, and beside one that could not
// be written anew what came of that.
constexpr const char* journal_ending = ".journal";
[[nodiscard]] std::string journal_lock_path(const std::string& journal);
[[nodiscard]] std::string journal_rest_path(const std::string& journal);

class Journal_File {
public:
    // The folder and the file are made when there is something to write.
    explicit Journal_File(std::string folder);
    Journal_File(const Journal_File&) = delete;
    Journal_File& operator=(const Journal_File&) = delete;
    ~Journal_File();

    // Answers whether all that was handed over is on the disk. What is not is tried again with the next sets.
    bool write(const std::vector<Handed_Set>& sets);
    // Whether the file was found removed with that: nothing was written, and all has to be handed over anew.
    [[nodiscard]] bool is_lost() const { return is_lost_; }
    // Nothing more is written; what is there stays.
    void give_up() { is_given_up_ = true; }
    // There is nothing left to recover; what comes later begins a new file.
    void remove();

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    // What the file tells of a set, as far as it is needed to tell what is new.
    struct Written_Set {
        std::vector<std::uint64_t> versions;
        Size tile_size;
        // The tile that was written last.
        std::uint64_t last_version = 0;
        std::vector<Color> last_pixels;
    };

    [[nodiscard]] bool begin();
    [[nodiscard]] bool append(const Bytes& bytes);
    [[nodiscard]] bool append_pending();
    [[nodiscard]] bool fold();
    void note(const Handed_Set& set);
    [[nodiscard]] Bytes change_record(const Handed_Set& set);
    [[nodiscard]] Tile_Change given_tile(const Handed_Set& set, const Handed_Tile& given,
                                         Written_Set& written);

    std::string folder_;
    std::string path_;
    std::unique_ptr<File_Lock> lock_;
    File_Handle file_;
    bool is_lost_ = false;
    bool is_cut_ = false;      // something was written in part
    bool is_given_up_ = false; // more than is worth keeping could not be written
    std::size_t size_ = 0;
    std::size_t size_when_folded_ = 0;
    std::deque<Bytes> pending_;
    std::map<Set_Number, Written_Set> written_;
};

} // namespace quadrelle
