#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Opens every window of the library once as a native Wayland client. Usage: wayland.sh TESTS
set -u
source "$(dirname "$0")/../desktop/desktop.sh"
export HOME=$work XDG_RUNTIME_DIR=$work WAYLAND_DISPLAY=desk QT_QPA_PLATFORM=wayland
# A compositor without a keyboard, for which the input context of Wayland is not made
export QT_IM_MODULE=compose
unset DISPLAY
chmod 700 "$work"
start weston --backend=headless-backend.so --socket="$WAYLAND_DISPLAY" --idle-time=0
wait_until "the compositor starts" test -S "$work/$WAYLAND_DISPLAY"
"$1" --gtest_brief=1 --gtest_filter='AnyDesktopTest.*' || fail "windows do not open under Wayland"
finish
