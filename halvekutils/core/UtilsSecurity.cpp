// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

void Utils::BuildSecurityCollection(TextIn SecurityData) {
    // Before anything can fail: no fault may leave the full access of an earlier build on.
    SecurityItemsCollection::EndFullAccess();
    Guarded(OnFault::Beep, u"BuildSecurityCollection ", LogOf(*this), [&] {
        State().securityItems = nullptr;
        const auto items = SecurityItemsCollection::CreateEmpty(ComponentServices());
        State().securityItems = items;
        items->AddItems(SecurityData);
    });
}

std::shared_ptr<SecurityItemsCollection> Utils::GetSecurityItemsCollection() const {
    return State().securityItems;
}
void Utils::ClearSecurityCollection() {
    State().securityItems = nullptr;
}

}  // namespace halvek
