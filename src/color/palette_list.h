#pragma once

// All palettes: first those of the store, which stay as they are, then those that are kept, each in a file of
// its own that is written as soon as something changes. Each of these can be taken back step by step.

#include "color/palette_formats.h"
#include "color/palette_store.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

class Palette_List {
public:
    // Borrows the store, and reads what is in the folder, which need not be there. Files that are no palette
    // are left alone; there is a note about each.
    Palette_List(const Palette_Store& store, std::string folder);

    [[nodiscard]] int size() const { return store_.size() + static_cast<int>(kept_.size()); }
    [[nodiscard]] const Palette& palette(int index) const;
    [[nodiscard]] bool is_kept(int index) const { return index >= store_.size(); }
    [[nodiscard]] std::optional<int> find(std::string_view name) const;

    // Keeps it, which has a colour, under a name that no other one has, and returns its index. There and in
    // changes what is beyond the most colours is cut off.
    int add(Palette palette);
    // These return the index of the palette that has it then: one of the store stays, and a copy is kept.
    int change(int index, std::vector<Color> colors);
    int rename(int index, const std::string& name);
    // The palette is one that is kept.
    void remove(int index);

    [[nodiscard]] bool can_undo(int index) const;
    [[nodiscard]] bool can_redo(int index) const;
    // There is something to undo, or to redo.
    void undo(int index);
    void redo(int index);

    // Which palette is shown first at the next start; that is kept only beside palettes that are kept.
    [[nodiscard]] int first_shown() const { return first_shown_; }
    void set_first_shown(int index);

    // Hands over what went wrong since the last time, as sentences; empty for nothing.
    [[nodiscard]] std::string take_note();

private:
    struct Kept_Palette {
        Palette palette;
        std::string file_name;       // none before it was written first
        std::size_t fingerprint = 0; // of what was read from the file or written last
        std::vector<std::vector<Color>> before = {};
        std::vector<std::vector<Color>> after = {};
    };

    [[nodiscard]] Kept_Palette& kept(int index);
    [[nodiscard]] const Kept_Palette& kept(int index) const;
    void note(const std::string& what);
    void read_folder();
    void read_file(const std::string& name);
    void read_first_shown();
    int insert(Kept_Palette kept);
    void write(Kept_Palette& kept);
    [[nodiscard]] bool try_to_write(Kept_Palette& kept, const std::string& name);
    void leave_changed_file(Kept_Palette& kept);
    [[nodiscard]] bool was_changed_by_others(const Kept_Palette& kept) const;
    void step(int index, std::vector<std::vector<Color>>& from, std::vector<std::vector<Color>>& to);
    [[nodiscard]] std::string free_name(const std::string& wanted, int own) const;
    [[nodiscard]] std::string free_file_name(const std::string& palette_name) const;
    [[nodiscard]] std::string path_of(const std::string& file_name) const;

    const Palette_Store& store_;
    std::string folder_;
    std::vector<Kept_Palette> kept_; // by name
    std::string note_;
    int first_shown_ = 0;
    std::string first_shown_name_; // as it is kept
};

// Built at start-up after the store, destroyed before it.
extern std::unique_ptr<Palette_List> palette_list;

} // namespace quadrelle
