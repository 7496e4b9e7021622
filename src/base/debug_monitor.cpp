#include "base/debug_monitor.h"

#include <algorithm>

namespace quadrelle {

std::unique_ptr<Debug_Monitor> debug_monitor;

namespace {

// About as many as fit into the window's width.
constexpr std::size_t longest_line = 110;
} // namespace

void Debug_Monitor::write(std::string_view text) {
    lines_.emplace_back(text.substr(0, longest_line));
    if (lines_.size() > most_lines) {
        lines_.pop_front();
    }
}

std::string Debug_Monitor::newest_lines(std::size_t count) const {
    std::string text;
    for (std::size_t i = lines_.size() - std::min(count, lines_.size()); i < lines_.size(); ++i) {
        text += (text.empty() ? "" : "\r") + lines_[i];
    }
    return text;
}

void trace(std::string_view text) {
    if (debug_monitor) {
        debug_monitor->write(text);
    }
}

} // namespace quadrelle
