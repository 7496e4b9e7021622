#pragma once

// The only place where files meet the platform. Names are UTF-8; a name that the platform cannot take counts
// as a file that is not there.

#include "base/file_handle.h"

#include <cstdint>
#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

// Returns why the operation on a file that failed last did so, as the system says it; empty when it did not
// say.
[[nodiscard]] std::string last_file_fault();
// To be called by whoever finds a fault of a file that no operation has told of.
void set_file_fault(std::string_view what);

// Opens regular files only, in binary mode: it never waits for a pipe or a device. Returns null when it
// cannot.
[[nodiscard]] File_Handle open_file(const std::string& name, File_Mode mode);
// Opens a new file for reading and writing that has no name, or goes when it is closed. Returns null when it
// cannot.
[[nodiscard]] File_Handle open_scratch_file();
// Counts the bytes from the start to the end; -1 when that is unknown.
[[nodiscard]] std::int64_t file_size(std::FILE* file);
// Returns how many bytes were there to read.
[[nodiscard]] std::size_t read_bytes(std::FILE* file, std::span<std::uint8_t> buffer);
// These answer false when not everything could be done. Written bytes are safe only after `flush_to_disk` and
// `close_file` have succeeded too.
[[nodiscard]] bool write_bytes(std::FILE* file, std::span<const std::uint8_t> bytes);
[[nodiscard]] bool flush_to_disk(std::FILE* file);
[[nodiscard]] bool close_file(File_Handle file);

// Replaces in one step: at any time there is either the whole old or the whole new file under the name `to`.
[[nodiscard]] bool replace_file(const std::string& from, const std::string& to);
// Gives the file one name more, under which it stays when another file takes the place of the first. Not
// everywhere can that be done.
[[nodiscard]] bool link_file(const std::string& from, const std::string& to);
bool remove_file(const std::string& name);
// Whether somebody has removed the file that is open, so that what is written to it is lost. Where the
// platform does not let that happen nobody has.
[[nodiscard]] bool is_removed(std::FILE* file);
// Whether there is no such file yet, or a regular one that may be written to.
[[nodiscard]] bool can_replace(const std::string& name);
// Where the platform has them, the open file takes the owner, as far as that is allowed, and the permission
// bits of the file named, if there is one.
void take_permissions(std::FILE* file, const std::string& name);
// Brings the folder's entries to the disk where that has to be asked for. An empty name is the current
// folder.
void flush_folder(const std::string& folder);
// Returns the file that a symbolic link finally points to, existing or not, and any other name as it is.
[[nodiscard]] std::string resolve_links(const std::string& name);
// Returns the name's part up to and including the last separator; it may be empty.
[[nodiscard]] std::string folder_part(const std::string& name);

// What changes of a file when something is written to it; of a symbolic link that of the file. The time is in
// units of the platform.
struct File_State {
    std::int64_t size = 0;
    std::int64_t modified = 0;

    bool operator==(const File_State&) const = default;
};
// None where there is no regular file.
[[nodiscard]] std::optional<File_State> file_state(const std::string& name);
// The file counts as written to just now.
void touch_file(const std::string& name);

// Symbolic links are followed; one that leads nowhere is nothing.
enum class Path_Kind { nothing, file, folder, other };
[[nodiscard]] Path_Kind path_kind(const std::string& name);

struct Folder_Entry {
    std::string name;
    Path_Kind kind;
};
// Returns what is in a folder, in no order, without "." and ".."; nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<Folder_Entry>> folder_entries(const std::string& folder);

// Returns the names alone, in no order; none when the folder cannot be read. An empty name is the current
// folder.
[[nodiscard]] std::vector<std::string> folder_names(const std::string& folder);

// Returns all that the file holds; nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> file_bytes(const std::string& name);

// Only an empty one goes.
void remove_folder(const std::string& name);
// Makes the folder, and those above it that are missing.
[[nodiscard]] bool make_folder(const std::string& name);

extern const char path_separator;
[[nodiscard]] std::string current_directory();
// The folder for what nobody keeps.
[[nodiscard]] std::string temporary_folder();
[[nodiscard]] bool change_directory(const std::string& name);
// The folder that was the current one when this was made, whatever it is called since.
class Held_Folder {
public:
    Held_Folder();
    Held_Folder(const Held_Folder&) = delete;
    Held_Folder& operator=(const Held_Folder&) = delete;
    ~Held_Folder();

    // Returns its present name from the root on; empty when it is gone, or nobody knows.
    [[nodiscard]] std::string path() const;
    // Makes it the current one.
    [[nodiscard]] bool enter() const;

private:
    std::string name_then_;
    int descriptor_ = -1; // where the platform has them
};
// The number of this process; no other one that runs on the machine has it.
[[nodiscard]] unsigned long process_number();
[[nodiscard]] bool is_running(unsigned long process);

// A hook for tests: it is asked before every operation that can fail while a file is written (creating,
// writing, flushing, closing, replacing, a second name, a new folder); the answer true makes it fail. Null,
// the default, asks nobody.
using File_Fault_Hook = bool (*)();
void set_file_fault_hook(File_Fault_Hook hook);

} // namespace quadrelle
