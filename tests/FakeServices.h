// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Services.h>

#include <vector>

namespace halvek {

/// A session that keeps what is logged and shown, with settable switches.
class FakeServices : public Services {
  public:
    void LogError(TextIn message) noexcept override { logged.push_back(message.Str()); }
    void ShowInDebug(TextIn text) override { shown.push_back(text.Str()); }
    bool DebugMode() const override { return debug; }
    std::u16string AppName() const override { return u"Front Desk"; }
    std::u16string SpecialMode() const override { return specialMode; }
    Color FormSkinColor() const override { return 0x112233; }
    Color FormTextColor() const override { return 0x445566; }

    bool debug = false;
    std::u16string specialMode;
    std::vector<std::u16string> logged;
    std::vector<std::u16string> shown;
};

}  // namespace halvek
