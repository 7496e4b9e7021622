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

// Does something to the current tile or the work area. Answers with the command that the step is called
// after, or none when there is nothing to record.
using Edit = std::function<Command()>;

// Whether a step takes the place of the one before it where that was of the same kind.
enum class Merge { no, with_last };

class Recorder {
public:
    // Borrows all three.
    Recorder(Documents& documents, Canvas_View& canvas, Toolbox& tools)
        : documents_(documents), canvas_(canvas), toolbox_(tools) {}

    // What `edit` does becomes a step, and the document changed. The history gets the state before it too
    // where it did not know it, so that the step can be undone.
    void step(const Edit& edit, Merge merge = Merge::no);
    // The current tile, as it is, becomes an entry of the history.
    void record(Command kind);
    // False at the first and the last step.
    bool undo();
    bool redo();

private:
    [[nodiscard]] std::optional<Undo_Entry> missing_floor();
    [[nodiscard]] bool stands_on_merged_step();
    bool restore(const Undo_Entry* entry);

    Documents& documents_;
    Canvas_View& canvas_;
    Toolbox& toolbox_;
    // What floats in the last step that may be merged with, as the history keeps it.
    std::weak_ptr<const Floating_Paste> merged_;
};

} // namespace quadrelle
