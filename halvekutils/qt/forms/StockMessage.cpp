// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/platform/NoServices.h>
#include <halvekutils/qt/forms/StockMessage.h>

namespace halvek {

std::shared_ptr<MessageBox> MakeStockMessage(TextIn text, StockIcon icon, TextIn title,
                                             const Desktop& desktop) {
    MessageBoxRequest request;
    request.prompt = text.Str();
    request.title = title.Str();
    request.icon = icon == StockIcon::Critical ? mbCritical : mbNoIcon;
    return std::make_shared<MessageBox>(std::move(request), NoServices(), desktop);
}

}  // namespace halvek
