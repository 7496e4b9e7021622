#pragma once

// Shows the picture of a set before it is written. Writes nothing.

#include "pixels/tile.h"
#include "screen/events.h"
#include "screen/opaque_texture.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_frame.h"
#include "ui/text_button.h"

#include <optional>
#include <string>

namespace quadrelle {

enum class Export_Way { none, bitmap, png };

class Export_Dialog {
public:
    static constexpr Size view_size{512, 512};

    // Borrows the picture, which must have pixels. `tile_count` is that of the set, which may have more tiles
    // than the picture.
    Export_Dialog(const Tile& picture, int tile_count);

    // Returns what was chosen; to accept is to choose the bitmap.
    [[nodiscard]] Export_Way run();

private:
    [[nodiscard]] Loop_Step handle(const Input_Event& event);
    [[nodiscard]] Loop_Step accept();
    void handle_key(Keycode pressed);
    [[nodiscard]] Loop_Step press(const Pointer_State& pointer);
    void drag_to(Point point);
    // Shows what lies that far to the right and below, as far as there is something.
    void scroll_by(Point step);
    void compose_view();
    void draw() const;
    void draw_overflow_marks() const;

    const Tile& picture_;
    std::string caption_;
    Dialog_Frame frame_;
    Rectangle view_area_;
    Button_Dialog_Item ok_;
    Button_Dialog_Item cancel_;
    Text_Button png_;
    Size seen_; // of the picture, from `offset_` on
    Opaque_Texture view_;
    Point offset_;
    std::optional<Point> dragged_from_;
    Export_Way way_ = Export_Way::none;
};

} // namespace quadrelle
