// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Controls.h>

namespace halvek {

/// A text control without a window: a text, a selection and a lock, for hosts with controls of
/// another kind, and for tests.
///
/// @code{.cpp}
/// auto box = std::make_shared<TextField>(u"12.5");
/// utils->OnCurrencyCtrValidate(box, cancel);
/// box->Text();  // $12.50
/// @endcode
class HALVEK_EXPORT TextField : public TextControl {
  public:
    TextField();
    /// A field that shows a text, with the caret and selection given.
    explicit TextField(TextIn text, std::int32_t selStart = 0, std::int32_t selLength = 0);
    ~TextField() override;
    TextField(const TextField&) = default;
    TextField& operator=(const TextField&) = default;

    void Text(TextIn value) override;
    std::u16string Text() const override { return text_; }

    /// Positions and lengths beyond the text are cut to its end.
    void SelStart(std::int32_t value) override;
    std::int32_t SelStart() const override { return selStart_; }
    void SelLength(std::int32_t value) override;
    std::int32_t SelLength() const override { return selLength_; }

    /// Whether the user may not edit the text.
    void Locked(bool value) { locked_ = value; }
    bool Locked() const override { return locked_; }

  private:
    std::int32_t Length() const { return static_cast<std::int32_t>(text_.size()); }

    std::u16string text_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool locked_ = false;
};

}  // namespace halvek
