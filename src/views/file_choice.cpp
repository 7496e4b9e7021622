#include "views/file_choice.h"

#include "base/file_names.h"
#include "base/platform_files.h"

#include <string_view>

namespace quadrelle {

std::string final_path(const File_Request& request, const std::string& path) {
    if (request.direction == File_Direction::save) {
        return std::string_view(request.forced_extension).empty()
                   ? path
                   : with_extension(path, request.forced_extension);
    }
    const bool is_there = std::string_view(request.pattern) == "*" || path_kind(path) != Path_Kind::nothing;
    return is_there ? path : path + "." + request.pattern;
}

std::string fault_of_choice(const File_Request& request, const std::string& path) {
    const Path_Kind kind = path_kind(path);
    if (request.direction == File_Direction::open) {
        return kind == Path_Kind::file ? "" : "There is no such file.";
    }
    if (path_kind(parent_folder(path)) != Path_Kind::folder) {
        return "There is no such folder.";
    }
    return kind == Path_Kind::folder || kind == Path_Kind::other ? "A folder or a device has this name." : "";
}

std::string fault_of_folder_name(const std::string& name) {
    if (name.find_first_not_of(' ') == std::string::npos) {
        return "A folder needs a name.";
    }
    // It would be hidden, or lie elsewhere.
    const bool will_do = name.front() != '.' && folder_part(name).empty();
    return will_do ? "" : "A folder's name has no dot in front and no separator.";
}

} // namespace quadrelle
