#pragma once

// A lock that programs take for themselves. The system gives it back when the program ends, however that
// comes.

#include <cstdint>
#include <memory>
#include <string>

namespace quadrelle {

class File_Lock {
public:
    // Makes the file if it is missing, in a folder that is there.
    explicit File_Lock(const std::string& path);
    // Of the folder itself, which stays as it is where the system lets folders be locked.
    [[nodiscard]] static std::unique_ptr<File_Lock> of_folder(const std::string& path);
    ~File_Lock();
    File_Lock(const File_Lock&) = delete;
    File_Lock& operator=(const File_Lock&) = delete;

    [[nodiscard]] bool is_taken() const { return handle_ != no_handle; }
    // Another one has it. Neither is true where there can be no such file.
    [[nodiscard]] bool is_held_elsewhere() const { return is_held_elsewhere_; }

private:
    static constexpr std::intptr_t no_handle = -1;

    std::string path_;
    std::intptr_t handle_ = no_handle;
    bool is_held_elsewhere_ = false;
};

} // namespace quadrelle
