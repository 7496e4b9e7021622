#include "base/checksum.h"
#include "tileset/journal_format.h"
#include "tileset/journal_record.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace quadrelle {

namespace {

using namespace journal_format;

std::uint64_t read_long(Packed_Reader& reader) {
    const std::uint64_t low = reader.word();
    return low | std::uint64_t{reader.word()} << 32U;
}

File_Stamp read_stamp(Packed_Reader& reader) {
    File_Stamp stamp;
    stamp.state.size = static_cast<std::int64_t>(read_long(reader));
    stamp.state.modified = static_cast<std::int64_t>(read_long(reader));
    stamp.fingerprint = read_long(reader);
    return stamp;
}

Known_Files read_files(Packed_Reader& reader, unsigned flags) {
    Known_Files files;
    if ((flags & knows_file) != 0) {
        files.set = read_stamp(reader);
        files.surplus = static_cast<std::int64_t>(read_long(reader));
    }
    if ((flags & knows_map_file) != 0) {
        files.map = read_stamp(reader);
    }
    return files;
}

// Carries one record out; what it asks for and is not there makes it fail. No tile is kept twice, so that a
// short record cannot take much memory.
class Change_Reader {
public:
    Change_Reader(Packed_Reader& reader, const Journal_Set* before, Size tile_size)
        : reader_(reader), before_(before), tile_size_(tile_size),
          is_used_(before == nullptr ? 0 : before->tiles.size()) {}

    std::optional<std::vector<Journal_Tile>> tiles(int count) {
        std::vector<Journal_Tile> result;
        while (!has_failed() && static_cast<int>(result.size()) < count) {
            take_run(result, count - static_cast<int>(result.size()));
        }
        return has_failed() ? std::nullopt : std::optional(std::move(result));
    }

private:
    [[nodiscard]] bool has_failed() const { return has_failed_ || reader_.has_failed(); }

    void take_run(std::vector<Journal_Tile>& result, int most) {
        switch (static_cast<Tile_Source>(reader_.byte())) {
        case Tile_Source::kept: take_kept(result, most); break;
        case Tile_Source::patched: result.push_back(patched()); break;
        case Tile_Source::whole: result.push_back({whole(tile_size_), 0}); break;
        case Tile_Source::in_file: take_from_file(result, most); break;
        default: has_failed_ = true;
        }
    }

    Journal_Tile kept(int index) {
        const auto place = static_cast<std::size_t>(index);
        has_failed_ = has_failed_ || place >= is_used_.size() || is_used_[place];
        if (has_failed_) {
            return {};
        }
        is_used_[place] = true;
        return before_->tiles[place];
    }

    void take_kept(std::vector<Journal_Tile>& result, int most) {
        const int index = reader_.number(most_tiles);
        const int count = reader_.number(most);
        has_failed_ = has_failed_ || count == 0 || before_ == nullptr || before_->tile_size != tile_size_;
        for (int i = 0; i < count && !has_failed_; ++i) {
            result.push_back(kept(index + i));
        }
    }

    void take_from_file(std::vector<Journal_Tile>& result, int most) {
        const int index = reader_.number(most_tiles);
        const int count = reader_.number(most);
        has_failed_ = has_failed_ || count == 0;
        for (int i = 0; i < count && !has_failed(); ++i) {
            result.push_back({nullptr, index + i});
        }
    }

    std::shared_ptr<const Tile> whole(Size size) {
        const auto count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
        const std::span<const std::uint8_t> bytes = reader_.bytes(count * sizeof(Color));
        if (reader_.has_failed()) {
            return nullptr;
        }
        std::vector<Color> pixels(count);
        std::copy(bytes.begin(), bytes.end(), reinterpret_cast<std::uint8_t*>(pixels.data()));
        return std::make_shared<const Tile>(size, std::move(pixels));
    }

    Journal_Tile patched() {
        const Journal_Tile old = kept(reader_.number(most_tiles));
        Rectangle area;
        for (int* const number : {&area.x, &area.y, &area.width, &area.height}) {
            *number = reader_.number(largest_edge);
        }
        const bool fits = old.picture && old.picture->size() == tile_size_ &&
                          area.right() <= tile_size_.width && area.bottom() <= tile_size_.height;
        const std::shared_ptr<const Tile> part =
            fits ? whole({area.width, area.height}) : std::shared_ptr<const Tile>();
        has_failed_ = has_failed_ || !part;
        if (has_failed_) {
            return {};
        }
        auto patched = std::make_shared<Tile>(*old.picture);
        part->paste_into(*patched, area.x, area.y);
        return {patched, 0};
    }

