// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/system/LocalMachine.h>

#include <utility>

namespace halvek {

/// The local machine with a stopped clock, and a user and a folder chosen by the test.
class TestMachine : public LocalMachine {
  public:
    explicit TestMachine(std::filesystem::path own) : ownFolder(std::move(own)) {}

    DateTime Now() override { return now; }
    std::u16string LoginName() override { return loginName; }
    std::filesystem::path OwnFolder() override { return ownFolder; }

    DateTime now = MakeDateTime(2024, 3, 5, 9, 7, 3);
    std::u16string loginName = u"nina";
    std::filesystem::path ownFolder;
};

}  // namespace halvek
