// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/platform/PrinterSource.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace halvek {

/// A desktop that answers from a script, for tests without a person and without a display.
///
/// Installed from its construction to its destruction. Each dialog takes the next answer of its
/// kind, a function that plays the user on the dialog's rules. If the answer leaves the dialog
/// open, the close box closes it; a dialog without an answer is a fault. At 10 points every
/// character is 100 twips wide and every line 200 twips high; other sizes are in proportion.
///
/// @code{.cpp}
/// ScriptedPlatform desktop;
/// desktop.OnMessageBox([](MessageBox& box) { box.Press(mbYes); });
/// EXPECT_EQ(host.DeleteVisit(), true);  // asks "Delete the visit?"
/// EXPECT_EQ(desktop.AnswersLeft() + desktop.Unanswered().size(), 0u);
/// @endcode
class HALVEK_EXPORT ScriptedPlatform : public Platform {
  public:
    /// One of the desktop's own messages that was shown.
    struct StockMessage {
        std::u16string text;   ///< what it said
        StockIcon icon;        ///< its icon
        std::u16string title;  ///< its title
    };
    /// One call of a help member, by context number or by topic.
    struct ShownHelp {
        std::filesystem::path file;             ///< the help file
        std::optional<std::int32_t> contextId;  ///< nothing for a call by topic
        std::u16string topic;                   ///< as the host wrote it
    };
    /// Plays the user on a message box.
    using MessageBoxAnswer = std::function<void(MessageBox&)>;
    /// Plays the user on a calculator.
    using CalculatorAnswer = std::function<void(Calculator&)>;
    /// Plays the user on a calendar.
    using CalendarAnswer = std::function<void(Calendar&)>;
    /// Plays the user on a colour palette.
    using ColorPaletteAnswer = std::function<void(ColorPalette&)>;
    /// Plays the user on a selection dialog.
    using SelectionAnswer = std::function<void(SelectGrid&)>;

    ScriptedPlatform();
    ~ScriptedPlatform() override;

    /// Queues what the user does with the next message box.
    void OnMessageBox(MessageBoxAnswer answer);
    /// Queues what the user does with the next calculator.
    void OnCalculator(CalculatorAnswer answer);
    /// Queues what the user does in the next calendar.
    void OnCalendar(CalendarAnswer answer);
    /// Queues what the user does in the next colour palette.
    void OnColorPalette(ColorPaletteAnswer answer);
    /// Queues what the user does in the next selection dialog.
    void OnSelection(SelectionAnswer answer);

    /// The answers that no dialog has taken yet.
    std::size_t AnswersLeft() const;
    /// The dialogs that found no answer, the oldest first, each as its kind and what it shows:
    /// "message box Visits".
    const std::vector<std::u16string>& Unanswered() const { return unanswered_; }
    /// The modeless boxes on the screen.
    const std::vector<std::shared_ptr<MessageBox>>& ModelessBoxes() const { return modeless_; }

    /// The debug console with its text; null until something has shown it.
    const std::shared_ptr<DebugConsole>& Console() const { return console_; }

    /// How often the system beep has sounded.
    int Beeps() const { return beeps_; }
    /// The desktop's own messages that were shown, the oldest first; they close by themselves.
    const std::vector<StockMessage>& StockMessages() const { return stockMessages_; }
    /// The calls of the help members, the oldest first.
    const std::vector<ShownHelp>& HelpShown() const { return helpShown_; }

    /// The size of the screen in twips; 20490 by 11520 at first, 1366 by 768 pixels.
    void SetScreenSize(Size size) { screen_ = size; }
    /// What a window frame adds, in twips; 0 by 450 at first.
    void SetFrameSize(Size size) { frame_ = size; }
    /// Whether the debug console may be shown; it may at first.
    void AllowModelessWindows(bool allow) { allowsModeless_ = allow; }

    /// The modifier keys that are down from now on, none at first.
    void HoldKeys(HeldKeys keys) { keysHeld_ = keys; }
    HeldKeys KeysHeld() const override { return keysHeld_; }

    /// The windows that lost their close buttons, in the order of the calls.
    const std::vector<std::int32_t>& WithoutCloseButton() const { return withoutCloseButton_; }
    void RemoveCloseButton(std::int32_t window) override { withoutCloseButton_.push_back(window); }

    /// The workstation's printer connections, none at first; nullopt for a source that fails.
    void SetPrinterConnections(std::optional<std::vector<PrinterConnection>> connections);
    /// The workstation's printer list, empty at first.
    void SetInstalledPrinters(std::vector<InstalledPrinter> printers);
    std::unique_ptr<PrinterSource> Printers() override;

    std::int32_t TextWidth(TextIn text, const FontSpec& font) const override;
    std::int32_t TextHeight(TextIn text, const FontSpec& font) const override;
    std::int32_t WrappedHeight(TextIn text, const FontSpec& font,
                               std::int32_t width) const override;
    bool AllowsModelessWindows() const override { return allowsModeless_; }
    void Beep() override { ++beeps_; }
    void ShowStockMessage(TextIn text, StockIcon icon, TextIn title) override;
    void ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) override;
    void ShowHelpTopic(const std::filesystem::path& file, TextIn topic) override;
    Size ScreenSize() const override { return screen_; }
    Size FrameSize() const override { return frame_; }
    void Show(const std::shared_ptr<MessageBox>& box, Modality modality) override;
    void Show(const std::shared_ptr<Calculator>& calculator) override;
    void Show(const std::shared_ptr<Calendar>& calendar) override;
    void Show(const std::shared_ptr<ColorPalette>& palette) override;
    void Show(const std::shared_ptr<DebugConsole>& console) override { console_ = console; }
    void Show(const std::shared_ptr<SelectGrid>& grid) override;

  private:
    template <class Rules, class Answer>
    void Play(Rules& dialog, std::deque<Answer>& answers, TextIn kind, TextIn caption);

    std::vector<std::u16string> unanswered_;
    std::deque<MessageBoxAnswer> messageBoxAnswers_;
    std::deque<CalculatorAnswer> calculatorAnswers_;
    std::deque<CalendarAnswer> calendarAnswers_;
    std::deque<ColorPaletteAnswer> colorPaletteAnswers_;
    std::deque<SelectionAnswer> selectionAnswers_;
    std::vector<std::shared_ptr<MessageBox>> modeless_;
    std::vector<StockMessage> stockMessages_;
    std::shared_ptr<DebugConsole> console_;
    bool allowsModeless_ = true;
    std::vector<ShownHelp> helpShown_;
    int beeps_ = 0;
    Size screen_ = {20490, 11520};  // 1366 by 768 pixels
    Size frame_ = {0, 450};
    HeldKeys keysHeld_;
    std::vector<std::int32_t> withoutCloseButton_;
    std::optional<std::vector<PrinterConnection>> connections_ = std::vector<PrinterConnection>();
    std::vector<InstalledPrinter> installedPrinters_;
};

}  // namespace halvek
