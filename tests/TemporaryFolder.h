// SPDX-License-Identifier: MIT
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace halvek {

/// A new folder, deleted with its contents at the end of the scope.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "halvekutils-XXXXXX";
        if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error(pattern);
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

inline void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    if (!(std::ofstream(file) << bytes << std::flush)) throw std::runtime_error(file);
}

/// The bytes of a file; "(missing)" when there is none.
inline std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return in.is_open() ? bytes.str() : "(missing)";
}

inline std::set<std::string> NamesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename());
    }
    return names;
}

}  // namespace halvek
