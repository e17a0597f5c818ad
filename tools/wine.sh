# shellcheck shell=sh
# How Windows programs run here: sourced by wine-x64, wine-x86 and ./run, which set widgets_root. Prefixes lie under
# build/, so nothing of the user's own Wine is touched. 32-bit Wine is the host's, or one in a folder, by chroot.

: "${widgets_root:?is the root of the source tree}"
wine32_root=${WIDGETS_WINE32_ROOT:-/var/cache/widgets/wine32-root}

# Where Wine for an architecture is: "host PATH", "chroot PATH" or nothing.
wine_place() {
    if [ "$1" = x64 ]; then
        if [ -x /usr/lib/wine/wine64 ]; then
            echo "host /usr/lib/wine/wine64"
        elif command -v wine64 >/dev/null; then
            echo "host $(command -v wine64)"
        fi
    elif [ -x /usr/lib/wine/wine ]; then
        echo "host /usr/lib/wine/wine"
    elif [ -e "$wine32_root/.widgets-complete" ]; then
        echo "chroot /usr/lib/wine/wine"
    fi
}

# The variables of every Wine process. Crashes end the program, menus and browsers stay as they are, and neither the
# user's locale nor the time zone reaches a test.
wine_environment() {
    prefix=$widgets_root/build/wine-$1
    mkdir -p "$prefix.tmp"
    export WINEPREFIX="$prefix"
    export WINEARCH=win64
    [ "$1" = x64 ] || export WINEARCH=win32
    export WINEDEBUG="${WINEDEBUG:--all}"
    export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=}"
    export LC_ALL="${WIDGETS_LOCALE:-C.UTF-8}"
    export TZ="${TZ:-UTC}"
    export HOME="$prefix.tmp"
    unset WINELOADER WINESERVER
}

# Becomes a program of the Wine installation: wine_exec ARCH "PLACE PATH" ARGUMENT...
wine_exec() {
    arch=$1
    place=${2%% *}
    loader=${2#* }
    shift 2
    authority=${XAUTHORITY:-$HOME/.Xauthority}
    wine_environment "$arch"
    if [ "$place" = host ]; then
        export XAUTHORITY="$authority"
        exec "$loader" "$@"
    fi
    if [ -r "$authority" ]; then
        cp "$authority" "$WINEPREFIX.tmp/.Xauthority"
    fi
    set -- "$widgets_root/tools/wine32-enter" "$wine32_root" "$widgets_root" "$WINEPREFIX.tmp" "$(id -u):$(id -g)" \
        "$(pwd -P)" "$loader" "$@"
    if [ "$(id -u)" = 0 ]; then
        exec unshare --mount --propagation private "$@"
    fi
    # sudo drops the environment: what a program under test may want goes along by name.
    exec sudo -n env "DISPLAY=${DISPLAY:-}" "WINEPREFIX=$WINEPREFIX" "WINEARCH=$WINEARCH" "WINEDEBUG=$WINEDEBUG" \
        "WINEDLLOVERRIDES=$WINEDLLOVERRIDES" "LC_ALL=$LC_ALL" "TZ=$TZ" "GTEST_OUTPUT=${GTEST_OUTPUT:-}" \
        "GTEST_COLOR=${GTEST_COLOR:-no}" "GTEST_FILTER=${GTEST_FILTER:-*}" \
        unshare --mount --propagation private "$@"
}

# Runs a program: wine_main ARCH PROGRAM ARGUMENT... Without a display it gets one of its own.
wine_main() {
    arch=$1
    shift
    place=$(wine_place "$arch")
    if [ -z "$place" ]; then
        echo "No Wine for $arch here: ./run setup installs it." >&2
        exit 127
    fi
    if [ -z "${DISPLAY:-}" ]; then
        exec "$widgets_root/tools/with-display" "$0" "$@"
    fi
    wine_exec "$arch" "$place" "$@"
}

# The server of an architecture's prefix: wine_server ARCH ARGUMENT... (-p stays, -k ends all, -w waits).
wine_server() (
    arch=$1
    shift
    place=$(wine_place "$arch")
    [ -n "$place" ] || exit 0
    wine_exec "$arch" "${place%/*}/wineserver" "$@"
)
