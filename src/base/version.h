#pragma once

// What the program calls itself.

namespace quadrelle {

constexpr const char* product_name = "Quadrelle";
constexpr const char* product_version = "0.90";

} // namespace quadrelle
