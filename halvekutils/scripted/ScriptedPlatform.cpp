// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/platform/Twips.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr std::int32_t kCharacterWidthPerPoint = 10;
constexpr std::int32_t kLineHeightPerPoint = 20;

/// Calls `each` with the length of every line; CR LF, CR and LF all end one.
template <class Each>
void ForEachLine(std::u16string_view text, const Each& each) {
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find_first_of(u"\r\n", start);
        each(static_cast<std::int64_t>(std::min(end, text.size()) - start));
        if (end == std::u16string_view::npos) return;
        const bool pair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
        start = end + (pair ? 2 : 1);
    }
}

class ScriptedPrinters : public PrinterSource {
  public:
    ScriptedPrinters(std::optional<std::vector<PrinterConnection>> connections,
                     std::vector<InstalledPrinter> installed)
        : connections_(std::move(connections)), installed_(std::move(installed)) {}

    std::vector<PrinterConnection> Connections() override {
        if (!connections_) throw RuntimeError(Fault::DeviceError, u"scripted printers");
        return *connections_;
    }
    std::vector<InstalledPrinter> Installed() override { return installed_; }

  private:
    std::optional<std::vector<PrinterConnection>> connections_;
    std::vector<InstalledPrinter> installed_;
};

}  // namespace

ScriptedPlatform::ScriptedPlatform() {
    Install();
}
ScriptedPlatform::~ScriptedPlatform() {
    Uninstall();
}

void ScriptedPlatform::OnMessageBox(MessageBoxAnswer answer) {
    messageBoxAnswers_.push_back(std::move(answer));
}
void ScriptedPlatform::OnCalculator(CalculatorAnswer answer) {
    calculatorAnswers_.push_back(std::move(answer));
}
void ScriptedPlatform::OnCalendar(CalendarAnswer answer) {
    calendarAnswers_.push_back(std::move(answer));
}
void ScriptedPlatform::OnColorPalette(ColorPaletteAnswer answer) {
    colorPaletteAnswers_.push_back(std::move(answer));
}
void ScriptedPlatform::OnSelection(SelectionAnswer answer) {
    selectionAnswers_.push_back(std::move(answer));
}

std::size_t ScriptedPlatform::AnswersLeft() const {
    return messageBoxAnswers_.size() + calculatorAnswers_.size() + calendarAnswers_.size() +
           colorPaletteAnswers_.size() + selectionAnswers_.size();
}

void ScriptedPlatform::SetPrinterConnections(
    std::optional<std::vector<PrinterConnection>> connections) {
    connections_ = std::move(connections);
}

void ScriptedPlatform::SetInstalledPrinters(std::vector<InstalledPrinter> printers) {
    installedPrinters_ = std::move(printers);
}

std::unique_ptr<PrinterSource> ScriptedPlatform::Printers() {
    return std::make_unique<ScriptedPrinters>(connections_, installedPrinters_);
}

std::int32_t ScriptedPlatform::TextWidth(TextIn text, const FontSpec& font) const {
    std::int64_t longest = 0;
    ForEachLine(text, [&](std::int64_t length) { longest = std::max(longest, length); });
    return LimitedTwips(longest * kCharacterWidthPerPoint * font.points);
}

std::int32_t ScriptedPlatform::TextHeight(TextIn text, const FontSpec& font) const {
    std::int64_t lines = 0;
    ForEachLine(text, [&](std::int64_t) { ++lines; });
    return LimitedTwips(lines * kLineHeightPerPoint * font.points);
}

std::int32_t ScriptedPlatform::WrappedHeight(TextIn text, const FontSpec& font,
                                             std::int32_t width) const {
    const std::int64_t fitting = std::max(width / (kCharacterWidthPerPoint * font.points), 1);
    std::int64_t lines = 0;
    ForEachLine(text, [&](std::int64_t length) {
        lines += std::max<std::int64_t>((length + fitting - 1) / fitting, 1);
    });
    return LimitedTwips(lines * kLineHeightPerPoint * font.points);
}

void ScriptedPlatform::ShowStockMessage(TextIn text, StockIcon icon, TextIn title) {
    stockMessages_.push_back({text.Str(), icon, title.Str()});
}

void ScriptedPlatform::ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) {
    helpShown_.push_back({file, contextId, {}});
}

void ScriptedPlatform::ShowHelpTopic(const std::filesystem::path& file, TextIn topic) {
    helpShown_.push_back({file, std::nullopt, topic.Str()});
}

/// Plays the next answer in the queue on a dialog; a fault when there is none.
template <class Rules, class Answer>
void ScriptedPlatform::Play(Rules& dialog, std::deque<Answer>& answers, TextIn kind,
                            TextIn caption) {
    if (answers.empty()) {
        unanswered_.push_back(kind.Str() + u" " + caption.Str());
        throw RuntimeError(Fault::InvalidArgument, u"no answer for the " + unanswered_.back());
    }
    const Answer answer = std::move(answers.front());
    answers.pop_front();
    answer(dialog);
    dialog.Abandon();
}

void ScriptedPlatform::Show(const std::shared_ptr<MessageBox>& box, Modality modality) {
    if (modality == Modality::Modeless) {
        modeless_.push_back(box);
        box->ShownModeless();
        return;
    }
    std::erase(modeless_, box);
    Play(*box, messageBoxAnswers_, u"message box", box->Caption());
}

void ScriptedPlatform::Show(const std::shared_ptr<Calculator>& calculator) {
    Play(*calculator, calculatorAnswers_, u"calculator", calculator->Display());
}

void ScriptedPlatform::Show(const std::shared_ptr<Calendar>& calendar) {
    Play(*calendar, calendarAnswers_, u"calendar", DateOnlyText(calendar->MarkedDay()));
}

void ScriptedPlatform::Show(const std::shared_ptr<ColorPalette>& palette) {
    Play(*palette, colorPaletteAnswers_, u"dialog", ColorPalette::kCaption);
}

void ScriptedPlatform::Show(const std::shared_ptr<SelectGrid>& grid) {
    Play(*grid, selectionAnswers_, u"selection list", grid->Caption());
}

}  // namespace halvek
