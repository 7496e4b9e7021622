#pragma once

// Whether the process stands in the program's folder or in "data" below it.

#include "base/file_lock.h"
#include "base/platform_files.h"

#include <memory>
#include <string>

namespace quadrelle {

class Data_Directory {
public:
    // Rows of the table of folders: 0 is the program's folder, 1 is "data".
    static constexpr int outside = 0;
    static constexpr int inside = 1;

    // Answers false when the process is there already or the folder cannot be entered; deliberately, the row
    // counts as entered in the second case too.
    bool enter(int row);
    void leave();
    // From now on, until it is let go, the folder that is entered is meant, whatever it is called and
    // whatever else is called "data".
    void hold();
    void let_go() { held_.reset(); }
    [[nodiscard]] int index() const { return index_; }

    // Takes "data" for this program, which stands in it, until it gives it back.
    void claim();
    void give_back() { lock_.reset(); }
    // From 1: which one of those this is that run in "data". Each keeps to its own files where several would
    // write the same ones, and has a number that no other one has meanwhile.
    [[nodiscard]] int program_number() const { return program_number_; }

    // Returns the name that opens a data file from where the process stands.
    [[nodiscard]] std::string path(const std::string& file_name) const;

private:
    int index_ = outside;
    int program_number_ = 1;
    std::unique_ptr<File_Lock> lock_;
    std::unique_ptr<Held_Folder> held_;
};

// Returns the one of this process.
[[nodiscard]] Data_Directory& data_directory();

} // namespace quadrelle
