#pragma once

// The pixels of the sheet and who drew them.

#include "palette.h"
#include "screen/sprite_table.h"

#include <string>
#include <vector>

namespace quadrelle {

class Sheet_Picture {
public:
    Sheet_Picture();

    // The point lies inside the sheet.
    Rgb at(int x, int y) const { return pixels_[index(x, y)]; }

    // Returns the name of an earlier owner whose pixel had another colour, else an empty text.
    std::string draw(int x, int y, Rgb colour, const std::string& owner);

private:
    static std::size_t index(int x, int y) {
        return static_cast<std::size_t>(y) * sheet_width + static_cast<std::size_t>(x);
    }

    std::vector<Rgb> pixels_;
    std::vector<std::size_t> owners_;
    std::vector<std::string> owner_names_;
};

} // namespace quadrelle
