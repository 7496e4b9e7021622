#pragma once

// A picture in a dialog with the grid of its tiles over it, and below it what will become of them.

#include "screen/opaque_texture.h"
#include "tileset/picture_tiles.h"
#include "ui/dialog_item.h"

#include <functional>
#include <optional>
#include <string>

namespace quadrelle {

class Cut_Picture_Item : public Dialog_Item {
public:
    static constexpr Size view_size{560, 350};

    // Borrows the picture, which must have pixels; `cut` tells what the dialog shows now.
    Cut_Picture_Item(Item_Id ids, const Tile& picture, std::function<Picture_Cut()> cut);

    // What becomes of the tiles as they are shown.
    [[nodiscard]] const Cut_Plan& plan() const;

    // The wheel is over the picture.
    [[nodiscard]] bool has_step(Dialog_Event_Kind kind) const override;
    void notify(Dialog_Event_Kind kind) override;
    // Puts that point into the middle.
    Dialog_Event click(Point point) override;
    void draw() const override;

private:
    // Window pixels for a pixel of the picture, or the other way round where that is less than one.
    struct Zoom {
        int times = 1;
        int part = 1;

        [[nodiscard]] int to_picture(int length) const { return length * part / times; }
        [[nodiscard]] int to_window(int length) const { return length * times / part; }
    };
    struct Line {
        int source = -1; // in the picture, or beside it
        int cell = -1;   // or between two tiles
        bool is_edge = false;
    };

    [[nodiscard]] Zoom fitting_zoom() const;
    void keep_inside();
    [[nodiscard]] std::vector<Line> lines(int length, int offset, int extent, int tile, int cells) const;
    void compose() const;
    [[nodiscard]] Color shown_color(const Line& across, const Line& down, Point place) const;
    [[nodiscard]] std::string caption() const;

    const Tile& picture_;
    std::function<Picture_Cut()> cut_;
    Zoom zoom_;
    Point offset_; // of what is shown, in the picture
    // Made anew when they are asked for and the dialog shows another cut.
    mutable Picture_Cut shown_;
    mutable std::optional<Cut_Plan> plan_;
    mutable Opaque_Texture view_;
    mutable bool is_composed_ = false;
};

} // namespace quadrelle
