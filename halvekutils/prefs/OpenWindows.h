// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/StringTable.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <memory>

namespace halvek {

class Services;

/// The host's open windows. Each has a type, which the host chooses, and its handle.
///
/// Indexes count from 1. Utils::OpenWindows returns the one registry of its object.
///
/// @code{.cpp}
/// const auto windows = utils->OpenWindows();
/// windows->AddItem(u"Patient", static_cast<std::int32_t>(window.winId()));
/// windows->GetItem(1)[0];  // Patient
/// @endcode
class HALVEK_EXPORT OpenWindows {
  public:
    ~OpenWindows();

    /// Removes all windows.
    void ClearAll();

    /// The same as GetAll: every window, whatever its type.
    StringTable GetAllByType(TextIn WinType) const;

    /// A copy of the whole table: types in row 0, handles as decimal text in row 1, a window's
    /// column at its index. Column 0 is empty.
    StringTable GetAll() const;

    /// Type and handle text of a window, as elements 0 and 1; both empty for an index that does not
    /// exist, with a beep when it is too large.
    StringArray GetItem(std::int32_t Index) const;

    /// How many windows there are.
    std::int32_t Count() const;

    /// Removes a window; those after it move up by one.
    /// @return false when there is no such window; logged unless the registry is empty
    bool RemoveItem(std::int32_t Index);

    /// Adds a window at the end, also when it is in the registry already.
    /// @return false after a fault, which is logged
    bool AddItem(TextIn WinType, std::int32_t WinHandle);

  private:
    friend class Utils;

    /// A registry without windows; `services`, whose log is used, outlives it.
    explicit OpenWindows(Services& services);

    Services& services_;
    StringTable windows_;
};

}  // namespace halvek
