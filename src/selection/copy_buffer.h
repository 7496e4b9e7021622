#pragma once

// The pictures that were copied or cut last. Knows no view.

#include "selection/floating_paste.h"

#include <cstddef>
#include <deque>

namespace quadrelle {

class Copy_Buffer {
public:
    static constexpr std::size_t capacity = 16;

    // The copy becomes the newest and the current one. One with the same pixels goes: it is not kept twice.
    // Beyond the capacity the oldest one is forgotten.
    void add(const Floating_Paste& copy);
    // Returns the copy at the place from which it was taken; null while nothing was copied.
    [[nodiscard]] const Floating_Paste* current() const;
    // The newest copy comes first.
    [[nodiscard]] const std::deque<Floating_Paste>& copies() const { return copies_; }
    [[nodiscard]] std::size_t current_index() const { return current_; }
    // An index that no copy has changes nothing.
    void choose(std::size_t index);
    // Forgets that copy. When it was the current one, the one in its place is it then. An index that no copy
    // has changes nothing.
    void remove(std::size_t index);

private:
    std::deque<Floating_Paste> copies_;
    std::size_t current_ = 0;
};

// Where a copy lies when it is cloned.
enum class Clone_Style : int { original_location, centred, top_left, resized };
[[nodiscard]] Floating_Paste cloned(const Floating_Paste& copy, Clone_Style style, Size tile);
// Returns the paste, moved into the middle of the tile if it lies beside it, as one from a larger tile may.
[[nodiscard]] Floating_Paste in_view(const Floating_Paste& paste, Size tile);

} // namespace quadrelle
