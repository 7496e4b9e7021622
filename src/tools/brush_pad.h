#pragma once

// The stamp brushes that the user keeps, and the board on which each lies at its own place. Draws nothing.

#include "base/geometry.h"
#include "pixels/tile.h"
#include "tools/brush.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quadrelle {

class Data_Stream;

struct Pad_Brush {
    // Paints the picture where the mask is white. Both have the same size, at least one pixel wide and high.
    Pad_Brush(const Tile& brush_picture, const Tile& brush_mask);

    Tile picture;
    Tile mask;
    std::array<std::int32_t, 2> pair{}; // only kept for the file, which has room for it
    // It is two pixels wider and higher than the brush. What is not transparent black, the brush and a ring
    // of one pixel around it, takes room on the board.
    Tile outline;
    Tile_Point position; // of the outline's corner on the board
    std::uint8_t id = 0; // from 1 on the board
    Brush brush;
};

class Brush_Pad {
public:
    static constexpr Size board_size{64, 173};

    Brush_Pad();

    // Makes a brush that is not on the board, instead of the one before, and chooses it. Answers false for
    // one that would paint nothing.
    bool make_temporary(const Tile& picture, const Tile& mask);
    // Lays the temporary brush on the board, in the first place with room for it. Answers false without
    // such a brush, place or identifier.
    bool move_to_pad();
    // The first brush on the board is the current one then. Answers false when there was none to delete.
    bool delete_current();
    // Chooses the brush that covers the cell; answers false where there is none.
    bool click(Tile_Point cell);

    [[nodiscard]] bool has_current() const { return current_ != nullptr; }
    // Null stands for none; this and `current_brush` are valid until the pad is changed.
    [[nodiscard]] const Pad_Brush* current() const { return current_; }
    // May be asked only while there is one.
    [[nodiscard]] const Brush& current_brush() const { return current_->brush; }
    // Lists those on the board, in the order in which they came there.
    [[nodiscard]] const std::vector<std::unique_ptr<Pad_Brush>>& brushes() const { return brushes_; }
    // Returns 0 for a free cell and outside of the board.
    [[nodiscard]] std::uint8_t identifier_at(Tile_Point cell) const;

    // Whether the board differs from that of the file.
    [[nodiscard]] bool changed() const { return changed_; }
    // It is in the file now.
    void clear_changed() { changed_ = false; }
    // The number is another one whenever the board or the current brush was changed.
    [[nodiscard]] int revision() const { return revision_; }

    // These take the whole pad. What cannot be a brush of it is left out.
    void load(Data_Stream& record);
    void save(Data_Stream& record) const;

private:
    static constexpr std::size_t identifier_count = 256;

    [[nodiscard]] std::uint8_t free_identifier() const;
    [[nodiscard]] std::optional<Tile_Point> find_place(const Tile& outline) const;
    void read_brushes(Data_Stream& record);
    void choose(const Pad_Brush* brush);

    Tile board_; // the alpha of a cell is the identifier of the brush that covers it
    std::array<bool, identifier_count> used_{};
    std::vector<std::unique_ptr<Pad_Brush>> brushes_;
    std::unique_ptr<Pad_Brush> temporary_;
    const Pad_Brush* current_ = nullptr;
    bool changed_ = false;
    int revision_ = 0;
};

} // namespace quadrelle
