// Feeds any bytes to the readers of files. QUADRELLE_READER names the reader; libFuzzer has the loop around
// it.

#include "base/block_file.h"
#include "base/checksum.h"
#include "base/data_stream.h"
#include "base/fatal.h"
#include "base/fingerprint.h"
#include "base/packed_bytes.h"
#include "color/palette_formats.h"
#include "color/palette_store.h"
#include "map/map_file.h"
#include "map/tmx.h"
#include "pixels/picture_formats.h"
#include "tileset/history_code.h"
#include "tileset/history_file.h"
#include "tileset/journal_record.h"
#include "tileset/tileset_file.h"
#include "tools/brush_pad.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace quadrelle {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Larger pictures are judged by their header alone.
constexpr int largest_edge = 512;

struct Fatal_End {};

// A file of this process with the bytes in it, for the readers that open files.
const std::string& file_with(Bytes bytes) {
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("quadrelle-fuzz-" + std::to_string(getpid()))).string();
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() ||
        std::fclose(file) != 0) {
        std::abort();
    }
    return path;
}

std::string_view text_of(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

void read_palettes(Bytes bytes) {
    for (const char* const name : {"a.gpl", "a.hex", "a.pal", "a.act", "a.txt"}) {
        const Palette_Reading reading = read_palette(bytes, name);
        // What was read is written, and read the same.
        if (reading.palette) {
            const std::string text = gpl_text(*reading.palette);
            const Palette_Reading again =
                read_palette({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, "a.gpl");
            if (!again.palette || again.palette->colors != reading.palette->colors) {
                std::abort();
            }
        }
    }
    static_cast<void>(read_hex_colors(text_of(bytes)));
}

// No random bytes have the checksum that the file ends with.
void read_map_file(Bytes bytes) {
    std::vector<std::uint8_t> file(bytes.begin(), bytes.end());
    const std::uint32_t sum = checksum(bytes);
    for (unsigned shift = 0; shift < 32; shift += 8) {
        file.push_back(static_cast<std::uint8_t>(sum >> shift));
    }
    static_cast<void>(decode_map(file));
}

// Nor those that its records end with: the input is kinds, lengths and contents.
void read_journal_file(Bytes bytes) {
    std::vector<std::uint8_t> journal = journal_head();
    Packed_Reader rest(bytes);
    while (!rest.is_at_end()) {
        const std::uint8_t kind = rest.byte();
        const std::size_t length = std::size_t{rest.byte()} << 8U | rest.byte();
        const Bytes contents = rest.bytes(length);
        std::vector<std::uint8_t> record{'Q', 'J', 'R', 0xb7};
        pack_word(record, kind);
        pack_word(record, static_cast<std::uint32_t>(contents.size()));
        pack_bytes(record, contents);
        pack_word(record, checksum(record));
        pack_bytes(journal, record);
    }
    const Read_Journal read = read_journal(journal);
    const Read_Journal again = read_journal(journal_of(read.sets));
    if (again.is_damaged || again.sets.size() != read.sets.size()) {
        std::abort();
    }
}

// A history of two tiles of 4 x 3, without its last word, which is its fingerprint.
void read_history(Bytes bytes) {
    Tileset tileset({4, 3});
    for (int i = 0; i < 2; ++i) {
        tileset.append_loaded(std::make_unique<Tile>(4, 3));
    }
    std::vector<std::uint8_t> file(bytes.begin(), bytes.end());
    History_Writer seal;
    seal.word(fingerprint_of(bytes));
    pack_bytes(file, seal.bytes());
    static_cast<void>(decode_history(file, File_Stamp(), tileset));
}

void read_tmx_file(Bytes bytes) {
    static_cast<void>(read_tmx(text_of(bytes), {8, 8}, 30));
}

void read_tileset_file(Bytes bytes) {
    const std::string& path = file_with(bytes);
    static_cast<void>(load_first_tile(path));
    static_cast<void>(load_tileset(path));
}

void read_palette_store(Bytes bytes) {
    const Palette_Store store(file_with(bytes));
}

void read_brush_pad(Bytes bytes) {
    Block_File file(file_with(bytes));
    Data_Stream record;
    if (file.open_read()) {
        record.load_from(file);
        Brush_Pad pad;
        pad.load(record);
    }
}

// Each of the reads in the order that the first bytes name.
void read_record(Bytes bytes) {
    const Bytes order = bytes.first(std::min<std::size_t>(bytes.size(), 16));
    Data_Stream record{std::string(text_of(bytes.subspan(order.size())))};
    std::array<std::uint8_t, 7> buffer{};
    for (const std::uint8_t kind : order) {
        switch (kind % 5) {
        case 0: static_cast<void>(record.read_int()); break;
        case 1: static_cast<void>(record.read_real()); break;
        case 2: static_cast<void>(record.read_text()); break;
        case 3: record.read_bytes(buffer); break;
        default: static_cast<void>(record.read_quad()); break;
        }
    }
}

struct Reader {
    std::string_view name;
    void (*read)(Bytes bytes);
};

constexpr std::array readers = std::to_array<Reader>({
    {"qdl", read_tileset_file},
    {"record", read_record},
    {"palette_store", read_palette_store},
    {"brush_pad", read_brush_pad},
    {"palette", read_palettes},
    {"map", read_map_file},
    {"journal", read_journal_file},
    {"history", read_history},
    {"tmx", read_tmx_file},
    {"png", [](Bytes bytes) { static_cast<void>(decode_png(bytes, largest_edge)); }},
    {"bmp", [](Bytes bytes) { static_cast<void>(decode_bitmap(bytes, largest_edge)); }},
});

const Reader& chosen_reader() {
    const char* const name = std::getenv("QUADRELLE_READER");
    const auto* const found = std::ranges::find(readers, name == nullptr ? "" : name, &Reader::name);
    if (found == readers.end()) {
        std::fputs("QUADRELLE_READER names no reader\n", stderr);
        std::_Exit(2);
    }
    return *found;
}

} // namespace

} // namespace quadrelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const quadrelle::Reader& reader = quadrelle::chosen_reader();
    // A file that is too short may be fatal.
    quadrelle::set_last_act([] { throw quadrelle::Fatal_End(); });
    try {
        reader.read({data, size});
    } catch (const quadrelle::Fatal_End&) {
        return 0;
    }
    return 0;
}
