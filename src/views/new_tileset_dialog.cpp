#include "views/new_tileset_dialog.h"

#include "ui/dialog_container.h"

namespace quadrelle {

std::unique_ptr<New_Tileset_Dialog> new_tileset_dialog;

namespace {

constexpr int width_id = 11;
constexpr int height_id = 21;
constexpr int keep_id = 30;
constexpr Cyclic_Int tile_extent{24, 6, 64};

} // namespace

std::optional<New_Tileset_Choice> New_Tileset_Dialog::run() const {
    Dialog_Container dialog("New tileset");
    dialog.add_row(make_number_row(width_id, "Width:", tile_extent));
    dialog.add_row(make_number_row(height_id, "Height:", tile_extent));
    dialog.add_row(make_tick_row(keep_id, "Keep and resize", Tick::off));
    dialog.finish_ok_cancel();
    if (!dialog.run()) {
        return std::nullopt;
    }
    return New_Tileset_Choice{{dialog.value(width_id), dialog.value(height_id)}, dialog.value(keep_id) == 1};
}

} // namespace quadrelle
