#pragma once

// The rows that a folder is shown as: the way up, its folders, and its files of one kind.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

enum class Listed_Kind { parent, folder, file };

struct Listed_Row {
    Listed_Kind kind;
    std::string name;

    bool operator==(const Listed_Row&) const = default;
};

class Folder_Listing {
public:
    // The pattern is an extension, or "*" for every file.
    explicit Folder_Listing(std::string_view pattern) : pattern_(pattern) {}

    // Reads the folder anew each time. Answers false, with everything as it was, when it cannot be read.
    [[nodiscard]] bool open(const std::string& folder);
    // Opens the folder or the nearest one above it that can be read; answers false when there is none.
    [[nodiscard]] bool open_nearest(std::string folder);

    [[nodiscard]] const std::string& folder() const { return folder_; }
    // The rows stand by kind, then by name; hidden files are left out.
    [[nodiscard]] const std::vector<Listed_Row>& rows() const { return rows_; }
    [[nodiscard]] std::optional<std::size_t> find(std::string_view name) const;
    // Returns the path that a row leads to.
    [[nodiscard]] std::string path_of(std::size_t row) const;

private:
    std::string pattern_;
    std::string folder_;
    std::vector<Listed_Row> rows_;
};

} // namespace quadrelle
