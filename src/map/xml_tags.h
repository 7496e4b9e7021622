#pragma once

// The tags of an XML text, one after the other. Checks no more than it needs: it is for files of which a few
// numbers are wanted.

#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

struct Xml_Tag {
    std::string_view name; // with "/" in front where it ends an element
    std::string_view attributes;
    bool is_whole = false; // it ends itself

    // Returns the value as it stands there, or nothing.
    [[nodiscard]] std::optional<std::string_view> attribute(std::string_view wanted) const;
    // Returns a number from 0 on, or -1 where there is none or a larger one than nine digits hold.
    [[nodiscard]] int number(std::string_view wanted) const;
};

[[nodiscard]] int number_from(std::string_view digits);

class Xml_Tags {
public:
    explicit Xml_Tags(std::string_view text) : rest_(text) {}

    // Leaves out comments and what is for programs. Nothing comes after the last one, or one that has no end.
    [[nodiscard]] std::optional<Xml_Tag> next();
    // Returns the text from the last tag to the next one.
    [[nodiscard]] std::string_view text() const { return rest_.substr(0, rest_.find('<')); }

private:
    [[nodiscard]] bool skip(std::string_view start, std::string_view end);

    std::string_view rest_;
};

// Returns a blank and the attribute with its value in quotes, whatever stands in it.
[[nodiscard]] std::string xml_attribute(std::string_view name, std::string_view value);
[[nodiscard]] std::string xml_attribute(std::string_view name, int value);

} // namespace quadrelle
