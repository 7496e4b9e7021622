#include "app/recoloring.h"

#include "app/editor_parts.h"
#include "views/history_questions.h"

namespace quadrelle {

Outcome recolor_step(Editor_Parts& editor, Command name, const std::function<Outcome()>& change) {
    Outcome outcome = Outcome::refused;
    editor.recorder.step([&] {
        outcome = change();
        return outcome == Outcome::done ? name : Command::none;
    });
    return outcome;
}

Outcome recolor_set(Editor_Parts& editor, std::string_view title, const Color_Map& map) {
    editor.desk.drop_lifted();
    Tileset_Document& document = editor.documents.current();
    Tileset& tileset = document.tileset();
    int changed = 0;
    for (int i = 0; i < tileset.count(); ++i) {
        changed += count_changes(Drawing_Target(tileset.tile_at(i)), map) > 0 ? 1 : 0;
    }
    if (changed == 0 || !confirm_change_of(changed, title)) {
        return Outcome::refused;
    }
    for (int i = 0; i < tileset.count(); ++i) {
        Drawing_Target target(tileset.tile_at(i));
        recolor(target, map);
    }
    editor.canvas.with_tile_in_place([&] { document.history().reset(tileset); });
    editor.documents.mark_changed();
    return Outcome::done;
}

} // namespace quadrelle
