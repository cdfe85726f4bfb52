// SPDX-License-Identifier: MIT
#include <halvekutils/core/Session.h>
#include <halvekutils/system/LocalMachine.h>

namespace halvek {

namespace {

Machine& TheLocalMachine() {
    static LocalMachine* const machine = new LocalMachine;
    return *machine;
}

}  // namespace

Session::Session() : machine(&TheLocalMachine()) {}
Session::~Session() = default;
Session::Session(Session&&) noexcept = default;
Session& Session::operator=(Session&&) noexcept = default;

Session& TheSession() {
    static Session* const session = new Session;
    return *session;
}

}  // namespace halvek
