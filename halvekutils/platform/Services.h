// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// What a feature may use of the current session: its log, its switches and its colours.
class HALVEK_INTERNAL Services {
  public:
    virtual ~Services();

    /// The services of the session that InitUtils started last. Throws ObjectNotSet before the
    /// first InitUtils.
    static Services& Current();

    /// Makes these the current services until others are installed; null for none.
    static void Install(Services* services) noexcept;

    /// Writes one line to the error log. Never throws.
    virtual void LogError(TextIn message) noexcept = 0;

    /// Adds one line to the debug console; dropped outside debug mode.
    virtual void ShowInDebug(TextIn text) = 0;

    /// Whether the session runs in debug mode.
    virtual bool DebugMode() const = 0;
    /// The application's name, the title of the library's messages.
    virtual std::u16string AppName() const = 0;
    /// The session's diagnostic words.
    virtual std::u16string SpecialMode() const = 0;
    /// The background of the host's forms.
    virtual Color FormSkinColor() const = 0;
    /// The text colour of the host's forms.
    virtual Color FormTextColor() const = 0;

  protected:
    Services() = default;
    Services(const Services&) = default;
    Services& operator=(const Services&) = default;
};

}  // namespace halvek
