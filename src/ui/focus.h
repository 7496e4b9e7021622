#pragma once

namespace quadrelle {

// Whether the keys act on a part of a dialog.
enum class Focus { no, yes };

} // namespace quadrelle
