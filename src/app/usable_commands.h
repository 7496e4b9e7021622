#pragma once

// Which commands would do something now, for the menu rows and buttons that stand for them.

#include "commands/command.h"

namespace quadrelle {

class Canvas_View;
class Copy_Buffer;
class Documents;

// What the commands act on.
struct Command_Subjects {
    const Canvas_View& canvas;
    const Documents& documents;
    const Copy_Buffer& copies;
};

// True where only trying would tell: what another program copied is not asked for in each frame.
[[nodiscard]] bool can_do(Command command, const Command_Subjects& subjects);

} // namespace quadrelle
