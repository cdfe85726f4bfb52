// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/platform/Services.h>

#include <string>

namespace halvek {

/// What the rules get where there is no session: nothing is kept, and windows are black on white.
class NoServices final : public Services {
  public:
    void LogError(TextIn) noexcept override {}
    void ShowInDebug(TextIn) override {}
    bool DebugMode() const override { return false; }
    std::u16string AppName() const override { return {}; }
    std::u16string SpecialMode() const override { return {}; }
    Color FormSkinColor() const override { return kWhite; }
    Color FormTextColor() const override { return kBlack; }
};

}  // namespace halvek
