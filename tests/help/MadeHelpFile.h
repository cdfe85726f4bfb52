// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdint>
#include <vector>

namespace halvek {

/// A little-endian number of so many bytes.
inline std::string Bytes(std::uint64_t number, int count = 4) {
    std::string bytes;
    for (; count > 0; --count, number >>= 8) bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

/// An entry of #SYSTEM.
inline std::string SystemValue(std::uint16_t number, std::string_view value) {
    return Bytes(number, 2) + Bytes(value.size() + 1, 2) + std::string(value) + '\0';
}

/// A help file without compression, from paths and contents: for what chmcmd does not make.
class MadeHelpFile {
  public:
    struct Object {
        std::string_view path;
        std::string bytes;
    };

    explicit MadeHelpFile(const std::vector<Object>& objects) {
        std::string data;
        std::vector<std::string> pages(1);
        for (const auto& [path, bytes] : objects) {
            const std::string entry = Packed(path.size()) + std::string(path) + Packed(0) +
                                      Packed(data.size()) + Packed(bytes.size());
            if (pages.back().size() + entry.size() > kPage - 0x14) pages.emplace_back();
            pages.back() += entry;
            data += bytes;
        }
        std::string directory = "ITSP" + Bytes(1) + Bytes(0x54) + Bytes(10) + Bytes(kPage);
        directory.resize(0x54, '\0');
        for (std::string& page : pages) {
            const std::size_t unused = kPage - 0x14 - page.size();
            directory += "PMGL" + Bytes(unused) + Bytes(0) + Bytes(0) + Bytes(0) + page +
                         std::string(unused, '\0');
        }
        std::string header = "ITSF" + Bytes(3) + Bytes(0x60) + Bytes(1);
        header.resize(0x48, '\0');
        header += Bytes(0x60, 8) + Bytes(directory.size(), 8) + Bytes(0x60 + directory.size(), 8);
        WriteFile(Path(), header + directory + data);
    }

    std::filesystem::path Path() const { return folder_ / "Desk help.chm"; }

  private:
    static constexpr std::size_t kPage = 0x1000;

    static std::string Packed(std::uint64_t number) {
        std::string packed(1, static_cast<char>(number & 0x7F));
        while ((number >>= 7) != 0) packed.insert(0, 1, static_cast<char>((number & 0x7F) | 0x80));
        return packed;
    }

    TemporaryFolder folder_;
};

}  // namespace halvek
