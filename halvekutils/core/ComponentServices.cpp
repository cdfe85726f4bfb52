// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/ErrorLog.h>

namespace halvek {

namespace {

class StateServices : public Services {
  public:
    void LogError(TextIn message) noexcept override { WriteErrorLog(State(), message); }
    void ShowInDebug(TextIn text) override { DebugConsole::Current()->ShowInDebug(text); }
    bool DebugMode() const override { return State().debugMode; }
    std::u16string AppName() const override { return State().appName; }
    std::u16string SpecialMode() const override { return State().specialMode; }
    Color FormSkinColor() const override { return State().formSkinColor; }
    Color FormTextColor() const override { return State().formTextColor; }
};

}  // namespace

Services& ComponentServices() {
    static Services* const services = new StateServices;
    return *services;
}

}  // namespace halvek
