#pragma once

// The named palettes and their file. Draws nothing.

#include "color/palette.h"

#include <memory>
#include <string>
#include <vector>

namespace quadrelle {

// The store is never without a palette; a palette that was read has 0 to 1024 entries. Palettes and entries
// outside of the store read as "" and opaque black, and are not set.
class Palette_Store {
public:
    // Reads the file in the current directory. Without one, or with one that holds no palette, the store has
    // the built-in palettes. A file that is shorter than it says is fatal.
    explicit Palette_Store(std::string file_name = "palette.dat");
    // Writes the file when a colour was set; says nothing when it cannot.
    ~Palette_Store();
    Palette_Store(const Palette_Store&) = delete;
    Palette_Store& operator=(const Palette_Store&) = delete;

    // Counts the palettes.
    [[nodiscard]] int size() const { return static_cast<int>(palettes_.size()); }
    [[nodiscard]] int count(int palette) const;
    [[nodiscard]] std::string name(int palette) const;
    // The palette is there.
    [[nodiscard]] const Palette& palette(int index) const {
        return palettes_.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] Color color(int palette, int entry) const;
    void set_color(int palette, int entry, Color color);
    [[nodiscard]] bool changed() const { return changed_; }

private:
    void load();
    void save();
    [[nodiscard]] const Palette* find(int palette) const;

    std::string file_name_;
    bool changed_ = false;
    std::vector<Palette> palettes_;
};

// It is built at start-up inside the data directory and destroyed there too.
extern std::unique_ptr<Palette_Store> palette_store;

} // namespace quadrelle
