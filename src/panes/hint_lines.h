#pragma once

// The lines under the canvas that say what is under the pointer.

#include "panes/hint.h"

#include <string>
#include <vector>

namespace quadrelle {

class Hint_Lines {
public:
    // Brings the hint into lines that fit; what has no room is cut off with "...".
    void set_hint(const Hint& hint);
    void draw() const;

    // Returns the lines from the top, as they are drawn; the first one is the title.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

private:
    Hint hint_;
    std::vector<std::string> lines_;
};

} // namespace quadrelle
