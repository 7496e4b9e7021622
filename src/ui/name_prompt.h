#pragma once

// A dialog in which the user types a name.

#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

// `name` (UTF-8) is in the line at first, selected. None when the user gives it up.
[[nodiscard]] std::optional<std::string> ask_name(std::string_view title, std::string_view name);

} // namespace quadrelle
