// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/prefs/OpenWindows.h>

#include <utility>

namespace halvek {

namespace {

constexpr std::int32_t kType = 0;
constexpr std::int32_t kHandle = 1;
constexpr std::int32_t kRows = 2;

}  // namespace

OpenWindows::OpenWindows(Services& services) : services_(services), windows_(kRows, 1) {}
OpenWindows::~OpenWindows() = default;

void OpenWindows::ClearAll() {
    windows_.ResizeColumns(1);
}

StringTable OpenWindows::GetAllByType([[maybe_unused]] TextIn WinType) const {
    return GetAll();
}

StringTable OpenWindows::GetAll() const {
    return Quietly(StringTable(), [&] { return windows_; });
}

StringArray OpenWindows::GetItem(std::int32_t Index) const {
    StringArray item(0, 1);
    if (Index > Count()) {
        Beep();
    } else if (Index >= 1) {
        item[kType] = windows_.At(kType, Index);
        item[kHandle] = windows_.At(kHandle, Index);
    }
    return item;
}

std::int32_t OpenWindows::Count() const {
    return windows_.Columns() - 1;
}

bool OpenWindows::RemoveItem(std::int32_t Index) {
    return Guarded(OnFault::Quiet, u"OpenWindows: RemoveItem ", services_, false, [&] {
        const std::int32_t last = Count();
        if (last == 0) return false;
        if (Index < 1 || Index > last) throw RuntimeError(Fault::SubscriptOutOfRange);
        for (std::int32_t column = Index; column < last; ++column) {
            for (const std::int32_t row : {kType, kHandle}) {
                windows_.At(row, column) = std::move(windows_.At(row, column + 1));
            }
        }
        windows_.ResizeColumns(last);
        return true;
    });
}

bool OpenWindows::AddItem(TextIn WinType, std::int32_t WinHandle) {
    return Guarded(OnFault::Quiet, u"OpenWindows.AddItem ", services_, false, [&] {
        std::u16string type = WinType.Str();
        std::u16string handle = IntegerText(WinHandle);
        windows_.ResizeColumns(Count() + 2);
        windows_.At(kType, Count()) = std::move(type);
        windows_.At(kHandle, Count()) = std::move(handle);
        return true;
    });
}

}  // namespace halvek
