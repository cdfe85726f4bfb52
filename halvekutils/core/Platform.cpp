// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/platform/PrinterSource.h>

#include <utility>

namespace halvek {

namespace {

Platform* installedPlatform = nullptr;

}  // namespace

Forms::~Forms() = default;

Platform::Platform() = default;
Platform::~Platform() = default;

Platform& Platform::Installed() {
    if (installedPlatform == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"desktop");
    RequireItsThread();
    return *installedPlatform;
}

void Platform::Install() {
    before_ = std::exchange(installedPlatform, this);
    Desktop::Install(this);
}

void Platform::Uninstall() noexcept {
    if (installedPlatform != this) return;
    installedPlatform = before_;
    Desktop::Install(before_);
}

UseMachine::UseMachine(Machine& machine) : before_(std::exchange(TheSession().machine, &machine)) {}
UseMachine::~UseMachine() {
    TheSession().machine = before_;
}

}  // namespace halvek
