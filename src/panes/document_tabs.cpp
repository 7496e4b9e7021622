#include "panes/document_tabs.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "screen/texture.h"
#include "ui/control.h"
#include "ui/shown_text.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Rectangle row = window_layout::tabs;
constexpr int longest_title = 320;
constexpr Rectangle arrow = sprite_rect(Sprite::button_less);
constexpr int arrow_gap = 1;
// Over the tabs of the documents that are not the current one.
constexpr Color step_back{112, 112, 112, 110};
constexpr Rectangle left_arrow{row.x - arrow_gap - arrow.width, row.y + 3, arrow.width, arrow.height};
constexpr Rectangle right_arrow{row.right() + arrow_gap, row.y + 3, arrow.width, arrow.height};

std::unique_ptr<Texture> make_label(const std::string& title, bool is_current) {
    // The end of a long path says more than its start.
    return screen->make_header(fitted_text(Font::pane_header, title, longest_title, Left_Out::start),
                               is_current ? Header_Style::active : Header_Style::passive);
}

// Up to the slant at its right end, which goes one pixel to the right in each row.
void draw_tint(const Rectangle& tab, Color tint) {
    const int slant = tab.right() - sprite_rect(Sprite::pane_header_end).width + 2;
    for (int y = 1; tint.a > 0 && y + 1 < tab.height; ++y) {
        screen->fill_rect({tab.x + 1, tab.y + y, slant + y - tab.x - 1, 1}, tint);
    }
}

} // namespace

Document_Tabs::Document_Tabs() = default;
Document_Tabs::~Document_Tabs() = default;

std::shared_ptr<const Texture> Document_Tabs::label_of(const std::string& title, bool is_current) {
    const auto found = std::ranges::find_if(
        labels_, [&](const Label& label) { return label.is_current == is_current && label.title == title; });
    if (found == labels_.end()) {
        labels_.push_back({title, is_current, make_label(title, is_current)});
        return labels_.back().texture;
    }
    return found->texture;
}

// Scrolled no further than the current one needs, so that a tab stays where it was clicked; room at the end
// is used. However many documents are open, labels are made only for the tabs that have room.
void Document_Tabs::set_titles(std::span<const std::string> titles, std::size_t current) {
    tabs_.clear();
    document_count_ = static_cast<int>(titles.size());
    current_ = static_cast<int>(current);
    int room = row.width;
    const auto add = [&](std::size_t place, std::size_t document) {
        auto label = label_of(titles[document], document == current);
        const int width = label->size().width;
        if (width > room) {
            return false;
        }
        room -= width;
        tabs_.insert(tabs_.begin() + static_cast<std::ptrdiff_t>(place),
                     {static_cast<int>(document), {0, row.y, width, row.height}, std::move(label)});
        return true;
    };
    std::size_t first = current;
    std::size_t end = current + 1;
    add(0, current);
    while (first > first_shown_ && add(0, first - 1)) {
        --first;
    }
    while (end < titles.size() && add(tabs_.size(), end)) {
        ++end;
    }
    while (end == titles.size() && first > 0 && add(0, first - 1)) {
        --first;
    }
    first_shown_ = first;
    std::erase_if(labels_, [](const Label& label) { return label.texture.use_count() == 1; });
    int x = row.x;
    for (Tab& tab : tabs_) {
        tab.area.x = x;
        x = tab.area.right();
    }
}

bool Document_Tabs::hides_first() const {
    return !tabs_.empty() && tabs_.front().document > 0;
}

bool Document_Tabs::hides_last() const {
    return !tabs_.empty() && tabs_.back().document < document_count_ - 1;
}

void Document_Tabs::draw() const {
    screen->draw_panel(window_layout::tab_rail, standard_color(Standard_Color::pane_frame));
    for (const Tab& tab : tabs_) {
        screen->draw_texture(*tab.label, {tab.area.x, tab.area.y});
        if (tab.document != current_) {
            draw_tint(tab.area, step_back);
        }
        draw_tint(tab.area, answer_tint(control_state(tab.area)));
    }
    if (hides_first()) {
        screen->draw_sprite(Sprite::button_less, {left_arrow.x, left_arrow.y});
        draw_answer(left_arrow);
    }
    if (hides_last()) {
        screen->draw_sprite(Sprite::button_more, {right_arrow.x, right_arrow.y});
        draw_answer(right_arrow);
    }
}

int Document_Tabs::tab_at(Point point) const {
    if (hides_first() && left_arrow.contains(point)) {
        return tabs_.front().document - 1;
    }
    if (hides_last() && right_arrow.contains(point)) {
        return tabs_.back().document + 1;
    }
    const auto found = std::ranges::find_if(tabs_, [&](const Tab& tab) { return tab.area.contains(point); });
    return found == tabs_.end() ? -1 : found->document;
}

} // namespace quadrelle
