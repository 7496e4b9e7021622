#include "panes/document_tabs.h"

#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "screen/texture.h"
#include "ui/shown_text.h"
#include "ui/window_layout.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Rectangle row = window_layout::tabs;
constexpr int longest_title = 320;
constexpr Rectangle arrow = sprite_rect(Sprite::button_less);
constexpr int arrow_gap = 1;
constexpr Rectangle left_arrow{row.x - arrow_gap - arrow.width, row.y + 3, arrow.width, arrow.height};
constexpr Rectangle right_arrow{row.right() + arrow_gap, row.y + 3, arrow.width, arrow.height};

} // namespace

Document_Tabs::Document_Tabs() = default;
Document_Tabs::~Document_Tabs() = default;

void Document_Tabs::set_titles(std::span<const std::string> titles, std::size_t current) {
    tabs_.clear();
    document_count_ = static_cast<int>(titles.size());
    int x = row.x;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const Header_Style style = i == current ? Header_Style::active : Header_Style::passive;
        // The end of a long path says more than its start.
        const std::string title = fitted_text(Font::pane_header, titles[i], longest_title, Left_Out::start);
        auto label = screen->make_header(title, style);
        const Rectangle area{x, row.y, label->size().width, row.height};
        x = area.right();
        tabs_.push_back({static_cast<int>(i), area, std::move(label)});
    }
    scroll_to(current);
    const int shift = tabs_[first_shown_].area.x - row.x;
    tabs_.erase(tabs_.begin(), tabs_.begin() + static_cast<std::ptrdiff_t>(first_shown_));
    for (Tab& tab : tabs_) {
        tab.area.x -= shift;
    }
    std::erase_if(tabs_, [](const Tab& tab) { return tab.area.right() > row.right(); });
}

// No further than the current one needs, so that a tab stays where it was clicked; room at the end is used.
void Document_Tabs::scroll_to(std::size_t current) {
    first_shown_ = std::min(first_shown_, current);
    while (first_shown_ < current && tabs_[current].area.right() - tabs_[first_shown_].area.x > row.width) {
        ++first_shown_;
    }
    while (first_shown_ > 0 && tabs_.back().area.right() - tabs_[first_shown_ - 1].area.x <= row.width) {
        --first_shown_;
    }
}

bool Document_Tabs::hides_first() const {
    return !tabs_.empty() && tabs_.front().document > 0;
}

bool Document_Tabs::hides_last() const {
    return !tabs_.empty() && tabs_.back().document < document_count_ - 1;
}

void Document_Tabs::draw() const {
    for (const Tab& tab : tabs_) {
        screen->draw_texture(*tab.label, {tab.area.x, tab.area.y});
    }
    if (hides_first()) {
        screen->draw_sprite(Sprite::button_less, {left_arrow.x, left_arrow.y});
    }
    if (hides_last()) {
        screen->draw_sprite(Sprite::button_more, {right_arrow.x, right_arrow.y});
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
