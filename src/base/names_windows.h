#pragma once

// Names of files as Windows takes them; only for the files that are for Windows alone.

#include <string>

namespace quadrelle {

// Empty for a name that is no UTF-8. One that is longer than a path may usually be is written in the form
// that has no such limit, whatever the system's settings are.
[[nodiscard]] std::wstring wide(const std::string& name);
[[nodiscard]] std::string narrow(const std::wstring& name);

} // namespace quadrelle
