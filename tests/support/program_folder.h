#pragma once

// A folder of its own with "data/pool.bmp", in which the test runs, so that it writes no file elsewhere.

#include "base/data_directory.h"
#include "base/platform_files.h"
#include "tests/support/project_paths.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace quadrelle::testing {

class Program_Folder {
public:
    Program_Folder() : home_(current_directory()) {
        const std::filesystem::path data = folder_.native_path() / "data";
        std::filesystem::create_directory(data);
        std::filesystem::copy_file(source_folder() / "data" / "pool.bmp", data / "pool.bmp");
        EXPECT_TRUE(change_directory(folder_.path("")));
    }
    Program_Folder(const Program_Folder&) = delete;
    Program_Folder& operator=(const Program_Folder&) = delete;
    ~Program_Folder() {
        data_directory().leave();
        EXPECT_TRUE(change_directory(home_));
    }

    [[nodiscard]] std::string data_path(const std::string& name) const {
        return folder_.path("data/" + name);
    }
    [[nodiscard]] const Temporary_Folder& folder() const { return folder_; }

private:
    Temporary_Folder folder_;
    std::string home_;
};

} // namespace quadrelle::testing
