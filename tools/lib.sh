# shellcheck shell=bash
# What the steps of ./run share: a line a step with the time it took, root rights, packages. Sourced by run and setup.sh.

logs=${widgets_root:?is the root of the source tree}/build/logs

note() {
    printf '%11s %s\n' '' "$*"
}

die() {
    printf 'run: %s\n' "$*" >&2
    exit 1
}

# Seconds with one digit since a value of now.
now() {
    echo $((${EPOCHREALTIME//[^0-9]/} / 100000))
}
since() {
    local tenths=$(($(now) - $1))
    printf '%6d.%d s' $((tenths / 10)) $((tenths % 10))
}

# step TITLE COMMAND...: runs it with its output in a log, and prints a line: how long it took, and what the last line of
# the log says if that begins with ": ". The log is shown if the command fails.
step() {
    run_step show "$@"
}

# The same for a command whose failure is nothing bad, because there is another way.
try_step() {
    run_step hide "$@"
}

run_step() {
    local log start result=0 what failure=$1 title=$2
    shift 2
    mkdir -p "$logs"
    log=$logs/$(printf '%s' "${title,,}" | tr -cs 'a-z0-9' '-').log
    start=$(now)
    [ ! -t 1 ] || printf '%11s %s ...\r' '' "$title"
    ("$@") >"$log" 2>&1 </dev/null || result=$?
    what=$(tail -n 1 "$log" | sed -n 's/^: //p')
    if [ $result != 0 ] && [ "$failure" = show ]; then
        what="FAILED, log in $log"
        tail -n 60 "$log" | sed 's/^/    | /'
    fi
    printf '%11s %s%s\n' "$(since "$start")" "$title" "${what:+: $what}"
    return $result
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo -n -- "$@"
    fi
}

# Asks for the password once, before the first step that needs it; later calls find it remembered.
become_root_able() {
    [ "$(id -u)" != 0 ] || return 0
    sudo -n true 2>/dev/null && return 0
    command -v sudo >/dev/null || die "this needs root: run it as root or install sudo"
    note "the set-up needs root rights:"
    sudo -v || die "sudo refuses"
}

# A package may be there for the foreign architecture alone, which doesn't count.
missing_packages() {
    local package native
    native=$(dpkg --print-architecture)
    for package in "$@"; do
        # shellcheck disable=SC2016 # dpkg's own placeholders
        dpkg-query -W -f '${db:Status-Status} ${Architecture}\n' "$package" 2>/dev/null |
            grep -qxE "installed ($native|all)" || echo "$package"
    done
}

apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@"
}

# A mirror in the middle of an update refuses for a while; that is why it is asked three times. Lists of the last ten
# minutes are good for the first time.
install_packages() {
    local try
    for try in 1 2 3; do
        if [ $try != 1 ] || [ -z "$(find "$logs/lists-updated" -mmin -10 2>/dev/null)" ]; then
            apt_get update || true
            touch "$logs/lists-updated"
        fi
        apt_get install --no-install-recommends "$@" && return 0
        echo "apt-get failed, try $try"
        [ "$try" = 3 ] || sleep $((5 * try))
    done
    return 1
}
