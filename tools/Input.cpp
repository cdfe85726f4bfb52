// SPDX-License-Identifier: MIT
#include "Input.h"

#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace check {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char16_t kReplacement = 0xFFFD;

[[noreturn]] void Fail(const std::string& what) {
    throw std::runtime_error(what);
}

std::string ReadAll(std::FILE* file) {
    constexpr std::size_t kChunk = 1 << 20;
    std::string bytes;
    std::size_t length = 0;
    std::size_t read = 0;
    do {
        length += read;
        bytes.resize(length + kChunk);
        read = std::fread(bytes.data() + length, 1, kChunk, file);
    } while (read > 0);
    if (std::ferror(file) != 0) Fail(std::strerror(errno));
    bytes.resize(length);
    return bytes;
}

std::string ReadFile(const std::string& name) {
    if (name == "-") return ReadAll(stdin);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "rb"),
                                                               &std::fclose);
    if (file == nullptr) Fail(std::strerror(errno));
    return ReadAll(file.get());
}

std::string_view WithoutLineBreak(std::string_view bytes) {
    if (bytes.ends_with('\n')) bytes.remove_suffix(1);
    if (bytes.ends_with('\r')) bytes.remove_suffix(1);
    return bytes;
}

std::u16string DecodeUtf8(std::string_view bytes) {
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    std::u16string text = halvek::FromUtf8(bytes);
    const std::size_t wrong = text.find(kReplacement);
    if (wrong != text.npos) Fail("not UTF-8 after character " + std::to_string(wrong));
    return text;
}

}  // namespace

std::u16string ReadText(const std::string& file, Encoding encoding) {
    const std::string bytes = ReadFile(file);
    const std::string_view text = WithoutLineBreak(bytes);
    return encoding == Encoding::Utf8 ? DecodeUtf8(text) : halvek::FromCodePage(text);
}

}  // namespace check
