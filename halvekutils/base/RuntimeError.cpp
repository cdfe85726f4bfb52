// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/SystemFault.h>
#include <halvekutils/base/Utf8.h>

#include <filesystem>
#include <new>
#include <string_view>

namespace halvek {

namespace {

struct FaultText {
    Fault fault;
    std::string_view text;
};

constexpr FaultText kFaultTexts[] = {
    {Fault::InvalidArgument, "Invalid argument"},
    {Fault::Overflow, "Overflow"},
    {Fault::OutOfMemory, "Out of memory"},
    {Fault::SubscriptOutOfRange, "Subscript out of range"},
    {Fault::TypeMismatch, "Type mismatch"},
    {Fault::FileNotFound, "File not found"},
    {Fault::DeviceError, "Device error"},
    {Fault::FileAlreadyExists, "File already exists"},
    {Fault::DiskFull, "Disk full"},
    {Fault::PermissionDenied, "Permission denied"},
    {Fault::PathNotFound, "Path not found"},
    {Fault::ObjectNotSet, "Object not set"},
    {Fault::DuplicateKey, "Key already in the collection"},
};

std::string TextOf(Fault fault) {
    for (const FaultText& row : kFaultTexts) {
        if (row.fault == fault) return std::string(row.text);
    }
    return "Unknown fault";
}

}  // namespace

RuntimeError::RuntimeError(Fault fault) : std::runtime_error(TextOf(fault)), fault_(fault) {}

RuntimeError::RuntimeError(Fault fault, TextIn about)
    : std::runtime_error(TextOf(fault) + ": " + ToUtf8(about)), fault_(fault) {}

RuntimeError::RuntimeError(const RuntimeError&) noexcept = default;
RuntimeError& RuntimeError::operator=(const RuntimeError&) noexcept = default;
RuntimeError::~RuntimeError() = default;

std::u16string RuntimeError::Description() const {
    return FromUtf8(what());
}

RuntimeError AsRuntimeError(const std::exception& caught) {
    if (const auto* fault = dynamic_cast<const RuntimeError*>(&caught)) return *fault;
    if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&caught)) {
        return SystemFault(file->code(), file->path1());
    }
    if (dynamic_cast<const std::bad_alloc*>(&caught) != nullptr ||
        dynamic_cast<const std::length_error*>(&caught) != nullptr) {
        return RuntimeError(Fault::OutOfMemory);
    }
    return RuntimeError(Fault::InvalidArgument, FromUtf8(caught.what()));
}

}  // namespace halvek
