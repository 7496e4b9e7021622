#pragma once

// The program's log: the last messages to whoever looks for a fault.

#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace quadrelle {

class Debug_Monitor {
public:
    static constexpr std::size_t most_lines = 200;

    // Beyond `most_lines` the oldest line goes.
    void write(std::string_view text);
    [[nodiscard]] const std::deque<std::string>& lines() const { return lines_; }
    // In a dialog, the newest lines at its bottom; waits until it is dismissed.
    void show() const;

private:
    [[nodiscard]] std::string newest_lines(std::size_t count) const;

    std::deque<std::string> lines_;
};

// Built at start-up before everything else.
extern std::unique_ptr<Debug_Monitor> debug_monitor;

// Writes to the monitor if there is one.
void trace(std::string_view text);

} // namespace quadrelle
