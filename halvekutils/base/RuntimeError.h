// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>

namespace halvek {

/// The numbers of the run-time faults that this library raises.
enum class Fault : std::int32_t {
    InvalidArgument = 5,      ///< "Invalid argument": a value or key that is not accepted
    Overflow = 6,             ///< "Overflow": a number or date that is out of range
    OutOfMemory = 7,          ///< "Out of memory"
    SubscriptOutOfRange = 9,  ///< "Subscript out of range": no such position or element
    TypeMismatch = 13,        ///< "Type mismatch": a text that is not a number or amount
    FileNotFound = 53,        ///< "File not found"
    DeviceError = 57,         ///< "Device error": damaged data, a printer or screen that fails
    FileAlreadyExists = 58,   ///< "File already exists"
    DiskFull = 61,            ///< "Disk full", also for a quota that is used up
    PermissionDenied = 70,    ///< "Permission denied"
    PathNotFound = 76,        ///< "Path not found": the folder is missing
    ObjectNotSet = 91,        ///< "Object not set": a destroyed control, no session, no desktop
    DuplicateKey = 457,       ///< "Key already in the collection"
};

/// A run-time fault: the only exception type of this library's own.
class HALVEK_EXPORT RuntimeError : public std::runtime_error {
  public:
    /// A fault with its standard description, such as "Subscript out of range".
    explicit RuntimeError(Fault fault);

    /// A fault whose description continues with ": " and what it is about, a file or a key.
    RuntimeError(Fault fault, TextIn about);

    /// Copies share the description.
    RuntimeError(const RuntimeError&) noexcept;
    /// Copies share the description.
    RuntimeError& operator=(const RuntimeError&) noexcept;
    ~RuntimeError() override;

    /// Which fault it is.
    Fault Code() const noexcept { return fault_; }

    /// The fault's number, as log lines show it.
    std::int32_t Number() const noexcept { return static_cast<std::int32_t>(fault_); }

    /// The description for people and log lines; what() gives the same as UTF-8.
    std::u16string Description() const;

  private:
    Fault fault_;
};

/// Turns a caught exception into a fault: a RuntimeError stays as it is, std::bad_alloc becomes
/// OutOfMemory, a standard system error the fault for its code, and anything else InvalidArgument
/// with its own text.
HALVEK_EXPORT RuntimeError AsRuntimeError(const std::exception& caught);

}  // namespace halvek
