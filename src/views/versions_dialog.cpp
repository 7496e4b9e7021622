#include "views/versions_dialog.h"

#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "ui/button_dialog_item.h"
#include "ui/checkerboard.h"
#include "ui/control.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/shown_tile.h"
#include "ui/swatch.h"
#include "ui/text_button.h"
#include "views/versions_layout.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>

namespace quadrelle {

namespace {

void draw_label(int slot, const Rectangle& area) {
    const std::string text = std::to_string(slot + 1);
    const int x = area.x + (area.width - screen->text_width(Font::pane, text)) / 2;
    screen->draw_text(Font::pane, {x, area.y}, text);
}

class Versions_Dialog {
public:
    Versions_Dialog(Tile_Versions& versions, const Tile& current);

    std::optional<int> run();

private:
    void draw();
    void draw_view(const Tile& tile, Shown_Tile& shown, const Rectangle& area) const;
    void draw_slot(int slot);
    [[nodiscard]] Loop_Step handle(const Input_Event& event);
    void handle_key(Keycode pressed);
    [[nodiscard]] Loop_Step press(const Pointer_State& pointer);
    [[nodiscard]] Loop_Step accept();
    void preview(int slot);
    [[nodiscard]] bool can_store() const { return selected_.has_value(); }
    // An empty version is no picture.
    [[nodiscard]] bool can_take() const { return selected_ && versions_.is_stored(*selected_); }

    Tile_Versions& versions_;
    const Tile& current_;
    Versions_Layout layout_;
    Dialog_Frame frame_{"Versions"};
    // Textures do not repeat, so it is as large as the largest area that it is to lie under.
    std::unique_ptr<Texture> checkerboard_;
    Shown_Tile shown_in_big_view_;
    std::array<Shown_Tile, Tile_Versions::slot_count> shown_in_slots_;
    Button_Dialog_Item store_button_{{}, Button_Type::set};
    Button_Dialog_Item take_button_{{}, Button_Type::copy};
    std::optional<int> selected_;
    bool is_previewing_ = false;
    bool takes_ = false;
};

Versions_Dialog::Versions_Dialog(Tile_Versions& versions, const Tile& current)
    : versions_(versions), current_(current), layout_(versions_layout(current.size(), screen->size())),
      checkerboard_(make_checkerboard({layout_.big_view.width, layout_.big_view.height})) {
    frame_.set_size({layout_.dialog.width, layout_.dialog.height - dialog_title_height});
    store_button_.area = layout_.store_button;
    take_button_.area = layout_.take_button;
}

std::optional<int> Versions_Dialog::run() {
    run_dialog({"dialog \"Versions\"", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); }});
    return takes_ ? selected_ : std::nullopt;
}

void Versions_Dialog::draw() {
    frame_.draw();
    const bool shows_slot = is_previewing_ && selected_;
    draw_view(shows_slot ? versions_.tile(*selected_) : current_, shown_in_big_view_, layout_.big_view);
    if (shows_slot) {
        draw_mark_around(layout_.big_view);
    }
    for (int slot = 0; slot < Tile_Versions::slot_count; ++slot) {
        draw_slot(slot);
    }
    store_button_.usable = usable_if(can_store());
    store_button_.draw();
    take_button_.usable = usable_if(can_take());
    take_button_.draw();
    if (can_take()) {
        draw_default_mark(layout_.take_button);
    }
}

void Versions_Dialog::draw_view(const Tile& tile, Shown_Tile& shown, const Rectangle& area) const {
    checkerboard_->draw_part({0, 0, area.width, area.height}, area);
    shown.draw(tile, area);
    screen->draw_outline(area.inset(-1), standard_color(Standard_Color::frame));
}

// A cross tells an empty slot from a black tile that was stored.
void Versions_Dialog::draw_slot(int slot) {
    const auto index = static_cast<std::size_t>(slot);
    const Rectangle& area = layout_.slots.at(index);
    draw_view(versions_.tile(slot), shown_in_slots_.at(index), area);
    if (!versions_.is_stored(slot)) {
        const Color color = standard_color(Standard_Color::frame);
        screen->draw_line({area.x, area.y}, {area.right() - 1, area.bottom() - 1}, color);
        screen->draw_line({area.x, area.bottom() - 1}, {area.right() - 1, area.y}, color);
    }
    if (selected_ == slot) {
        draw_mark_around(area);
    }
    draw_label(slot, layout_.labels.at(index));
    draw_outlined_answer(area);
}

Loop_Step Versions_Dialog::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: handle_key(event.chord.key); break;
    case Input_Kind::button_press: return press(event.pointer);
    case Input_Kind::key_release:
    case Input_Kind::button_release: is_previewing_ = false; break;
    default: break;
    }
    return Loop_Step::go_on;
}

void Versions_Dialog::handle_key(Keycode pressed) {
    if (pressed >= '1' && pressed < '1' + Tile_Versions::slot_count) {
        preview(static_cast<int>(pressed - '1'));
    }
}

Loop_Step Versions_Dialog::press(const Pointer_State& pointer) {
    const Point point = pointer.point();
    if (pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    if (const std::optional<int> slot = layout_.slot_at(point)) {
        preview(*slot);
    } else if (can_store() && store_button_.area.contains(point)) {
        versions_.store(*selected_, current_);
    }
    if (take_button_.area.contains(point)) {
        return accept();
    }
    return layout_.dialog.contains(point) ? Loop_Step::go_on : Loop_Step::end;
}

// Without a picture to take the dialog closes too.
Loop_Step Versions_Dialog::accept() {
    takes_ = can_take();
    return Loop_Step::end;
}

void Versions_Dialog::preview(int slot) {
    selected_ = slot;
    is_previewing_ = true;
}

} // namespace

std::optional<int> show_versions(Tile_Versions& versions, const Tile& current) {
    return Versions_Dialog(versions, current).run();
}

} // namespace quadrelle
