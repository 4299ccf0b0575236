# The hands of an operator in a real window. Sourced behind real_window.sh, for whoever leads the program through its
# pages by keys alone: nothing here knows where a control stands. Keys have the names that scripts give them.

# What has been done since the program was started, as a script: it tells where Tab would lead.
played=()
# Whether the program finds a sound device; real_window.sh gives it none.
sound_device=no

keys() {
    local key
    for key in "$@"; do
        played+=("key $key")
        key=${key/Alt+/alt+}
        key=${key/Ctrl+/ctrl+}
        case $key in
            *Enter) key=${key%Enter}Return ;;
            *Space) key=${key%Space}space ;;
            *Esc) key=${key%Esc}Escape ;;
        esac
        xdotool key --delay 30 "$key"
    done
}

text() {
    played+=("type \"$1\"")
    typed "$1"
}

# menu NAME KEY...: the entry of the menu, picked by these keys.
menu() {
    played+=("click $1")
    shift
    xdotool key --delay 60 "$@"
}

# One look at the screen finds the box: between two looks one may go and the next one come.
another_box_is_open() {
    local newest
    newest=$(boxes | head -n 1) || true
    [ -n "$newest" ] && [ "$newest" != "$1" ] && box=$newest
}

# answer KEY...: a message box after the other, each answered with its key. Comes behind what raises them.
answer() {
    local key box=
    for key in "$@"; do
        wait_for "a message box" another_box_is_open "$box"
        wait_for "the keyboard in the box" give_keyboard "$box"
        xdotool key "$key"
    done
    keyboard_to_form
}

# go_to NAME: with Tab, as often as it takes the scripted operator from the same beginning.
go_to() {
    local tabs
    rm -rf "$work/asked" && mkdir "$work/asked"
    find "$station" -maxdepth 1 \( -iname '*.mdb' -o -iname '*.dat' \) -exec cp {} "$work/asked" \;
    {
        printf 'soundcard %s\nstart\n' "$sound_device"
        printf '%s\n' "${played[@]}"
        echo "show focus"
        for _ in {1..80}; do printf 'key Tab\nshow focus\n'; done
    } >"$work/tabs.kelvo"
    "$programs/kelvo-script" --folder "$work/asked" "$work/tabs.kelvo" >"$work/tabs" || true
    tabs=$(grep -x '[A-Za-z0-9]*' "$work/tabs" | grep -nx "$1" | head -n 1 || true)
    [ -n "$tabs" ] || fail "Tab does not lead to $1: $(cat "$work/tabs")"
    for ((tabs = ${tabs%%:*} - 1; tabs > 0; --tabs)); do keys Tab; done
}

# choose NAME: an option or a button.
choose() {
    go_to "$1"
    keys Space
}

# pick_contest NAME: on the first page, and CONCURS.
pick_contest() {
    choose "$1"
    keys Alt+O
    answer Return
}

start_entry() {
    menu mnuQSOfahren alt+q
    wait_for "the entry form" title_has UTC
}

start_review() {
    menu mnuLOG alt+l
    wait_for "the review form" title_has Anzeigen
}
