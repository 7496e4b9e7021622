#pragma once

// The open documents, which of them is the current one, and the ways into and out of files.

#include "base/geometry.h"
#include "panes/document_tabs.h"
#include "tileset/document.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle {

enum class Save_As { no, yes };

class Documents {
public:
    // `leaving` is called before the user leaves the current tile, `current_changed` whenever another
    // document, tile or set of tiles became current.
    Documents(std::function<void()> leaving, std::function<void()> current_changed);
    ~Documents();
    // Called whenever a document was changed or saved.
    void set_watcher(std::function<void()> watcher) { watcher_ = std::move(watcher); }

    // Between the first `new_document` and the end there is always one.
    [[nodiscard]] Tileset_Document& current() { return *documents_.at(current_); }
    [[nodiscard]] const Tileset_Document& current() const { return *documents_.at(current_); }
    [[nodiscard]] bool has_unsaved() const;
    // Returns whether there is nothing but one new set.
    [[nodiscard]] bool is_untouched() const;
    [[nodiscard]] int count() const { return static_cast<int>(documents_.size()); }
    [[nodiscard]] std::span<const std::unique_ptr<Tileset_Document>> all() const { return documents_; }

    // An untitled tileset of one tile. False, with nothing done, after 1000 of them.
    bool new_document(Size tile_size);
    // The user goes to another tile of the current document, which is the command "Change tile".
    void go_to_tile(int index);
    // Makes another tile of the current document the current one, and shows it in the strip.
    void show_tile(int index);
    // Resamples the tiles of the current document.
    void resize_current(Size tile_size);
    // An untitled and unsaved set of these tiles. False, with nothing done, after 1000 of them.
    bool add_unsaved(Tileset tileset);
    // Opens what another run of the program has left, in the place of a set that nothing was done to.
    void add_recovered(std::vector<std::unique_ptr<Tileset_Document>> documents);
    // Opens a set beside the others. False where the file holds none.
    bool load_document(const std::string& path);
    // Returns the file to save the current document to, after asking for a name where one is needed, or
    // whether it may be replaced; none when the user gave it up.
    [[nodiscard]] std::optional<std::string> ask_where_to_save(Save_As save_as) const;
    // The document belongs to that file from now on. Tells the user what failed. True when it was done.
    bool save_document(const std::string& path);
    // Returns what the last save that was done has to tell the user.
    [[nodiscard]] std::string what_was_saved() const;
    // Asks first when there is something to lose. There is always a document afterwards.
    bool close_document();

    // Marks the current document and shows that in its title.
    void mark_changed();
    // It is as its file is after all.
    void mark_unchanged();

    void draw_tabs() const;
    // Goes on from the last one to the first. False without another document.
    bool go_to_next();
    // The document that belongs to that file becomes the current one. False where it is not open.
    bool go_to_file(const std::string& path);
    // Returns whether another document belongs to the file of the current one.
    [[nodiscard]] bool is_open_twice() const;
    // True when another document's tab was hit; that document is the current one then.
    bool click_tab(Point point);
    // Returns the document whose tab is at `point`, or null.
    [[nodiscard]] const Tileset_Document* document_at(Point point) const;

private:
    void add(std::unique_ptr<Tileset_Document> document);
    void make_current(std::size_t index);
    bool go_to(std::size_t index);
    [[nodiscard]] std::optional<std::size_t> find_file(const std::string& path) const;
    void refresh_titles();
    void tell_watcher() const;
    [[nodiscard]] bool confirms_save() const;
    [[nodiscard]] bool confirms_map(const std::string& path) const;

    std::function<void()> leaving_;
    std::function<void()> current_changed_;
    std::function<void()> watcher_;
    std::vector<std::unique_ptr<Tileset_Document>> documents_;
    std::size_t current_ = 0;
    int untitled_counter_ = 0;
    bool lacks_previous_copy_ = false; // of what was saved over last
    Document_Tabs tabs_;
    std::vector<std::string> paths_; // that the names on the tabs were made for
    std::vector<std::string> names_;
};

} // namespace quadrelle