    Packed_Reader& reader_;
    const Journal_Set* before_;
    Size tile_size_;
    std::vector<bool> is_used_;
    bool has_failed_ = false;
};

bool apply_change(std::span<const std::uint8_t> contents, Journal_Sets& sets) {
    Packed_Reader reader(contents);
    const Set_Number number = reader.word();
    const unsigned flags = reader.byte();
    Journal_Set set;
    set.is_named = (flags & named) != 0;
    set.name = reader.text();
    set.files = read_files(reader, flags);
    set.tile_size.width = reader.number(largest_edge);
    set.tile_size.height = reader.number(largest_edge);
    const int count = reader.number(most_tiles);
    const auto found = sets.find(number);
    const Journal_Set* const before = found == sets.end() ? nullptr : &found->second;
    std::optional<std::vector<Journal_Tile>> tiles =
        Change_Reader(reader, before, set.tile_size).tiles(count);
    if ((flags & map_follows) != 0) {
        const std::span<const std::uint8_t> map = reader.bytes(reader.word());
        set.map = std::make_shared<const Bytes>(map.begin(), map.end());
    } else if ((flags & has_map) != 0 && before != nullptr) {
        set.map = before->map;
    }
    if (!tiles || reader.has_failed() || !reader.is_at_end()) {
        return false;
    }
    set.tiles = *std::move(tiles);
    sets.insert_or_assign(number, std::move(set));
    return true;
}

bool apply(Record_Kind kind, std::span<const std::uint8_t> contents, Journal_Sets& sets) {
    switch (kind) {
    case Record_Kind::change: return apply_change(contents, sets);
    case Record_Kind::end: {
        Packed_Reader reader(contents);
        sets.erase(reader.word());
        return !reader.has_failed() && reader.is_at_end();
    }
    }
    return false;
}

struct Found_Record {
    Record_Kind kind{};
    std::span<const std::uint8_t> contents;
    std::size_t size = 0; // with all that is around the contents
};

bool begins_with_mark(std::span<const std::uint8_t> bytes) {
    const std::size_t there = std::min(bytes.size(), mark.size());
    return std::equal(mark.begin(), mark.begin() + static_cast<std::ptrdiff_t>(there), bytes.begin());
}

// Nothing where no record begins, or not all of it is there.
std::optional<Found_Record> whole_record(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < bytes_before + bytes_behind || !begins_with_mark(bytes)) {
        return std::nullopt;
    }
    Packed_Reader reader(bytes.subspan(mark.size()));
    const auto kind = static_cast<Record_Kind>(reader.word());
    const std::span<const std::uint8_t> contents = reader.bytes(reader.word());
    const std::size_t size = bytes_before + contents.size() + bytes_behind;
    if (reader.word() != checksum(bytes.first(size - bytes_behind)) || reader.has_failed()) {
        return std::nullopt;
    }
    return Found_Record{kind, contents, size};
}

// The next place where a whole record begins, or the end. Gives up where many only seem to.
std::size_t next_record(std::span<const std::uint8_t> bytes, std::size_t from) {
    constexpr int most_attempts = 1000;
    int attempts = 0;
    for (auto place = bytes.begin() + static_cast<std::ptrdiff_t>(from);
         (place = std::search(place, bytes.end(), mark.begin(), mark.end())) != bytes.end() &&
         attempts < most_attempts;
         ++place, ++attempts) {
        const auto offset = static_cast<std::size_t>(place - bytes.begin());
        if (whole_record(bytes.subspan(offset))) {
            return offset;
        }
    }
    return bytes.size();
}

// The beginning of a record whose end is missing, or room that was never written to.
bool is_cut_off(std::span<const std::uint8_t> rest) {
    if (std::ranges::all_of(rest, [](std::uint8_t byte) { return byte == 0; })) {
        return true;
    }
    if (rest.size() < bytes_before) {
        return begins_with_mark(rest);
    }
    Packed_Reader reader(rest.subspan(mark.size() + 4));
    const std::size_t length = reader.word();
    return begins_with_mark(rest) && length + bytes_behind > rest.size() - bytes_before;
}

} // namespace

Read_Journal read_journal(std::span<const std::uint8_t> bytes) {
    Read_Journal result;
    const std::size_t head_there = std::min(bytes.size(), head.size());
    const bool has_head = std::ranges::equal(bytes.first(head_there), std::span(head).first(head_there));
    result.is_damaged = !has_head;
    std::size_t offset = has_head ? head_there : next_record(bytes, 0);
    while (offset < bytes.size()) {
        if (const std::optional<Found_Record> found = whole_record(bytes.subspan(offset))) {
            const bool is_done = apply(found->kind, found->contents, result.sets);
            result.is_damaged = result.is_damaged || !is_done;
            offset += found->size;
            continue;
        }
        const std::size_t next = next_record(bytes, offset + 1);
        const bool is_tail = next == bytes.size() && is_cut_off(bytes.subspan(offset));
        result.is_damaged = result.is_damaged || !is_tail;
        offset = next;
    }
    return result;
}

} // namespace quadrelle
