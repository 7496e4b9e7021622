#pragma once

// The system's clipboard as far as it holds pictures: what this program copied is offered to others, and what
// others copied can be taken. SDL's video must be there.

#include "pixels/picture_formats.h"
#include "pixels/shared_picture.h"

#include <cstddef>
#include <optional>

namespace quadrelle {

// It is neither a picture nor a fault when there is nothing to take.
using Clipboard_Picture = Decoded_Picture;

class System_Clipboard {
public:
    // The picture takes the place of whatever was there.
    void offer(const Shared_Picture& picture);
    // Returns what another program has put there since the last offer or the last time that something was
    // taken.
    [[nodiscard]] Clipboard_Picture take();

private:
    // The fingerprint of what was taken: a picture that stays there is taken only once.
    std::optional<std::size_t> taken_;
};

} // namespace quadrelle
