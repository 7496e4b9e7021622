#include "sheet_picture.h"

namespace quadrelle {

namespace {

constexpr std::size_t pixel_count = static_cast<std::size_t>(sheet_width) * sheet_height;
constexpr std::size_t nobody = 0;

} // namespace

Sheet_Picture::Sheet_Picture()
    : pixels_(pixel_count, transparent_colour), owners_(pixel_count, nobody), owner_names_{""} {}

std::string Sheet_Picture::draw(int x, int y, Rgb colour, const std::string& owner) {
    if (owner_names_.back() != owner) {
        owner_names_.push_back(owner);
    }
    const std::size_t i = index(x, y);
    const bool conflict = owners_[i] != nobody && pixels_[i] != colour;
    std::string former = conflict ? owner_names_[owners_[i]] : "";
    pixels_[i] = colour;
    owners_[i] = owner_names_.size() - 1;
    return former;
}

} // namespace quadrelle
