#pragma once

// Makes the steps of the current document's history, and takes them back.

#include "commands/command.h"
#include "tileset/undo_history.h"

#include <functional>
#include <memory>
#include <optional>

namespace quadrelle {

class Canvas_View;
class Documents;
class Toolbox;

// Changes the current tile or the work area. Returns the command that names the step, or none when there is
// nothing to record.
using Edit = std::function<Command()>;

// A step that is merged takes the place of the one before it: if that was merged too and nothing came
// between, or if it was of the same kind.
enum class Merge { no, with_last, with_same_kind };

// What turned, mirrored or scrolled a whole tile, and how often; zero times for nothing of the kind.
struct Tile_Transform {
    Command command = Command::none;
    int times = 0;
};

class Recorder {
public:
    // Borrows all three.
    Recorder(Documents& documents, Canvas_View& canvas, Toolbox& tools)
        : documents_(documents), canvas_(canvas), toolbox_(tools) {}

    // Makes what `edit` does a step and marks the document changed. The history gets the state before it too
    // where it does not know it, so that the step can be undone.
    void step(const Edit& edit, Merge merge = Merge::no);
    // Adds the current tile, as it is, to the history.
    void record(Command kind);
    // Give back the state before or after. Return false where there is none.
    bool undo();
    bool redo();

private:
    [[nodiscard]] Work_State work() const;
    [[nodiscard]] std::optional<Undo_Entry> missing_floor();
    [[nodiscard]] bool stands_on_merged_step();
    [[nodiscard]] bool is_merged(Merge merge, Command kind);
    // `transform` leads from the tile that is left to this one, if the whole of it was transformed.
    bool restore(const Undo_Entry* entry, const Tile_Transform& transform);

    Documents& documents_;
    Canvas_View& canvas_;
    Toolbox& toolbox_;
    // What floats in the last step that may be merged with, as the history keeps it.
    std::weak_ptr<const Floating_Paste> merged_;
};

} // namespace quadrelle
