#include "views/picture_dialog.h"

#include "tileset/grid_guess.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_container.h"
#include "ui/dialogs.h"
#include "ui/text_dialog.h"
#include "views/cut_picture_item.h"

#include <utility>

namespace quadrelle {

namespace {

constexpr int picture_id = 1;
constexpr int width_id = 11;
constexpr int height_id = 21;
constexpr int margin_id = 31;
constexpr int spacing_id = 41;
constexpr int empty_id = 50;
constexpr int equal_id = 60;
constexpr int widest_space = 64;

Picture_Cut shown_cut(const Dialog_Container& dialog) {
    const auto skip = [&](int id) { return dialog.value(id) == 1 ? Skip::yes : Skip::no; };
    return {{{dialog.value(width_id), dialog.value(height_id)},
             dialog.value(margin_id),
             dialog.value(spacing_id)},
            skip(empty_id),
            skip(equal_id)};
}

void add_rows(Dialog_Container& dialog, const Picture_Grid& grid) {
    const auto edge = [](int value) { return Cyclic_Int(value, smallest_cut_edge, largest_cut_edge); };
    const auto space = [](int value) { return Cyclic_Int(value, 0, widest_space); };
    dialog.add_row(make_number_row(width_id, "Tile width:", edge(grid.tile.width)));
    dialog.add_row(make_number_row(height_id, "Tile height:", edge(grid.tile.height)));
    dialog.add_row(make_number_row(margin_id, "Margin:", space(grid.margin)));
    dialog.add_row(make_number_row(spacing_id, "Spacing:", space(grid.spacing)));
    Dialog_Row ticks = make_tick_row(empty_id, "Skip empty tiles", Tick::on);
    ticks.add<Radiobutton_Dialog_Item>(Item_Id{equal_id}, false);
    ticks.add<Text_Dialog>(Item_Id{}, "Skip equal tiles");
    dialog.add_row(std::move(ticks));
}

} // namespace

std::optional<Tileset> Picture_Dialog::run() const {
    Dialog_Container dialog("New tileset from picture");
    Dialog_Row row;
    const auto& shown =
        row.add<Cut_Picture_Item>(Item_Id{picture_id}, picture_, [&dialog] { return shown_cut(dialog); });
    dialog.add_row(std::move(row));
    add_rows(dialog, guess_grid(picture_));
    dialog.finish_ok_cancel();
    while (dialog.run()) {
        const Picture_Cut cut = shown_cut(dialog);
        if (shown.plan().taken > 0) {
            return cut_tiles(picture_, cut.grid, shown.plan());
        }
        dialogs->message("Note", "No tile would be taken from the picture.");
    }
    return std::nullopt;
}

} // namespace quadrelle
