# SPDX-License-Identifier: MIT Sourced by the desktop tests: a private display with a window
# manager. All programs started here end with the test.
set -uo pipefail

work=$(mktemp -d)
started=()
failures=0

clean_up() {
    local pid
    for ((i = ${#started[@]} - 1; i >= 0; i--)); do
        pid=${started[i]}
        kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null
    done
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 1' INT TERM HUP

fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

# No later result would mean anything.
give_up() {
    fail "$1"
    picture failure
    exit 1
}

# Waits until a command succeeds. Counts tries instead of seconds, because a busy machine makes
# fewer of them. Usage: wait_until WHAT COMMAND...
wait_until() {
    local what=$1 tries=1000
    shift
    until "$@" >/dev/null 2>&1; do
        ((tries-- > 0)) || give_up "$what"
        sleep 0.02
    done
}

# Starts a program whose output goes to a file of its name.
start() {
    "$@" >"$work/$(basename "$1").log" 2>&1 &
    started+=($!)
}

# A display at 96 dots per inch with a window manager, at Qt's given scale. Keys do not repeat when
# a slow machine releases them late.
# Usage: start_desktop [openbox|icewm [SCALE]]
start_desktop() {
    local manager=${1:-openbox} scale=${2:-1} screen
    screen=$((1366 * scale))x$((768 * scale))
    export HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb QT_STYLE_OVERRIDE=Fusion
    export QT_SCALE_FACTOR=$scale
    unset WAYLAND_DISPLAY QT_FONT_DPI
    rm -f "$work/display"  # an earlier display's number would be read for this one's
    Xvfb -displayfd 3 -screen 0 "${screen}x24" -dpi 96 -fbdir "$work" -r \
        -nolisten tcp -noreset 3>"$work/display" >"$work/Xvfb.log" 2>&1 &
    started+=($!)
    wait_until "the display starts" grep -q . "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    case $manager in
    openbox) start openbox --sm-disable ;;
    icewm)
        mkdir "$work/.icewm"
        echo ShowTaskBar=0 >"$work/.icewm/preferences"  # its clock would change the screen
        start icewm
        ;;
    esac
    wait_until "the window manager starts" wmctrl -m
}

has_active_title() {
    [[ "$(xdotool getactivewindow getwindowname 2>/dev/null)" == "$1"* ]]
}
active_window() {
    xdotool getactivewindow 2>/dev/null
}
is_active() {
    [ "$(active_window)" = "$1" ]
}
has_ended() {
    ! kill -0 "$1"
}
# The active window once its title starts with a text. Usage: wait_for_window TITLE; sets $window.
wait_for_window() {
    wait_until "a window \"$1\" opens and becomes active" has_active_title "$1"
    window=$(active_window)
}
keys() {
    xdotool key --clearmodifiers "$@"
}
# Clicks into a window, in pixels from its inner corner. Usage: click WINDOW X Y
click() {
    xdotool mousemove --sync --window "$1" "$2" "$3" click 1
}

# Leaves a picture of the screen when HALVEK_PICTURES names a folder. Usage: picture NAME
picture() {
    [ -n "${HALVEK_PICTURES:-}" ] && [ -n "${DISPLAY:-}" ] || return 0
    mkdir -p "$HALVEK_PICTURES"
    if command -v import >/dev/null; then
        import -window root "$HALVEK_PICTURES/$1.png"
    elif command -v xwd >/dev/null; then
        xwd -root -silent -out "$HALVEK_PICTURES/$1.xwd"
    fi
}

finish() {
    [ "$failures" -eq 0 ] || echo "$failures failures"
    exit $((failures > 0))
}
