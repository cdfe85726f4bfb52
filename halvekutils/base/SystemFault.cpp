// SPDX-License-Identifier: MIT
#include <halvekutils/base/SystemFault.h>
#include <halvekutils/base/Utf8.h>

namespace halvek {

namespace {

struct SystemFaultRow {
    std::errc error;
    Fault fault;
};

constexpr SystemFaultRow kSystemFaults[] = {
    {std::errc::no_such_file_or_directory, Fault::FileNotFound},
    {std::errc::not_a_directory, Fault::PathNotFound},
    {std::errc::filename_too_long, Fault::PathNotFound},
    {std::errc::permission_denied, Fault::PermissionDenied},
    {std::errc::operation_not_permitted, Fault::PermissionDenied},
    {std::errc::read_only_file_system, Fault::PermissionDenied},
    {std::errc::is_a_directory, Fault::PermissionDenied},
    {std::errc::text_file_busy, Fault::PermissionDenied},
    {std::errc::too_many_symbolic_link_levels, Fault::PermissionDenied},
    {std::errc::file_exists, Fault::FileAlreadyExists},
    {std::errc::no_space_on_device, Fault::DiskFull},
    {std::errc::file_too_large, Fault::DiskFull},
    {std::errc::not_enough_memory, Fault::OutOfMemory},
    {std::errc::invalid_argument, Fault::InvalidArgument},
};

Fault FaultOf(std::error_code error) {
    for (const SystemFaultRow& row : kSystemFaults) {
        if (error == row.error) return row.fault;
    }
    return Fault::DeviceError;
}

}  // namespace

RuntimeError SystemFault(std::error_code error, const std::filesystem::path& file) {
    return RuntimeError(FaultOf(error), FromUtf8(file.native()));
}

}  // namespace halvek
