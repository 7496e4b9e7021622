#include "tileset/history_file.h"

#include "base/data_directory.h"
#include "base/fingerprint.h"
#include "base/platform_files.h"
#include "tileset/document.h"
#include "tileset/history_code.h"

#include <memory>
#include <utility>

namespace quadrelle {

namespace {

constexpr std::uint64_t magic = 0x01'4f444e554c4451U; // "QDLUNDO" and the version, the lowest byte first
constexpr std::size_t word_bytes = 8;
constexpr std::int64_t farthest = std::int64_t{1} << 20U; // that something floats away from its tile
constexpr Kept_Limits limits{200, std::int64_t{64} << 20U};
constexpr std::int64_t largest_file = limits.bytes;

Size read_size(History_Reader& from) {
    constexpr std::int64_t most = 8192;
    const auto width = static_cast<int>(from.number_between(1, most));
    return {width, static_cast<int>(from.number_between(1, most))};
}

void write_size(History_Writer& to, Size size) {
    to.number(static_cast<std::uint64_t>(size.width));
    to.number(static_cast<std::uint64_t>(size.height));
}

void write_picture(History_Writer& to, const Tile& picture) {
    write_size(to, picture.size());
    to.pixels(picture, nullptr);
}

std::optional<Tile> read_picture(History_Reader& from) {
    const Size size = read_size(from);
    return from.pixels(size, nullptr);
}

void write_shape(History_Writer& to, const std::optional<Paste_Shape>& shape) {
    to.number(shape ? 1 : 0);
    if (shape) {
        write_picture(to, shape->taken);
        write_size(to, {shape->factors.x, shape->factors.y});
        to.number(static_cast<std::uint64_t>(shape->degrees));
    }
}

// One that would make too large a picture is none.
std::optional<Paste_Shape> read_shape(History_Reader& from) {
    if (from.number_between(0, 1) == 0) {
        return std::nullopt;
    }
    std::optional<Tile> taken = read_picture(from);
    const Size factors = read_size(from);
    const auto degrees = static_cast<int>(from.number_between(0, 359));
    const bool is_possible =
        taken && std::int64_t{taken->width()} * factors.width * taken->height() * factors.height <=
                     History_Reader::most_pixels;
    return is_possible
               ? std::optional(Paste_Shape{std::move(*taken), {factors.width, factors.height}, degrees})
               : std::nullopt;
}

// How a tile was turned is left out: it can only be turned on from what it is.
void write_work(History_Writer& to, const Work_State& work) {
    to.number((work.selection ? 1U : 0U) | (work.paste ? 2U : 0U));
    if (work.selection) {
        to.pixels(work.selection->mask(), nullptr);
    }
    if (work.paste) {
        write_picture(to, work.paste->picture);
        to.signed_number(work.paste->position.x);
        to.signed_number(work.paste->position.y);
        write_shape(to, work.paste->shape);
        to.number(static_cast<std::uint64_t>(work.paste_source));
    }
    to.signed_number(work.seam_shift.x);
    to.signed_number(work.seam_shift.y);
}

std::shared_ptr<const Selection> read_selection(History_Reader& from, Size size) {
    const std::optional<Tile> mask = from.pixels(size, nullptr);
    auto selection = std::make_shared<Selection>(size);
    if (mask) {
        selection->change([&](Tile& own) {
            for (int i = 0; i < own.pixel_count(); ++i) {
                const bool is_selected = mask->get_pixel_at(i) == Selection::selected_color;
                own.set_pixel_at(i, is_selected ? Selection::selected_color : Selection::unselected_color);
            }
        });
    }
    return selection;
}

void read_paste(History_Reader& from, Work_State& work) {
    std::optional<Tile> picture = read_picture(from);
    const auto x = static_cast<int>(from.signed_number_between(-farthest, farthest));
    const auto y = static_cast<int>(from.signed_number_between(-farthest, farthest));
    std::optional<Paste_Shape> shape = read_shape(from);
    work.paste_source = static_cast<Paste_Source>(from.number_between(0, 3));
    if (picture) {
        work.paste =
            std::make_shared<Floating_Paste>(Floating_Paste{std::move(*picture), {x, y}, std::move(shape)});
    }
}

Work_State read_work(History_Reader& from, Size tile) {
    Work_State work;
    const std::int64_t parts = from.number_between(0, 3);
    if ((parts & 1) != 0) {
        work.selection = read_selection(from, tile);
    }
    if ((parts & 2) != 0) {
        read_paste(from, work);
    }
    work.seam_shift.x = static_cast<int>(from.signed_number_between(0, tile.width));
    work.seam_shift.y = static_cast<int>(from.signed_number_between(0, tile.height));
    return work;
}

void write_entry(History_Writer& to, const Undo_Entry& entry, const Tile* before) {
    to.number(static_cast<std::uint64_t>(entry.kind));
    to.number(static_cast<std::uint64_t>(entry.tile_index));
    to.number(static_cast<std::uint64_t>(entry.tool.tool));
    to.number(entry.tool.is_erasing ? 1 : 0);
    to.pixels(entry.snapshot->tile, before);
    write_work(to, entry.work);
}

// What a fault leaves in it is of no use.
Undo_Entry read_entry(History_Reader& from, const Tileset& tileset, const Tile* before) {
    Undo_Entry entry;
    entry.kind = static_cast<Command>(from.number_between(0, static_cast<std::int64_t>(Command::count) - 1));
    entry.tile_index = static_cast<int>(from.number_between(0, tileset.count() - 1));
    entry.tool.tool = static_cast<Tool>(from.number_between(0, static_cast<std::int64_t>(tool_count) - 1));
    entry.tool.is_erasing = from.number_between(0, 1) == 1;
    if (const std::optional<Tile> tile = from.pixels(tileset.tile_size(), before)) {
        entry.snapshot = std::make_unique<const Tile_Snapshot>(*tile);
    }
    entry.work = read_work(from, tileset.tile_size());
    return entry;
}

std::vector<std::uint8_t> bytes_of_file(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : 0;
    std::vector<std::uint8_t> bytes(size > 0 && size <= largest_file ? static_cast<std::size_t>(size) : 0);
    bytes.resize(file ? read_bytes(file.get(), bytes) : 0);
    return bytes;
}

} // namespace

std::vector<std::uint8_t> encode_history(const Undo_History& history, const File_Stamp& saved) {
    History_Writer to;
    to.word(magic);
    to.word(saved.fingerprint);
    to.number(static_cast<std::uint64_t>(saved.state.size));
    to.number(history.entries().size());
    to.number(static_cast<std::uint64_t>(history.position()));
    const Tile* before = nullptr;
    for (const Undo_Entry& entry : history.entries()) {
        write_entry(to, entry, before);
        before = &entry.snapshot->tile;
    }
    to.word(fingerprint_of(to.bytes()));
    return to.bytes();
}

std::optional<Kept_History> decode_history(std::span<const std::uint8_t> bytes, const File_Stamp& saved,
                                           const Tileset& tileset) {
    if (bytes.size() < 3 * word_bytes || !tileset.has_tiles()) {
        return std::nullopt;
    }
    const std::span content = bytes.first(bytes.size() - word_bytes);
    if (History_Reader(bytes.last(word_bytes)).word() != fingerprint_of(content)) {
        return std::nullopt;
    }
    History_Reader from(content);
    const bool is_of_file = from.word() == magic && from.word() == saved.fingerprint &&
                            from.number() == static_cast<std::uint64_t>(saved.state.size);
    const std::int64_t count = is_of_file ? from.number_between(1, Undo_History::default_capacity) : 0;
    Kept_History kept;
    kept.position = is_of_file ? static_cast<int>(from.number_between(0, count - 1)) : 0;
    for (std::int64_t i = 0; i < count && !from.has_failed(); ++i) {
        const Tile* const before = kept.entries.empty() ? nullptr : &kept.entries.back().snapshot->tile;
        kept.entries.push_back(read_entry(from, tileset, before));
    }
    const bool is_whole = count > 0 && !from.has_failed() && from.is_at_end();
    return is_whole ? std::optional(std::move(kept)) : std::nullopt;
}

Kept_Files kept_histories() {
    return {data_directory().path("history"), "undo", limits};
}

// Not flushed: torn by a power cut, it is no history of the file any more.
void keep_history(const Tileset_Document& document) {
    const Undo_History& history = document.history();
    const Kept_Files kept = kept_histories();
    const std::string path = kept.path_for(document.file_name());
    if (!history.has_steps() || !document.own_file()) {
        remove_file(path);
        return;
    }
    const std::vector<std::uint8_t> bytes = encode_history(history, document.own_file()->stamp);
    File_Handle file = kept.make_folder() ? open_file(path, File_Mode::write) : nullptr;
    if (!file || !write_bytes(file.get(), bytes) || !close_file(std::move(file))) {
        remove_file(path);
        return;
    }
    kept.keep_to_limits();
}

bool bring_history_back(Tileset_Document& document) {
    if (!document.own_file()) {
        return false;
    }
    const std::vector<std::uint8_t> bytes = bytes_of_file(kept_histories().path_for(document.file_name()));
    std::optional<Kept_History> kept = decode_history(bytes, document.own_file()->stamp, document.tileset());
    if (kept) {
        document.history().restore(std::move(kept->entries), kept->position);
    }
    return kept.has_value();
}

} // namespace quadrelle
