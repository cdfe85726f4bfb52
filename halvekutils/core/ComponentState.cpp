// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/refdata/CodesCollection.h>
#include <halvekutils/refdata/PrintersCollection.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>
#include <halvekutils/system/LocalMachine.h>

namespace halvek {

namespace {

Machine& TheLocalMachine() {
    static LocalMachine* const machine = new LocalMachine;
    return *machine;
}

}  // namespace

ComponentState::ComponentState() : machine(&TheLocalMachine()) {}

ComponentState::~ComponentState() = default;
ComponentState::ComponentState(ComponentState&&) noexcept = default;
ComponentState& ComponentState::operator=(ComponentState&&) noexcept = default;

ComponentState& State() {
    static ComponentState* const state = new ComponentState;
    return *state;
}

}  // namespace halvek
