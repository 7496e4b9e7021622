#pragma once

// The lines under the canvas that say what is under the pointer, or what a command did.

#include "base/geometry.h"
#include "commands/command.h"
#include "panes/hint.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

class Hint_Lines {
public:
    // Tells what a command did in the place of the hint, until the pointer moves or `end_report`. It should
    // be no longer than a line.
    void report(Command command, std::string_view what_it_did);
    void report(Hint what_was_done) { report_ = {std::move(what_was_done), {}}; }
    // Stays although the pointer moves, until `end_report`.
    void report_lastingly(Hint what_is_wrong) { report_ = {std::move(what_is_wrong), {}, true}; }
    void end_report() { report_.reset(); }

    // Takes the hint for what is under the pointer there. Where it comes back from elsewhere, it has not
    // moved yet.
    void set_hint(const Hint& hint, std::optional<Point> pointer);
    void draw() const;
    // Draws how large the tile is at the right end of the title's line.
    static void draw_size(Size tile);

    // Returns the lines from the top, as they are drawn; the first one is the title.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

private:
    struct Report {
        Hint hint;
        std::optional<Point> pointer; // when it was shown first
        bool is_lasting = false;
    };

    // Brings the hint into lines that fit; what has no room is cut off with "...".
    void show(const Hint& hint);

    std::optional<Report> report_;
    Hint hint_; // in the lines
    std::vector<std::string> lines_;
};

} // namespace quadrelle
