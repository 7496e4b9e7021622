#pragma once

// What came of a command.

#include "commands/command.h"

namespace quadrelle {

enum class Outcome {
    done,
    refused, // nothing was changed
    unknown, // nobody carries it out
};

// Where a command answers with itself, "Skip command" where it was refused, or none where it is unknown.
[[nodiscard]] constexpr Outcome outcome_of(Command answer) {
    return answer == Command::none           ? Outcome::unknown
           : answer == Command::skip_command ? Outcome::refused
                                             : Outcome::done;
}

} // namespace quadrelle
