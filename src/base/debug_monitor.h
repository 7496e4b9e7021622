#pragma once

// The program's log: the last messages to whoever looks for a fault.

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace quadrelle {

class Debug_Monitor {
public:
    static constexpr std::size_t most_lines = 1000;

    // Beyond `most_lines` the oldest line goes. A line ends after a thousand bytes.
    void write(std::string_view text);
    [[nodiscard]] const std::deque<std::string>& lines() const { return lines_; }

private:
    std::deque<std::string> lines_;
};

// Built at start-up before everything else.
extern std::unique_ptr<Debug_Monitor> message_log;

// Writes to the monitor if there is one.
void trace(std::string_view text);

} // namespace quadrelle
