# shellcheck shell=bash
# shellcheck disable=SC2154 # widgets_root and logs come from lib.sh
# One X server without a screen and one Wine server an architecture, from start_wine to the end of the shell that
# sources this after wine.sh. Shells with different architectures can have theirs at the same time. Programs then start
# in a tenth of a second, and Wine's own processes, which stay, don't hold on to the output of a test that happened to
# start them.

xvfb=
wine_started=

start_wine() {
    local arch
    trap stop_wine EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    start_display "$*"
    wine_started=$*
    # Never written to, so who reads it waits.
    rm -f "$widgets_root/build/silence-${*// /-}"
    mkfifo "$widgets_root/build/silence-${*// /-}"
    exec 8<>"$widgets_root/build/silence-${*// /-}"
    for arch in "$@"; do
        start_wine_session "$arch" >"$logs/wine-$arch.log" 2>&1 </dev/null
    done
}

# A shell that waits for input keeps the session alive; the first program with a window has the desktop started.
start_wine_session() {
    wine_server "$1" -p 8>&-
    "$widgets_root/tools/wine-$1" cmd <&8 8>&- &
    "$widgets_root/tools/wine-$1" rundll32 user32.dll,MessageBeep 8>&-
}

start_display() {
    local number=$widgets_root/build/display-${1// /-}
    mkdir -p "$logs"
    rm -f "$number"
    Xvfb -displayfd 3 -screen 0 "${WIDGETS_SCREEN:-1280x1024x24}" -nolisten tcp -noreset \
        3>"$number" >"$logs/xvfb-${1// /-}.log" 2>&1 </dev/null &
    xvfb=$!
    while [ ! -s "$number" ]; do # it writes the number that it found free
        kill -0 "$xvfb" 2>/dev/null || die "Xvfb doesn't start, see $logs/xvfb-${1// /-}.log"
        sleep 0.02
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
}

stop_wine() {
    local arch
    for arch in $wine_started; do
        wine_server "$arch" -k >/dev/null 2>&1 </dev/null
        wine_server "$arch" -w >/dev/null 2>&1 </dev/null
    done
    if [ -n "$xvfb" ]; then
        kill "$xvfb" 2>/dev/null
        wait "$xvfb" 2>/dev/null
    fi
    xvfb=
    wine_started=
}
