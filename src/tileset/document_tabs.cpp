#include "tileset/document_tabs.h"

#include "app/screen.h"
#include "app/texture.h"

#include <algorithm>

namespace quadrelle {

namespace {

// Above the canvas viewport and as wide.
constexpr Rectangle row{264, 43, 512, 21};
constexpr int longest_title = 320;

// The end of a long path says more than its start.
std::string shortened(const std::string& title) {
    std::size_t start = 0;
    while (screen->text_width(Font::pane_header, title.substr(start)) > longest_title) {
        ++start;
    }
    return start == 0 ? title : "..." + title.substr(start);
}

} // namespace

Document_Tabs::Document_Tabs() = default;
Document_Tabs::~Document_Tabs() = default;

void Document_Tabs::set_titles(std::span<const std::string> titles, std::size_t current) {
    std::vector<Tab> tabs;
    int x = row.x;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const Header_Style style = i == current ? Header_Style::active : Header_Style::passive;
        auto label = screen->make_header(shortened(titles[i]), style);
        const Rectangle area{x, row.y, label->size().width, row.height};
        x = area.right();
        tabs.push_back({static_cast<int>(i), area, std::move(label)});
    }
    // Scrolled left, tab by tab, until the current one shows.
    while (tabs.at(current - static_cast<std::size_t>(tabs.front().document)).area.right() > row.right() &&
           tabs.front().document < static_cast<int>(current)) {
        const int width = tabs.front().area.width;
        tabs.erase(tabs.begin());
        for (Tab& tab : tabs) {
            tab.area.x -= width;
        }
    }
    std::erase_if(tabs, [](const Tab& tab) { return tab.area.right() > row.right(); });
    tabs_ = std::move(tabs);
}

void Document_Tabs::draw() const {
    for (const Tab& tab : tabs_) {
        screen->draw_texture(*tab.label, {tab.area.x, tab.area.y});
    }
}

int Document_Tabs::tab_at(Point point) const {
    const auto found = std::ranges::find_if(tabs_, [&](const Tab& tab) { return tab.area.contains(point); });
    return found == tabs_.end() ? -1 : found->document;
}

} // namespace quadrelle
