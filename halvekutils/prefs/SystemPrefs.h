// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/BoolIn.h>
#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

/// The practice's settings, shared by the host and the library: Utils keeps the host's own object.
///
/// Plain storage: each property returns the value last set, and at first an empty text, 0 or false.
/// The library reads only LookupKey and LookupKey1, in Utils::IsLookupKey and
/// Utils::ConvertLookupKeyToSearchBy; its currency fields have digits of their own, and its colours
/// and code delimiter come from Utils::InitOtherSettings.
class HALVEK_EXPORT SystemPrefs {
  public:
    SystemPrefs();
    ~SystemPrefs();

    /// Whether the host closes a dialog after saving.
    void CloseDialogAfterSave(BoolIn value) { closeDialogAfterSave_ = value; }
    bool CloseDialogAfterSave() const { return closeDialogAfterSave_; }

    /// The background of windows.
    void DefaultWindowsBackColor(Color value) { defaultWindowsBackColor_ = value; }
    Color DefaultWindowsBackColor() const { return defaultWindowsBackColor_; }

    /// Digits of a currency amount after the point.
    void CurrencyNumFract(std::int16_t value) { currencyNumFract_ = value; }
    std::int16_t CurrencyNumFract() const { return currencyNumFract_; }

    /// Digits of a currency amount before the point.
    void CurrencyNumDecimal(std::int16_t value) { currencyNumDecimal_ = value; }
    std::int16_t CurrencyNumDecimal() const { return currencyNumDecimal_; }

    /// The text colour of a highlighted field.
    void HighlightForeColor(Color value) { highlightForeColor_ = value; }
    Color HighlightForeColor() const { return highlightForeColor_; }
    /// The background of a highlighted field.
    void HighlightBackColor(Color value) { highlightBackColor_ = value; }
    Color HighlightBackColor() const { return highlightBackColor_; }

    /// The factor by which column widths are adjusted.
    void ColumnAdjust(double value) { columnAdjust_ = value; }
    double ColumnAdjust() const { return columnAdjust_; }

    /// The delimiter between a code and its description.
    void CodeDelimeter(TextIn value) { codeDelimeter_ = value; }
    std::u16string CodeDelimeter() const { return codeDelimeter_; }

    /// The code of the key that opens a look-up.
    void LookupKey(std::int32_t value) { lookupKey_ = value; }
    std::int32_t LookupKey() const { return lookupKey_; }
    /// The code of the second key that opens a look-up.
    void LookupKey1(std::int32_t value) { lookupKey1_ = value; }
    std::int32_t LookupKey1() const { return lookupKey1_; }
    /// The code of the key that opens the look-up of patients.
    void PatientLookupKey(std::int32_t value) { patientLookupKey_ = value; }
    std::int32_t PatientLookupKey() const { return patientLookupKey_; }

    /// The height of a horizontal scroll bar, in the host's unit.
    void ScrollBarHeight(std::int32_t value) { scrollBarHeight_ = value; }
    std::int32_t ScrollBarHeight() const { return scrollBarHeight_; }
    /// The width of a vertical scroll bar, in the host's unit.
    void ScrollBarWidth(std::int32_t value) { scrollBarWidth_ = value; }
    std::int32_t ScrollBarWidth() const { return scrollBarWidth_; }

    /// The text colour of a disabled field.
    void DisabledTextForeColor(Color value) { disabledTextForeColor_ = value; }
    Color DisabledTextForeColor() const { return disabledTextForeColor_; }
    /// The background of a disabled field.
    void DisabledTextBackColor(Color value) { disabledTextBackColor_ = value; }
    Color DisabledTextBackColor() const { return disabledTextBackColor_; }

    /// The background of a highlighted row of a grid.
    void GridHighlightBackColor(Color value) { gridHighlightBackColor_ = value; }
    Color GridHighlightBackColor() const { return gridHighlightBackColor_; }

  private:
    bool closeDialogAfterSave_ = false;
    Color defaultWindowsBackColor_ = 0;
    std::int16_t currencyNumFract_ = 0;
    std::int16_t currencyNumDecimal_ = 0;
    Color highlightForeColor_ = 0;
    Color highlightBackColor_ = 0;
    double columnAdjust_ = 0;
    std::u16string codeDelimeter_;
    std::int32_t lookupKey_ = 0;
    std::int32_t lookupKey1_ = 0;
    std::int32_t patientLookupKey_ = 0;
    std::int32_t scrollBarHeight_ = 0;
    std::int32_t scrollBarWidth_ = 0;
    Color disabledTextForeColor_ = 0;
    Color disabledTextBackColor_ = 0;
    Color gridHighlightBackColor_ = 0;
};

}  // namespace halvek
