// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/KeyIndex.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/LzxDecoder.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// The objects of a compiled help file, by their paths, as in "/images/logo.png".
///
/// Every offset and length in the file is checked before it is used, and no object of more than 16
/// MB is read, so a truncated, damaged or malicious file gives a fault. Letter case in paths does
/// not matter. Members throw DeviceError, which names the file, unless they say otherwise.
class HALVEK_INTERNAL HelpArchive {
  public:
    /// Opens a file and reads its directory.
    explicit HelpArchive(const std::filesystem::path& file);
    ~HelpArchive();
    HelpArchive(const HelpArchive&) = delete;
    HelpArchive& operator=(const HelpArchive&) = delete;

    const std::filesystem::path& File() const { return file_; }

    bool Has(TextIn path) const { return Find(path) != nullptr; }

    /// The bytes of an object. Throws FileNotFound when there is no such object.
    std::string Read(TextIn path);

    /// The first path, in the directory's order, with this ending; empty when none has it.
    std::u16string FirstEndingIn(TextIn ending) const;

    /// All paths with one of these endings, in the order in which the objects are stored: reading
    /// them so decompresses no data twice.
    std::vector<std::u16string> PathsEndingIn(
        std::initializer_list<std::u16string_view> endings) const;

  private:
    struct Object {
        bool compressed = false;
        std::uint64_t start = 0;
        std::uint64_t length = 0;
    };
    /// Where the spans of compressed data are. Each span decompresses by itself.
    struct Compression {
        std::uint64_t contentStart = 0;
        std::uint64_t length = 0;  ///< of all data, decompressed
        std::uint32_t window = 0;
        std::uint64_t framesInSpan = 0;
        std::vector<std::uint64_t> frames;  ///< where each starts and, last, where the last ends
    };

    [[noreturn]] void Fail(TextIn what) const;
    void Check(bool holds, TextIn what) const;
    std::string BytesAt(std::uint64_t start, std::uint64_t length);
    void ReadDirectory();
    void ReadEntries(std::string_view entries);
    const Object* Find(TextIn path) const;
    const Object* FindInternal(std::string_view path) const;
    std::string ReadInternal(std::string_view internalPath);
    void ReadCompression();
    void ReadControlData();
    void ReadFrames();
    std::string Decompressed(std::uint64_t start, std::uint64_t length);
    void DecompressTo(std::uint64_t number, std::uint64_t end);
    void DecompressFrame();

    std::filesystem::path file_;
    std::ifstream in_;
    std::uint64_t size_ = 0;
    std::uint64_t dataStart_ = 0;
    KeyIndex paths_;
    std::vector<Object> objects_;  ///< in the order of their paths
    Compression compression_;
    // The span read last, decompressed as far as it was asked for
    std::uint64_t spanNumber_ = 0;
    std::string span_;
    std::unique_ptr<LzxDecoder> decoder_;  ///< null for no span
};

}  // namespace halvek
