#pragma once

// What came of a command.

#include "commands/command.h"

namespace quadrelle {

enum class Outcome {
    done,
    refused, // nothing was changed
    unknown, // nobody carries it out
};

// How what carries commands out by itself answers: with the command, with "Skip command" where it was
// refused, or with none where it is unknown.
[[nodiscard]] constexpr Command answer_of(Command command, Outcome outcome) {
    return outcome == Outcome::unknown   ? Command::none
           : outcome == Outcome::refused ? Command::skip_command
                                         : command;
}

[[nodiscard]] constexpr Outcome outcome_of(Command answer) {
    return answer == Command::none           ? Outcome::unknown
           : answer == Command::skip_command ? Outcome::refused
                                             : Outcome::done;
}

} // namespace quadrelle
