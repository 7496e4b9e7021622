#pragma once

// The only place where files meet the platform. Names are UTF-8; a name that the platform cannot take counts
// as a file that is not there.

#include "base/file_handle.h"

#include <cstdint>
#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quadrelle {

// Binary, and regular files only: never waits for a pipe or a device. Null when it cannot be opened.
[[nodiscard]] File_Handle open_file(const std::string& name, File_Mode mode);
// Bytes from the start to the end; -1 when unknown.
[[nodiscard]] std::int64_t file_size(std::FILE* file);
// How many bytes were there to read.
[[nodiscard]] std::size_t read_bytes(std::FILE* file, std::span<std::uint8_t> buffer);
// These answer false when not everything could be done. Written bytes are safe only after `flush_to_disk` and
// `close_file` have succeeded too.
[[nodiscard]] bool write_bytes(std::FILE* file, std::span<const std::uint8_t> bytes);
[[nodiscard]] bool flush_to_disk(std::FILE* file);
[[nodiscard]] bool close_file(File_Handle file);

// In one step: at any time there is either the whole old or the whole new file under the name `to`.
[[nodiscard]] bool replace_file(const std::string& from, const std::string& to);
bool remove_file(const std::string& name);
// Whether there is no such file yet, or a regular one that may be written to.
[[nodiscard]] bool can_replace(const std::string& name);
// Where the platform has permission bits, those of the file named, if there is one.
void take_permissions(std::FILE* file, const std::string& name);
// The file that a symbolic link finally points to, existing or not; any other name as it is.
[[nodiscard]] std::string resolve_links(const std::string& name);
// The name's part up to and including the last separator; may be empty.
[[nodiscard]] std::string folder_part(const std::string& name);

// Symbolic links are followed; one that leads nowhere is nothing.
enum class Path_Kind { nothing, file, folder, other };
[[nodiscard]] Path_Kind path_kind(const std::string& name);

struct Folder_Entry {
    std::string name;
    Path_Kind kind;
};
// What is in a folder, in no order, without "." and ".."; nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<Folder_Entry>> folder_entries(const std::string& folder);

extern const char path_separator;
[[nodiscard]] std::string current_directory();
[[nodiscard]] bool change_directory(const std::string& name);

// For tests: asked before every operation that can fail while a file is written (creating, writing, flushing,
// closing, replacing); the answer true makes it fail. Null, the default, asks nobody.
using File_Fault_Hook = bool (*)();
void set_file_fault_hook(File_Fault_Hook hook);

} // namespace quadrelle
