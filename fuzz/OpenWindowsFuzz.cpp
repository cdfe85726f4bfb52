// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/system/LocalMachine.h>

#include <utility>

using namespace halvek;

namespace {

/// Ignores every line of the log.
class SilentMachine : public LocalMachine {
  public:
    bool TryAppend(const std::filesystem::path&, std::string_view, std::uintmax_t) override {
        return true;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    static SilentMachine machine;
    static const UseMachine use(machine);
    const auto utils = Utils::Create();
    const auto windows = utils->OpenWindows();
    std::vector<std::pair<std::u16string, std::u16string>> open = {{}};
    while (input.remaining_bytes() > 0) {
        const std::u16string type = FuzzText(input, 6);
        const auto number = input.ConsumeIntegral<std::int32_t>();
        const std::int32_t index = input.ConsumeIntegralInRange(-1, 6);
        const auto last = static_cast<std::int32_t>(open.size()) - 1;
        if (input.ConsumeBool()) {
            windows->AddItem(type, number);
            open.emplace_back(type, IntegerText(number));
        } else {
            const bool isThere = index >= 1 && index <= last;
            Require(windows->RemoveItem(index) == isThere, "what is there is removed");
            if (isThere) open.erase(open.begin() + index);
        }
        const StringTable all = windows->GetAll();
        Require(all.Columns() == static_cast<std::int32_t>(open.size()), "as many windows");
        for (std::int32_t i = 0; i < all.Columns(); ++i) {
            const auto& [kept, handle] = open[static_cast<std::size_t>(i)];
            Require(all.At(0, i) == kept && all.At(1, i) == handle, "each at its index");
            Require(windows->GetItem(i)[1] == handle, "an index finds its window");
        }
    }
    return 0;
}
