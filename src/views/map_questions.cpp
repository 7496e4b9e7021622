#include "views/map_questions.h"

#include "ui/dialog_container.h"

namespace quadrelle {

namespace {

constexpr int width_id = 11;
constexpr int height_id = 21;
constexpr int columns_id = 30;
constexpr int rows_id = 40;
constexpr Size first_size{60, 40};

void add_size(Dialog_Container& dialog, Size size) {
    dialog.add_row(make_number_row(width_id, "Columns:", Cyclic_Int(size.width, 1, largest_map_edge)));
    dialog.add_row(make_number_row(height_id, "Rows:", Cyclic_Int(size.height, 1, largest_map_edge)));
}

} // namespace

std::optional<Size> ask_map_size() {
    Dialog_Container dialog("New map");
    add_size(dialog, first_size);
    dialog.finish_ok_cancel();
    if (!dialog.run()) {
        return std::nullopt;
    }
    return Size{dialog.value(width_id), dialog.value(height_id)};
}

std::optional<Map_Sides> ask_map_sides(Size size) {
    Dialog_Container dialog("Size of the map");
    add_size(dialog, size);
    dialog.add_row(make_choice_row(columns_id, "Columns change at the right,Columns change at the left$", 0));
    dialog.add_row(make_choice_row(rows_id, "Rows change at the bottom,Rows change at the top$", 0));
    dialog.finish_ok_cancel();
    if (!dialog.run()) {
        return std::nullopt;
    }
    const int columns = dialog.value(width_id) - size.width;
    const int rows = dialog.value(height_id) - size.height;
    const bool is_left = dialog.value(columns_id) == 1;
    const bool is_top = dialog.value(rows_id) == 1;
    return Map_Sides{is_left ? columns : 0, is_top ? rows : 0, is_left ? 0 : columns, is_top ? 0 : rows};
}

} // namespace quadrelle
