# shellcheck shell=bash
# A private virtual display with a window manager, and pictures of what it shows. Sourced after
# setup.sh, not run.

Scratch=

# StartDisplay: opens the display and exports DISPLAY. All that runs on it ends with the script,
# however that ends.
StartDisplay() {
    type -P Xvfb openbox xdotool import >/dev/null || ExplainMissing
    trap StopDisplay EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    Scratch=$(mktemp -d)

    # Without -noreset it starts anew when the first client leaves, and refuses the next meanwhile.
    Xvfb -displayfd 3 -noreset -screen 0 1920x1200x24 -nolisten tcp \
        3>"$Scratch/display" 2>"$Scratch/xvfb.log" &
    local server=$!
    Await "$server" test -s "$Scratch/display" || Fail "Xvfb does not start:" "$Scratch/xvfb.log"
    unset WAYLAND_DISPLAY XAUTHORITY
    DISPLAY=:$(<"$Scratch/display")
    export DISPLAY
    # On a busy machine it can tell its number before it answers.
    Await "$server" Answers || Fail "Xvfb does not answer:" "$Scratch/xvfb.log"
    # Without a session bus the first program that asks for one would start it, and leave it behind.
    export DBUS_SESSION_BUS_ADDRESS=${DBUS_SESSION_BUS_ADDRESS-disabled:}

    openbox --sm-disable >"$Scratch/openbox.log" 2>&1 &
    Await "$!" IsManaged || Fail "openbox does not start:" "$Scratch/openbox.log"
}

Answers() {
    xdotool getdisplaygeometry >/dev/null 2>&1
}

IsManaged() {
    xdotool get_num_desktops >/dev/null 2>&1
}

# StartProgram COMMAND...: runs a command on the display; its process number is in ProgramProcess.
StartProgram() {
    "$@" &
    ProgramProcess=$!
}

# StopDisplay: ends the programs, the newest first, then window manager and display.
StopDisplay() {
    local process
    for process in $(jobs -p | tac); do
        # A display that is just starting may miss the signal.
        while kill "$process" 2>/dev/null; do
            sleep 0.05
        done
    done
    rm -rf "$Scratch"
}

# Await PROCESS COMMAND...: repeats the command until it succeeds; fails after half a minute, or
# when the process has ended.
Await() {
    local process=$1 attempt
    shift
    for ((attempt = 0; attempt < 300; attempt++)); do
        "$@" && return 0
        kill -0 "$process" 2>/dev/null || return 1
        sleep 0.1
    done
    return 1
}

# Fail MESSAGE [LOG]
Fail() {
    echo "$1" >&2
    [[ -z ${2-} ]] || cat "$2" >&2
    exit 1
}

# FindWindow TITLE: sets Window to the visible window of the program with this title.
FindWindow() {
    Window=$(xdotool search --all --onlyvisible --pid "$ProgramProcess" --name "^$1\$" 2>/dev/null |
        tail -n 1) && [[ -n $Window ]]
}

# TakePicture TITLE FILE: waits until the program's window is shown and painted, then writes a
# picture of it with its frame.
TakePicture() {
    Await "$ProgramProcess" FindWindow "$1" || Fail "The program does not show the window \"$1\"."
    SettledPicture=
    Await "$ProgramProcess" IsSettled || Fail "The window \"$1\" is not painted."
    mkdir -p "$(dirname "$2")"
    cp "$Scratch/window.png" "$2"
}

# A window is painted when two pictures, one after the other, are the same and not of one colour.
IsSettled() {
    local before=$SettledPicture colours
    import -silent -strip -frame -window "$Window" "$Scratch/window.png" 2>/dev/null || return 1
    read -r colours SettledPicture < <(identify -format '%k %#\n' "$Scratch/window.png")
    ((colours > 2)) && [[ $SettledPicture == "$before" ]]
}
