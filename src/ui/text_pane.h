#pragma once

// A titled pane whose owner draws what is in it.

#include "ui/pane.h"

namespace quadrelle {

class Text_Pane : public Pane {
public:
    using Pane::Pane;
};

} // namespace quadrelle
