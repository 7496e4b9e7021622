#include "app/recovery.h"

#include "app/editor_parts.h"
#include "base/data_directory.h"
#include "base/error_note.h"
#include "base/file_lock.h"
#include "base/file_names.h"
#include "base/kept_files.h"
#include "base/platform_files.h"
#include "base/text_lines.h"
#include "tileset/journal_file.h"
#include "tileset/recovered_document.h"
#include "ui/dialogs.h"
#include "ui/shown_text.h"
#include "ui/wrapped_text.h"
#include "views/recovery_dialog.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

struct Found_Journal {
    std::string path;
    std::unique_ptr<File_Lock> lock; // as long as another program could take it for its own to recover
    Read_Journal read;
};

// Nothing where the program that writes it still runs.
std::optional<Found_Journal> found_journal(const std::string& path) {
    auto lock = std::make_unique<File_Lock>(journal_lock_path(path));
    const std::optional<Bytes> bytes = lock->is_taken() ? file_bytes(path) : std::nullopt;
    if (!bytes) {
        return std::nullopt;
    }
    return Found_Journal{path, std::move(lock), read_journal(*bytes)};
}

std::vector<Found_Journal> found_journals(const std::string& folder) {
    std::vector<std::string> names = folder_names(folder);
    std::ranges::sort(names);
    std::vector<Found_Journal> journals;
    for (const std::string& name : names) {
        std::optional<Found_Journal> journal =
            name.ends_with(journal_ending) ? found_journal(joined_path(folder, name)) : std::nullopt;
        if (journal) {
            journals.push_back(*std::move(journal));
        }
    }
    return journals;
}

std::vector<std::unique_ptr<Tileset_Document>> documents_of(const std::vector<Found_Journal>& journals) {
    std::vector<std::unique_ptr<Tileset_Document>> documents;
    for (const Found_Journal& journal : journals) {
        for (const auto& [number, set] : journal.read.sets) {
            documents.push_back(recovered_document(set));
        }
    }
    return documents;
}

constexpr std::string_view damaged_ending = ".damaged";
constexpr Kept_Limits damaged_limits{20, std::int64_t{64} << 20U};

// A damaged one is kept under another name, after what is whole in it was taken. It was written to just now,
// as it were, so that those found later push it out and not the other way round.
void remove(const Found_Journal& journal) {
    remove_file(journal_rest_path(journal.path));
    if (!journal.read.is_damaged) {
        remove_file(journal.path);
    } else if (const std::string aside = journal.path + std::string(damaged_ending);
               replace_file(journal.path, aside)) {
        touch_file(aside);
    }
}

void limit_damaged(const std::string& folder) {
    keep_newest_files(
        folder, [](std::string_view name) { return name.ends_with(damaged_ending); }, damaged_limits);
}

bool tell_damage(const std::vector<Found_Journal>& journals) {
    const auto damaged =
        std::ranges::find_if(journals, [](const Found_Journal& journal) { return journal.read.is_damaged; });
    if (damaged == journals.end()) {
        return false;
    }
    dialogs->message("Note", "The journal of unsaved work was damaged. What is whole in it was taken;\r" +
                                 file_part(damaged->path) +
                                 ".damaged in the folder data/journal keeps it as it was.");
    return true;
}

std::string text_of_recovered(std::size_t count) {
    return count == 1 ? "One set is as it was. It is not saved yet."
                      : std::to_string(count) + " sets are as they were. They are not saved yet.";
}

// Nothing of the old journals goes before the new one has it.
bool take(Editor_Parts& editor, std::vector<std::unique_ptr<Tileset_Document>> documents) {
    const std::size_t count = documents.size();
    editor.documents.add_recovered(std::move(documents));
    editor.panes.hint_lines().report_lastingly({"Recovered", text_of_recovered(count)});
    editor.journal.follow();
    editor.journal.drain();
    return !editor.journal.has_failed();
}

} // namespace

bool tell_last_error() {
    constexpr int width = 700;
    constexpr std::size_t most_lines = 16;
    const std::string note = take_error_note();
    if (note.empty()) {
        return false;
    }
    std::string text = "When it ran last, the program ended with this error.";
    Text_Lines lines(note);
    while (const std::optional<std::string_view> line = lines.next()) {
        text += "\r" + shown_text(*line);
    }
    dialogs->message("Note", joined_lines(first_lines(Font::regular, wrapped_text(Font::regular, text, width),
                                                      most_lines, width)));
    return true;
}

bool recover_journals(Editor_Parts& editor) {
    const std::string folder = data_directory().path("journal");
    const std::vector<Found_Journal> journals = found_journals(folder);
    std::vector<std::unique_ptr<Tileset_Document>> documents = documents_of(journals);
    bool is_over = true;
    const bool asks = !documents.empty();
    if (asks) {
        const Recovery_Answer answer = ask_recovery(documents);
        is_over = answer == Recovery_Answer::discard ||
                  (answer == Recovery_Answer::recover && take(editor, std::move(documents)));
    }
    if (is_over) {
        std::ranges::for_each(journals, remove);
        limit_damaged(folder);
    }
    const bool tells = is_over && tell_damage(journals);
    return asks || tells;
}

} // namespace quadrelle
