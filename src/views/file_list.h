#pragma once

// A folder's rows in a box: which are shown, which one is selected, and the scroll bar beside them.

#include "base/folder_listing.h"
#include "base/geometry.h"
#include "pixels/tile.h"
#include "ui/focus.h"
#include "ui/scroll_bar.h"
#include "ui/shown_tile.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>

namespace quadrelle {

class File_List {
public:
    // The listing is borrowed.
    File_List(const Rectangle& area, const Folder_Listing& listing);

    [[nodiscard]] const Rectangle& area() const { return area_; }
    [[nodiscard]] std::optional<std::size_t> selected() const { return selected_; }
    // Returns how many rows have room.
    [[nodiscard]] int page() const { return bar_.page(); }
    // Returns the place of a row in the window; it lies beyond the box for one that is not shown.
    [[nodiscard]] Rectangle row_area(std::size_t row) const;

    // Selects nothing; to be called when other rows are listed.
    void reset();
    void select(std::size_t row);
    // Stops at the first and the last row.
    void move_selection(int rows);
    void scroll_by_wheel(float amount) { bar_.scroll_by_wheel(amount); }

    enum class Press { nothing, selects, opens };
    // The second click on one and the same row opens it. A press on the scroll bar grabs the pointer.
    Press press(Point point);
    void drag(Point point) { bar_.drag(point); }
    void release() { bar_.release(); }

    // Up and down act on the list, and Return on its selected row only if that was chosen.
    struct Focused {
        Focus list = Focus::no;
        Focus row = Focus::no;
    };
    // A set of tiles has its first one before its name.
    void draw(Focused focused);

private:
    [[nodiscard]] int count() const { return static_cast<int>(listing_->rows().size()); }
    void draw_row(std::size_t row, Focus focus);
    struct First_Tile {
        std::unique_ptr<Tile> tile; // null of what is no set
        Shown_Tile shown;
    };
    // Reads the file when its row is shown first.
    [[nodiscard]] First_Tile& first_tile(std::size_t row);
    void draw_icon(std::size_t row, Point position);

    Rectangle area_;
    const Folder_Listing* listing_;
    std::optional<std::size_t> selected_;
    std::optional<std::size_t> clicked_;
    Scroll_Bar bar_;
    std::map<std::size_t, First_Tile> first_tiles_; // by row
};

} // namespace quadrelle
