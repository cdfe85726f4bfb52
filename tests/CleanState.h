// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"
#include "tests/TestMachine.h"

#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

namespace halvek {

/// The component as in a new process, before the first InitUtils, on the test's own machine and
/// desktop.
class CleanState : public ::testing::Test {
  protected:
    CleanState() {
        Reset();
        use_.emplace(machine_);
    }
    ~CleanState() override {
        use_.reset();
        Reset();
    }

    /// Starts a session whose log is the component's own.
    void Start(bool debugMode = false) {
        utils_->InitUtils(u"", u"Front Desk", u"", debugMode, u"");
    }
    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    TemporaryFolder folder_;
    TestMachine machine_{folder_ / "own/state"};
    ScriptedPlatform desktop_;
    std::shared_ptr<Utils> utils_ = Utils::Create();

  private:
    static void Reset() {
        TheSession() = Session();
        Services::Install(nullptr);
        CollectionBuilder::EndFullAccess();
    }

    std::optional<UseMachine> use_;
};

}  // namespace halvek
