#include "views/sheet_dialog.h"

#include "color/translucency.h"
#include "screen/opaque_texture.h"
#include "screen/screen.h"
#include "ui/dialog_container.h"
#include "ui/dialogs.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quadrelle {

namespace {

constexpr int preview_id = 1;
constexpr int what_id = 11;
constexpr int columns_id = 21;
constexpr int margin_id = 31;
constexpr int spacing_id = 41;
constexpr int extrusion_id = 51;
constexpr int scale_id = 61;
constexpr int description_id = 70;
constexpr int most_columns = 256;
constexpr int widest_space = 64;
constexpr int widest_rim = 8;
constexpr int largest_scale = 8;

// The picture as it will be, unscaled, as large as fits.
class Sheet_Preview : public Dialog_Item {
public:
    static constexpr Size view_size{560, 320};

    Sheet_Preview(Item_Id ids, const Sheet_Sources& sources, std::function<Sheet_Choice()> choice)
        : Dialog_Item(ids), sources_(sources), choice_(std::move(choice)), view_(view_size) {
        area.width = view_size.width;
        area.height = view_size.height + caption_height;
    }

    Dialog_Event click(Point /*point*/) override { return {}; }
    void draw() const override;

private:
    static constexpr int caption_height = 28;

    void compose(const Tile& picture) const;

    const Sheet_Sources& sources_;
    std::function<Sheet_Choice()> choice_;
    // What is shown now.
    mutable std::optional<std::pair<Exported, Sheet_Layout>> shown_;
    mutable Opaque_Texture view_;
};

void Sheet_Preview::compose(const Tile& picture) const {
    constexpr int largest_enlargement = 8;
    const auto parts = [](int length, int room) { return std::max((length + room - 1) / room, 1); };
    const int part =
        std::max(parts(picture.width(), view_size.width), parts(picture.height(), view_size.height));
    const int times =
        std::clamp(std::min(view_size.width / picture.width(), view_size.height / picture.height()), 1,
                   largest_enlargement);
    const Point start{(view_size.width - picture.width() * times / part) / 2,
                      (view_size.height - picture.height() * times / part) / 2};
    view_.update([&](const Pixel_Rows& target) {
        for (int y = 0; y < view_size.height; ++y) {
            for (int x = 0; x < view_size.width; ++x) {
                const Point source{(x - start.x) * part / times, (y - start.y) * part / times};
                const bool is_inside =
                    x >= start.x && y >= start.y && !picture.is_outside(source.x, source.y);
                target.row(y)[x] =
                    is_inside ? blended_over(picture.get_pixel(source.x, source.y), checkerboard_color(x, y))
                              : standard_color(Standard_Color::dark_frame);
            }
        }
    });
}

void Sheet_Preview::draw() const {
    const Sheet_Choice choice = choice_();
    const Sheet_Tiles& tiles = sources_.of(choice.what);
    std::string caption = "Nothing is selected.";
    if (!tiles.empty()) {
        const int count = static_cast<int>(tiles.size());
        const Size size = sheet_size(tiles.front()->size(), count, choice.layout);
        caption = std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels, " +
                  std::to_string(count) + (count == 1 ? " tile" : " tiles") +
                  (is_possible_sheet(size) ? "" : ": too large");
    }
    Sheet_Layout unscaled = choice.layout;
    unscaled.scale = 1;
    if (const std::pair wanted{choice.what, unscaled}; wanted != shown_) {
        shown_ = wanted;
        const bool is_possible =
            !tiles.empty() &&
            is_possible_sheet(sheet_size(tiles.front()->size(), static_cast<int>(tiles.size()), unscaled));
        compose(is_possible ? sheet_picture(tiles, unscaled) : Tile(1, 1));
    }
    view_.draw_at({area.x, area.y});
    screen->draw_text(Font::pane, {area.x, area.y + view_size.height + 4}, caption);
}

Sheet_Choice shown_choice(const Dialog_Container& dialog) {
    return {static_cast<Exported>(dialog.value(what_id)),
            {dialog.value(columns_id), dialog.value(margin_id), dialog.value(spacing_id),
             dialog.value(extrusion_id), dialog.value(scale_id)},
            dialog.value(description_id) == 1};
}

void add_rows(Dialog_Container& dialog, const Sheet_Choice& start) {
    const Sheet_Layout& layout = start.layout;
    dialog.add_row(make_choice_row(what_id, "The whole set,The current tile,What is selected$",
                                   static_cast<int>(start.what)));
    dialog.add_row(make_number_row(columns_id, "Columns:", {layout.columns, 1, most_columns}));
    dialog.add_row(make_number_row(margin_id, "Margin:", {layout.margin, 0, widest_space}));
    dialog.add_row(make_number_row(spacing_id, "Spacing:", {layout.spacing, 0, widest_space}));
    dialog.add_row(make_number_row(extrusion_id, "Extruded edges:", {layout.extrusion, 0, widest_rim}));
    dialog.add_row(make_number_row(scale_id, "Scale:", {layout.scale, 1, largest_scale}));
    dialog.add_row(make_tick_row(description_id, "Tileset file (.tsx) beside it",
                                 start.has_description ? Tick::on : Tick::off));
}

} // namespace

const Sheet_Tiles& Sheet_Sources::of(Exported what) const {
    switch (what) {
    case Exported::current_tile: return current_tile;
    case Exported::selection: return selection;
    case Exported::whole_set: break;
    }
    return whole_set;
}

const char* fault_of_sheet(const Sheet_Sources& sources, const Sheet_Choice& choice) {
    const Sheet_Tiles& tiles = sources.of(choice.what);
    if (tiles.empty()) {
        return "Nothing is selected.";
    }
    const Size size = sheet_size(tiles.front()->size(), static_cast<int>(tiles.size()), choice.layout);
    return is_possible_sheet(size) ? nullptr : "The picture would be too large.";
}

std::optional<Sheet_Choice> ask_for_sheet(const Sheet_Sources& sources, const Sheet_Choice& start) {
    Dialog_Container dialog("Export as .png");
    Dialog_Row row;
    row.add<Sheet_Preview>(Item_Id{preview_id}, sources, [&dialog] { return shown_choice(dialog); });
    dialog.add_row(std::move(row));
    add_rows(dialog, start);
    dialog.finish_ok_cancel();
    while (dialog.run()) {
        const Sheet_Choice choice = shown_choice(dialog);
        const char* const fault = fault_of_sheet(sources, choice);
        if (fault == nullptr) {
            return choice;
        }
        dialogs->message("Note", fault);
    }
    return std::nullopt;
}

} // namespace quadrelle
