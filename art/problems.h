#pragma once

// What is wrong with the art sources, gathered so that one run names every mistake.

#include <string>
#include <vector>

namespace quadrelle {

struct Place {
    std::string file;
    int line = 0;
};

class Problems {
public:
    void add(std::string text) { lines_.push_back(std::move(text)); }
    void add(const Place& place, const std::string& text) {
        add(place.file + ":" + std::to_string(place.line) + ": " + text);
    }

    bool empty() const { return lines_.empty(); }
    const std::vector<std::string>& lines() const { return lines_; }

private:
    std::vector<std::string> lines_;
};

} // namespace quadrelle
