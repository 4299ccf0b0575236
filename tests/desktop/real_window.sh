# What tests with real keys in a real window share: an X server without a screen, the program in it, its keyboard.
# Sourced, with the folder of the programs in $programs. Everything goes on in the folder $work.

work=$(mktemp -d)
station=$work/station
server=
program=
window=
helper=

# Nothing stays behind, whatever happens.
clean_up() {
    local status=$?
    for process in $program $helper $server; do
        kill -KILL "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$work"
    exit "$status"
}
trap clean_up EXIT
trap 'exit 1' INT TERM HUP

# fail WHY: says in which step, and what there is to see. A test may show more in show_more.
step="starting"
show_more() { true; }
fail() {
    echo "FAILED while $step: $*"
    show_more || true
    echo "--- windows:"
    for window in $(xdotool search --onlyvisible --name . 2>/dev/null); do
        echo "$window $(xdotool getwindowname "$window" 2>/dev/null)"
    done
    echo "--- what the program said:"
    tail -n 40 "$work/program.log" || true
    exit 1
}

# wait_for WHAT COMMAND...: until the command succeeds, at most 20 seconds.
wait_for() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

alive() { kill -0 "$program" 2>/dev/null; }
gone() { ! alive; }
server_is_ready() { [ -s "$work/display" ]; }
title_has() { xdotool getwindowname "$window" 2>/dev/null | grep -q "$1"; }

# A search fails when a window goes while it looks; the next one finds what is there.
window_is_open() {
    window=$(xdotool search --onlyvisible --name '^Kelvo$' 2>/dev/null | head -n 1) || true
    [ -n "$window" ]
}

boxes() { xdotool search --onlyvisible --name '^(Kelvo|EXIT|INPUT DATA|DECLARATIE|DRUCKEN)$' 2>/dev/null | grep -vx "$window"; }
box_is_open() { [ -n "$(boxes)" ]; }
no_box_is_open() { ! box_is_open; }

# The part of a window manager: the keyboard belongs to the newest window.
give_keyboard() { xdotool windowfocus --sync "$1" 2>/dev/null; }
keyboard_to_box() {
    wait_for "a message box" box_is_open
    wait_for "the keyboard in the box" give_keyboard "$(boxes | head -n 1)"
}
keyboard_to_form() {
    wait_for "the box to go" no_box_is_open
    wait_for "the keyboard in the form" give_keyboard "$window"
}

typed() { xdotool type --delay 12 "$1"; }

# press_button LEFT TOP: clicks a place of the form given in its twips, 12000 by 9000 on the whole form. The form lies
# between the menu bar and the line of notices.
screen_width=1024
screen_height=768
press_button() {
    local menu=22 notices=19
    xdotool mousemove $(($1 * screen_width / 12000)) $((menu + $2 * (screen_height - menu - notices) / 9000)) click 1
}

# start_server OPTION...: the X server, with options of its own.
start_server() {
    Xvfb -displayfd 3 -screen 0 "${screen_width}x${screen_height}x24" -nolisten tcp "$@" 3>"$work/display" \
        >"$work/server.log" 2>&1 &
    server=$!
    wait_for "the X server" server_is_ready
    DISPLAY=":$(cat "$work/display")"
    export DISPLAY
    export QT_QPA_PLATFORM=xcb
    # Fonts and the window system keep what they allocate.
    export ASAN_OPTIONS="detect_leaks=0:${ASAN_OPTIONS:-}"
    # Whoever runs this hears nothing of it.
    export ALSOFT_DRIVERS=null
}

# start_program [VARIABLE=VALUE...]: the program in its folder, the keyboard in its window. Another one than kelvo is
# named in $program_name.
start_program() {
    mkdir -p "$station"
    "$programs/kelvo-newdb" "$station" >/dev/null
    env "$@" "$programs/${program_name:-kelvo}" --folder "$station" >"$work/program.log" 2>&1 &
    program=$!
    wait_for "the window" window_is_open
    wait_for "the keyboard in the window" give_keyboard "$window"
}
