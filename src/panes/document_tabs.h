#pragma once

// The row of tabs above the canvas, one for each open document.

#include "base/geometry.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace quadrelle {

class Texture;

class Document_Tabs {
public:
    Document_Tabs();
    ~Document_Tabs();

    // Takes the titles in the order of the documents. Tabs that do not fit beside the current one are left
    // out; an arrow at either end of the row stands for them.
    void set_titles(std::span<const std::string> titles, std::size_t current);
    void draw() const;
    // Returns the document whose tab is at `point`, the next hidden one for an arrow, or -1.
    [[nodiscard]] int tab_at(Point point) const;

private:
    struct Tab {
        int document = 0;
        Rectangle area;
        std::shared_ptr<const Texture> label;
    };
    // A label is drawn once as long as it shows.
    struct Label {
        std::string title;
        bool is_current;
        std::shared_ptr<const Texture> texture;
    };
    [[nodiscard]] std::shared_ptr<const Texture> label_of(const std::string& title, bool is_current);
    [[nodiscard]] bool hides_first() const;
    [[nodiscard]] bool hides_last() const;

    std::vector<Tab> tabs_; // those that show
    std::vector<Label> labels_;
    std::size_t first_shown_ = 0;
    int document_count_ = 0;
    int current_ = 0;
};

} // namespace quadrelle
