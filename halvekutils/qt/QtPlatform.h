// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/core/Platform.h>

#include <cstdint>
#include <filesystem>
#include <memory>

namespace halvek {

/// The Qt desktop: shows the library's dialogs as real windows.
///
/// A host creates one in main, after its QApplication; it is the installed platform until it is
/// destroyed. Use it on the user-interface thread.
///
/// @code{.cpp}
/// QApplication app(argc, argv);
/// QtPlatform desktop;
/// @endcode
class HALVEK_EXPORT QtPlatform : public Platform {
  public:
    /// Throws ObjectNotSet without a QApplication (a QGuiApplication, as Qt Quick programs have, is
    /// not enough for widgets) and InvalidArgument off its thread.
    QtPlatform();
    ~QtPlatform() override;

    std::int32_t TextWidth(TextIn text, const FontSpec& font) const override;
    std::int32_t TextHeight(TextIn text, const FontSpec& font) const override;
    std::int32_t WrappedHeight(TextIn text, const FontSpec& font,
                               std::int32_t width) const override;
    void Beep() override;
    void ShowStockMessage(TextIn text, StockIcon icon, TextIn title) override;
    void ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) override;
    void ShowHelpTopic(const std::filesystem::path& file, TextIn topic) override;
    Size ScreenSize() const override;
    Rect ScreenRect() const override;
    Rect ScreenRectAt(Point point) const override;
    Size FrameSize() const override;
    HeldKeys KeysHeld() const override;
    void RemoveCloseButton(std::int32_t window) override;
    std::unique_ptr<PrinterSource> Printers() override;
    void Show(const std::shared_ptr<MessageBox>& box, Modality modality) override;
    void Show(const std::shared_ptr<Calculator>& calculator) override;
    void Show(const std::shared_ptr<Calendar>& calendar) override;
    void Show(const std::shared_ptr<ColorPalette>& palette) override;
    void Show(const std::shared_ptr<DebugConsole>& console) override;
    void Show(const std::shared_ptr<SelectGrid>& grid) override;

  private:
    struct Private;
    std::unique_ptr<Private> d_;
};

}  // namespace halvek
