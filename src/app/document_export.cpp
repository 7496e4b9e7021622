#include "app/document_export.h"

#include "app/selection_desk.h"
#include "base/atomic_file.h"
#include "base/block_file.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "pixels/picture_formats.h"
#include "tileset/bitmap_export.h"
#include "tileset/document.h"
#include "ui/dialogs.h"
#include "views/ask_for_file.h"
#include "views/export_dialog.h"
#include "views/sheet_dialog.h"

#include <span>
#include <utility>

namespace quadrelle {

namespace {

// The document's tiles as they are seen, kept as long as they are needed.
class Seen_Document {
public:
    Seen_Document(const Tileset& tileset, const Selection_Desk& desk)
        : tileset_(tileset), settled_(desk.settled_tile()),
          selected_(desk.has_something() ? desk.what_to_copy() : std::nullopt) {
        for (int i = 0; i < tileset.count(); ++i) {
            sources_.whole_set.push_back(tile_at(i));
        }
        if (tileset.has_tiles()) {
            sources_.current_tile.push_back(tile_at(tileset.current_index()));
        }
        if (selected_ && selected_->picture->pixel_count() > 0) {
            const Tile& picture = selected_->picture;
            sources_.selection.push_back(&picture);
        }
    }
    Seen_Document(const Seen_Document&) = delete;
    Seen_Document& operator=(const Seen_Document&) = delete;

    [[nodiscard]] const Sheet_Sources& sources() const { return sources_; }
    [[nodiscard]] Tile bitmap() const { return export_picture(tileset_, settled_); }

private:
    [[nodiscard]] const Tile* tile_at(int i) const {
        return settled_ && i == tileset_.current_index() ? &*settled_ : &tileset_.tile_at(i);
    }

    const Tileset& tileset_;
    std::optional<Tile> settled_;
    std::optional<Floating_Paste> selected_;
    Sheet_Sources sources_;
};

bool write_sheet(const Sheet_Tiles& tiles, const Export_Record& record) {
    const std::vector<std::uint8_t> picture = encode_png(sheet_picture(tiles, record.choice->layout));
    Atomic_File picture_file(record.path);
    if (picture.empty() || !picture_file.write(picture)) {
        return false;
    }
    if (!record.choice->has_description) {
        return picture_file.commit();
    }
    // Neither takes the place of an old file before both could be written.
    Atomic_File description(with_extension(record.path, "tsx"));
    const std::string text = sheet_description(file_part(record.path), tiles.front()->size(),
                                               static_cast<int>(tiles.size()), record.choice->layout);
    return description.write({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}) &&
           picture_file.commit() && description.commit();
}

// What was lifted is in the pictures of the tiles, and settles.
std::optional<std::string> write(const Seen_Document& seen, Export_Record record, Tileset_Document& document,
                                 Selection_Desk& desk) {
    const bool is_selection = record.choice && record.choice->what == Exported::selection;
    const bool is_written = record.choice ? write_sheet(seen.sources().of(record.choice->what), record)
                                          : save_bitmap(seen.bitmap(), record.path);
    if (!is_selection) {
        desk.settle_to_save();
    }
    if (!is_written) {
        dialogs->file_message("Could not save the file.", record.path);
        return std::nullopt;
    }
    std::string path = record.path;
    document.set_last_export(std::move(record));
    return path;
}

// The dialog has asked about the picture only.
bool may_replace_description(const Export_Record& record) {
    return !record.choice->has_description ||
           path_kind(with_extension(record.path, "tsx")) == Path_Kind::nothing ||
           dialogs->ask("Export", "Save over existing tileset file (.tsx)?");
}

std::optional<Export_Record> ask_for_png(const Seen_Document& seen, const Tileset_Document& document) {
    const std::optional<Export_Record>& last = document.last_export();
    Export_Record record{
        document.file_name(),
        ask_for_sheet(seen.sources(), last ? last->choice.value_or(Sheet_Choice()) : Sheet_Choice())};
    const bool is_chosen = record.choice && choose_file(File_Dialog_Kind::export_png, record.path) &&
                           may_replace_description(record);
    return is_chosen ? std::optional(std::move(record)) : std::nullopt;
}

bool has_pixels(const Tileset& tileset) {
    if (tileset.tile_bytes() == 0) {
        dialogs->message("Note", "The tiles of this set have no pixels.");
    }
    return tileset.tile_bytes() != 0;
}

} // namespace

std::optional<std::string> export_document(Tileset_Document& document, Selection_Desk& desk) {
    const Tileset& tileset = document.tileset();
    if (!has_pixels(tileset)) {
        return std::nullopt;
    }
    const Seen_Document seen(tileset, desk);
    std::optional<Export_Record> record = Export_Record{document.file_name(), std::nullopt};
    switch (Export_Dialog(seen.bitmap(), tileset.count()).run()) {
    case Export_Way::none: return std::nullopt;
    case Export_Way::png: record = ask_for_png(seen, document); break;
    case Export_Way::bitmap:
        if (!choose_file(File_Dialog_Kind::export_bitmap, record->path)) {
            return std::nullopt;
        }
    }
    return record ? write(seen, std::move(*record), document, desk) : std::nullopt;
}

std::optional<std::string> export_again(Tileset_Document& document, Selection_Desk& desk) {
    if (!has_pixels(document.tileset())) {
        return std::nullopt;
    }
    const Seen_Document seen(document.tileset(), desk);
    const Export_Record record = *document.last_export();
    if (const char* const fault = record.choice ? fault_of_sheet(seen.sources(), *record.choice) : nullptr) {
        dialogs->message("Note", fault);
        return std::nullopt;
    }
    return write(seen, record, document, desk);
}

} // namespace quadrelle
