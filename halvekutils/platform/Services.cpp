// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/Services.h>

namespace halvek {

namespace {

Services* installedServices = nullptr;

}  // namespace

Services::~Services() = default;

Services& Services::Current() {
    if (installedServices == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"current Utils");
    return *installedServices;
}

void Services::Install(Services* services) noexcept {
    installedServices = services;
}

}  // namespace halvek
