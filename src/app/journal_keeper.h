#pragma once

// Hands over to the journal what was changed in the open documents, as a save would write it: no finished
// gesture is lost when the program ends in the midst of something.

#include "tileset/journal_writer.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quadrelle {

class Canvas_View;
class Documents;
class Selection_Desk;
class Tile;
class Tileset_Document;

class Journal_Keeper {
public:
    // Borrows all three.
    Journal_Keeper(const Documents& documents, const Canvas_View& canvas, const Selection_Desk& desk);
    ~Journal_Keeper();
    Journal_Keeper(const Journal_Keeper&) = delete;
    Journal_Keeper& operator=(const Journal_Keeper&) = delete;

    // To be called after each event, and after each change while a view takes the window. It costs next to
    // nothing when nothing was changed.
    void follow();
    // Waits until all that was handed over is on the disk.
    void drain() { writer_.drain(); }
    // Whether it could not be written.
    [[nodiscard]] bool has_failed() { return writer_.has_failed(); }

private:
    // A document as it was handed over last.
    struct Followed_Set {
        bool is_told = false; // the journal tells of it
        std::uint64_t changes = 0;
        std::string name;
        std::vector<std::uint64_t> versions;
        // The tiles that are only in the set's file so far, by their version, with their index there. They
        // follow in parts: a large set would take too long in the midst of drawing.
        std::unordered_map<std::uint64_t, int> in_file;
        std::optional<std::uint64_t> map_version;
        std::vector<int> map_indices;
    };

    void follow(const Tileset_Document& document);
    static void take_as_saved(const Tileset_Document& document, Followed_Set& followed);
    void hand_over(const Tileset_Document& document, Followed_Set& followed);
    [[nodiscard]] static std::shared_ptr<const Tile> copy_of(const Tileset_Document& document, int index);
    [[nodiscard]] static std::vector<int> places_to_hand(Handed_Set& handed, Followed_Set& followed);
    static void hand_map(const Tileset_Document& document, Handed_Set& handed, Followed_Set& followed);
    void forget_closed();
    void end(Set_Number number, Followed_Set& followed);
    // The current tile as a save would write it, where that is not as it is in the set.
    [[nodiscard]] std::shared_ptr<const Tile> current_as_saved(const Tileset_Document& document) const;

    const Documents& documents_;
    const Canvas_View& canvas_;
    const Selection_Desk& desk_;
    std::map<Set_Number, Followed_Set> followed_;
    Set_Number current_ = 0;
    bool is_rest_told_ = false; // all of the other sets
    Journal_Writer writer_;
};

} // namespace quadrelle
