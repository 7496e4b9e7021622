#include "views/versions_layout.h"

#include "ui/button_dialog_item.h"
#include "ui/dialog_frame.h"

#include <algorithm>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr int gap = 8;
constexpr int narrowest = 211;
constexpr int button_room = 32;
constexpr int label_gap = 3;
constexpr int label_height = 20;

// In window pixels for two tile pixels, so that a half is a whole number.
struct View_Scale {
    int big;
    int slot;
};

// The first that fits is taken. The last one fits for tiles of 255 x 255, the largest there are.
constexpr std::array<View_Scale, 4> scales{{{6, 4}, {6, 2}, {4, 2}, {4, 1}}};

struct View_Sizes {
    Size big;
    Size slot;
};

constexpr Size button_size(Button_Type type) {
    return button_table.at(static_cast<std::size_t>(type)).size();
}

constexpr Size scaled(Size tile, int scale) {
    return {std::max(tile.width * scale / 2, 1), std::max(tile.height * scale / 2, 1)};
}

Size dialog_size(const View_Sizes& views) {
    const int width = views.big.width + Tile_Versions::slot_count * (gap + views.slot.width);
    const int height = std::max(views.big.height, views.slot.height + label_gap + label_height);
    return {std::max(narrowest, width) + 2 * dialog_margin,
            height + button_room + 2 * dialog_margin + dialog_title_height};
}

View_Sizes fitting_views(Size tile, Size window) {
    View_Sizes views;
    for (const View_Scale& scale : scales) {
        views = {scaled(tile, scale.big), scaled(tile, scale.slot)};
        const Size size = dialog_size(views);
        if (size.width <= window.width && size.height <= window.height) {
            break;
        }
    }
    return views;
}

void place_slots(Versions_Layout& layout, Size slot) {
    int x = layout.big_view.right() + gap;
    for (std::size_t i = 0; i < layout.slots.size(); ++i) {
        layout.slots[i] = {x, layout.big_view.y, slot.width, slot.height};
        layout.labels[i] = {x - gap / 2, layout.slots[i].bottom() + label_gap, slot.width + gap,
                            label_height};
        x += slot.width + gap;
    }
}

void place_buttons(Versions_Layout& layout) {
    const Rectangle row = layout.dialog.inset(dialog_margin);
    const Size store = button_size(Button_Type::set);
    const Size take = button_size(Button_Type::copy);
    layout.store_button = {row.x, row.bottom() - store.height, store.width, store.height};
    layout.take_button = {row.right() - take.width, row.bottom() - take.height, take.width, take.height};
}

} // namespace

std::optional<int> Versions_Layout::slot_at(Point point) const {
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (slots[i].contains(point) || labels[i].contains(point)) {
            return static_cast<int>(i);
        }
    }
    return std::nullopt;
}

Versions_Layout versions_layout(Size tile, Size window) {
    const View_Sizes views = fitting_views(tile, window);
    Versions_Layout layout;
    layout.dialog = centred(dialog_size(views), {0, 0, window.width, window.height});
    layout.big_view = {layout.dialog.x + dialog_margin, layout.dialog.y + dialog_title_height + dialog_margin,
                       views.big.width, views.big.height};
    place_slots(layout, views.slot);
    place_buttons(layout);
    return layout;
}

} // namespace quadrelle
