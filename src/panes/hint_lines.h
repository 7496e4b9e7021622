#pragma once

// The lines under the canvas that say what is under the pointer, as one picture: text drawn letter by letter
// into every frame would be a third of its time.

#include "base/geometry.h"
#include "panes/hint.h"
#include "screen/opaque_texture.h"
#include "screen/surface.h"

#include <string>
#include <vector>

namespace quadrelle {

class Hint_Lines {
public:
    // The screen must be there.
    Hint_Lines();

    // Brings the hint into lines that fit; what has no room is cut off with "...".
    void set_hint(const Hint& hint);
    void draw() const;

    // Returns the lines from the top, as they are drawn; the first one is the title.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

private:
    void compose_picture();

    Hint hint_;
    std::vector<std::string> lines_;
    Surface picture_;
    Opaque_Texture texture_;
};

} // namespace quadrelle
