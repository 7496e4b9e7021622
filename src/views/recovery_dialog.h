#pragma once

// Asks what becomes of sets that an earlier run of the program did not get to save.

#include <memory>
#include <vector>

namespace quadrelle {

class Tileset_Document;

// When it is left without an answer, everything stays for the next start.
enum class Recovery_Answer { later, recover, discard };

// There is at least one.
[[nodiscard]] Recovery_Answer ask_recovery(const std::vector<std::unique_ptr<Tileset_Document>>& documents);

} // namespace quadrelle
