#pragma once

// Puts the sheet together from the texts of an art folder.

#include "problems.h"
#include "sheet_picture.h"
#include "sprite_sources.h"

#include <filesystem>

namespace quadrelle {

// The picture is good only when no problem was added.
Sheet_Picture compose(const std::filesystem::path& art_folder, Missing_Sprites missing, Problems& problems);

} // namespace quadrelle
