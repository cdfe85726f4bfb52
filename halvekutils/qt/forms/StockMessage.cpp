// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/qt/forms/StockMessage.h>

namespace halvek {

namespace {

/// What a message box gets when there is no session.
class NoSession : public Services {
  public:
    void LogError(TextIn) noexcept override {}
    void ShowInDebug(TextIn) override {}
    bool DebugMode() const override { return false; }
    std::u16string AppName() const override { return {}; }
    std::u16string SpecialMode() const override { return {}; }
    Color FormSkinColor() const override { return kWhite; }
    Color FormTextColor() const override { return kBlack; }
};

}  // namespace

std::shared_ptr<MessageBox> MakeStockMessage(TextIn text, StockIcon icon, TextIn title,
                                             const Desktop& desktop) {
    MessageBoxRequest request;
    request.prompt = text.Str();
    request.title = title.Str();
    request.icon = icon == StockIcon::Critical ? mbCritical : mbNoIcon;
    return std::make_shared<MessageBox>(std::move(request), NoSession(), desktop);
}

}  // namespace halvek
