// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

void Utils::BuildCodesCollection(TextIn CodesData) {
    Guarded(OnFault::Quiet, u"BuildCodesCollection ", LogOf(*this), [&] {
        // The old collection goes first: a build that fails leaves a part, never the old one.
        State().codes = nullptr;
        const auto codes = CodesCollection::CreateEmpty();
        State().codes = codes;
        codes->AddRecords(CodesData, ComponentServices());
    });
}

std::shared_ptr<CodesCollection> Utils::GetCodesCollection() const {
    return State().codes;
}
void Utils::ClearCodesCollection() {
    State().codes = nullptr;
}

}  // namespace halvek
