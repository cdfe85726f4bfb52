#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the form tests on a real display, where a window manager frames, places and activates
# windows. Leaves out the monkey, whose thousands of windows would take too long there.
# Usage: forms.sh TESTS
set -u
source "$(dirname "$0")/desktop.sh"
start_desktop
"$1" --gtest_brief=1 --gtest_filter=-*MonkeyTest.* || fail "the form tests fail under a window manager"
finish
