#pragma once

// The journal of unsaved work, as bytes: what each record says, and what a whole journal comes to. Knows
// neither files nor threads.
//
// A record tells what a set is after a gesture. Of tiles that the record before it has told of already it
// names the place there, or only the part that is different; so it is about as long as what was drawn.

#include "base/file_stamp.h"
#include "base/geometry.h"
#include "base/packed_bytes.h"
#include "pixels/tile.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quadrelle {

using Set_Number = std::uint32_t;

// A tile of a set in the journal: its pixels, or where it still is the same in the set's file.
struct Journal_Tile {
    std::shared_ptr<const Tile> picture;
    int index_in_file = 0;
};

// What the files of a set were like when the program read or wrote them last.
struct Known_Files {
    std::optional<File_Stamp> set;
    std::int64_t surplus = 0; // what the set's file holds behind its tiles
    std::optional<File_Stamp> map;
};

struct Journal_Set {
    std::string name;
    bool is_named = false;
    Known_Files files; // older journals tell nothing of them
    Size tile_size;
    std::vector<Journal_Tile> tiles;
    std::shared_ptr<const Bytes> map; // null without one
};

using Journal_Sets = std::map<Set_Number, Journal_Set>;

// Where a tile comes from: the same as in that place before, or that but for the area, which is taken from
// the picture, or all of the picture, or that of the file.
enum class Tile_Source : std::uint8_t { kept, patched, whole, in_file };

struct Tile_Change {
    Tile_Source source = Tile_Source::kept;
    int index = 0;
    const Tile* picture = nullptr;
    Rectangle area;
};

struct Set_Change {
    Set_Number number = 0;
    std::string name;
    bool is_named = false;
    Known_Files files;
    Size tile_size;
    std::vector<Tile_Change> tiles; // all that the set has then
    bool has_map = false;
    std::shared_ptr<const Bytes> map; // null when it is as before
};

// What a journal begins with.
[[nodiscard]] Bytes journal_head();
[[nodiscard]] Bytes record_of(const Set_Change& change);
// Nothing of the set is unsaved any more.
[[nodiscard]] Bytes end_record_of(Set_Number number);
// The shortest journal that comes to the same.
[[nodiscard]] Bytes journal_of(const Journal_Sets& sets);

struct Read_Journal {
    Journal_Sets sets;
    // Something was not as it was written. A last record that was cut off is no damage: a program that is
    // killed writes it no further.
    bool is_damaged = false;
};
// Takes what is whole, whatever the bytes are.
[[nodiscard]] Read_Journal read_journal(std::span<const std::uint8_t> bytes);

} // namespace quadrelle
