#include "base/debug_monitor.h"

namespace quadrelle {

std::unique_ptr<Debug_Monitor> message_log;

namespace {

constexpr std::size_t longest_line = 1000;

} // namespace

void Debug_Monitor::write(std::string_view text) {
    lines_.emplace_back(text.substr(0, longest_line));
    if (lines_.size() > most_lines) {
        lines_.pop_front();
    }
}

void trace(std::string_view text) {
    if (message_log) {
        message_log->write(text);
    }
}

} // namespace quadrelle
