// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Dialog.h>

#include <utility>

namespace halvek {

Dialog::Dialog() = default;
Dialog::~Dialog() = default;

void Dialog::Close() {
    if (open_) OnClose();
}

void Dialog::Abandon() {
    if (open_) OnAbandon();
}

void Dialog::End(std::u16string result) {
    result_ = std::move(result);
    open_ = false;
    NotifyChanged();
}

void Dialog::NotifyChanged() const {
    if (Changed) Changed();
}

std::u16string Dialog::TakeResult() {
    return std::exchange(result_, {});
}

void Dialog::OnClose() {
    End({});
}

void Dialog::OnAbandon() {
    OnClose();
}

}  // namespace halvek
