#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Opens every window of the library on each of two screens, under a window manager with a task bar.
# The server has no hardware: two outputs of the dummy driver, placed side by side.
# Usage: screens.sh TESTS openbox|icewm|metacity
set -u
source "$(dirname "$0")/../desktop/desktop.sh"

start_two_screens() {
    export HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb QT_STYLE_OVERRIDE=Fusion
    unset WAYLAND_DISPLAY QT_FONT_DPI
    cat >"$work/xorg.conf" <<'CONF'
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 32768
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    DefaultDepth 24
    SubSection "Display"
        Virtual 2304 1024
    EndSubSection
EndSection
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
EndSection
CONF
    /usr/lib/xorg/Xorg -config "$work/xorg.conf" -logfile "$work/Xorg.log" -displayfd 3 -dpi 96 \
        -sharevts vt99 -nolisten tcp -noreset 3>"$work/display" >"$work/Xorg.out" 2>&1 &
    started+=($!)
    wait_until "the display starts" grep -q . "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    xrandr --newmode large 108.88 1280 1360 1496 1712 1024 1025 1028 1060
    xrandr --addmode DUMMY1 large
    xrandr --output DUMMY0 --mode 1024x768 --pos 0x0 --primary \
        --output DUMMY1 --mode large --pos 1024x0
    xset r off
}

tests=$1 manager=$2
start_two_screens
case $manager in
icewm)
    mkdir "$work/.icewm"
    # Its own task bar, at the bottom of the first screen
    printf '%s\n' TaskBarShowClock=0 TaskBarShowCPUStatus=0 TaskBarShowNetStatus=0 \
        >"$work/.icewm/preferences"
    start icewm
    ;;
openbox) start openbox --sm-disable ;;
*) start "$manager" ;;
esac
wait_until "the window manager starts" wmctrl -m
export HALVEK_WINDOW_MANAGER=${started[-1]}
"$tests" --gtest_brief=1 "${@:3}" || fail "windows open in the wrong place under $manager"
finish
