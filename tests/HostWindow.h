// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Controls.h>

namespace halvek {

/// A window of the host's that counts how often it is refreshed.
struct HostWindow : OwnerForm {
    std::int32_t Left() const override { return 0; }
    std::int32_t Top() const override { return 0; }
    std::int32_t Width() const override { return 0; }
    std::int32_t Height() const override { return 0; }
    bool Exists() const override { return exists; }
    void Refresh() override { ++refreshes; }

    bool exists = true;
    int refreshes = 0;
};

}  // namespace halvek
