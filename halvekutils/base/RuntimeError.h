// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace halvek {

/// The numbers of the run-time faults that this library raises.
enum class Fault : std::int32_t {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    PermissionDenied = 70,
    PathNotFound = 76,
    ObjectNotSet = 91,
    DuplicateKey = 457,
};

/// A run-time fault: the only type that this library throws of its own.
class HALVEK_EXPORT RuntimeError : public std::runtime_error {
  public:
    /// A fault with its standard description, such as "Subscript out of range".
    explicit RuntimeError(Fault fault);

    /// A fault whose description goes on with ": " and what it was about, a file or a key.
    RuntimeError(Fault fault, TextIn about);

    RuntimeError(const RuntimeError&) noexcept;
    RuntimeError& operator=(const RuntimeError&) noexcept;
    ~RuntimeError() override;

    Fault Code() const noexcept { return fault_; }

    /// The fault's number, as log lines show it.
    std::int32_t Number() const noexcept { return static_cast<std::int32_t>(fault_); }

    /// The description for people and log lines; what() gives the same as UTF-8.
    std::u16string Description() const;

  private:
    Fault fault_;
};

/// Any caught exception as a fault: a RuntimeError as it is, std::bad_alloc as OutOfMemory, a
/// standard system error by its code, anything else as InvalidArgument with its own text.
HALVEK_EXPORT RuntimeError AsRuntimeError(const std::exception& caught);

/// The fault that stands for a system error; its description names the file.
HALVEK_EXPORT RuntimeError SystemFault(std::error_code error, const std::filesystem::path& file);

}  // namespace halvek
