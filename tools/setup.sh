# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # ./run uses the lists, wine.sh sets wine32_root
# The set-up behind ./run: packages of the host, Wine for both architectures, Wine prefixes. Sourced after lib.sh and
# wine.sh. Everything is looked for first, so that a second run calls no package manager.

build_packages=(cmake ninja-build ccache g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix)
test_packages=(googletest clang libclang-rt-14-dev llvm python3)
wine_packages=(wine64 xvfb imagemagick fonts-liberation fonts-wine
    libxrender1 libxcursor1 libxi6 libxrandr2 libxfixes3 libxcomposite1 libxinerama1)
native32_packages=(gcc-multilib lib32stdc++-12-dev)
wine32_packages=(wine32:i386 libxrender1:i386 libxcursor1:i386 libxi6:i386 libxrandr2:i386 libxfixes3:i386
    libxcomposite1:i386 libxinerama1:i386)

setup_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [ ${#missing[@]} = 0 ]; then
        echo ": all there"
        return 0
    fi
    install_packages "${missing[@]}" || return 1
    echo ": installed ${missing[*]}"
}

# 32-bit Wine, one way or the other.
setup_wine32() {
    if [ -n "$(wine_place x86)" ]; then
        return 0
    fi
    become_root_able
    try_step "32-bit Wine from the host's packages" wine32_from_packages && return 0
    step "32-bit Wine in $wine32_root" wine32_from_folder
}

# Adds the foreign architecture, but only where a simulation says that nothing else on the machine would change. The
# simulation has package lists of its own, so a machine on which it fails is left untouched.
wine32_from_packages() {
    local probe result=0 added=
    [ "$(dpkg --print-architecture)" = amd64 ] || { echo ": this is no amd64 machine"; return 1; }
    probe=$(mktemp -d)
    wine32_simulate "$probe" || result=$?
    as_root rm -rf "$probe"
    [ $result = 0 ] || return $result

    if ! dpkg --print-foreign-architectures | grep -qx i386; then
        as_root dpkg --add-architecture i386 || return 1
        added=yes
    fi
    apt_get update || true
    apt_get install --no-install-recommends --no-remove "${wine32_packages[@]}" && return 0

    if [ -n "$added" ]; then
        # Before, there was no package of this architecture at all.
        apt_get purge '?and(?installed,?architecture(i386))' || true
        as_root dpkg --remove-architecture i386 || true
        apt_get update || true
    fi
    echo ": the installation failed, the architecture is removed again"
    return 1
}

wine32_simulate() {
    local probe=$1 plan changed
    local options=(-o "APT::Architectures=amd64,i386" -o "Dir::State::Lists=$probe/lists" -o "Dir::Cache=$probe/cache")
    mkdir -p "$probe/lists/partial" "$probe/cache/archives/partial"
    chmod -R 755 "$probe"
    apt_get "${options[@]}" update || true
    plan=$(apt_get "${options[@]}" install -s --no-install-recommends "${wine32_packages[@]}" 2>&1) || {
        echo "$plan"
        echo ": they don't fit what is installed"
        return 1
    }
    # "Inst name [old version] (new version)" is an upgrade, "Remv name" a removal.
    changed=$(grep -cE '^(Remv |Inst [^ ]+ \[)' <<<"$plan")
    if [ "$changed" != 0 ]; then
        echo "$plan"
        echo ": not taken, they would change or remove $changed packages of this machine"
        return 1
    fi
}

wine32_from_folder() {
    if [ -n "$(missing_packages debootstrap)" ]; then
        install_packages debootstrap || return 1
    fi
    as_root "$widgets_root/tools/make-wine32-folder" "$wine32_root"
}

# A prefix is made once; a change of the settings in wine.reg is written into it again.
setup_prefix() {
    local arch=$1 stamp wanted
    stamp=$widgets_root/build/wine-$arch/.widgets-ready
    wanted="$(wine_place "$arch") $(cksum <"$widgets_root/tools/wine.reg")"
    [ "$(cat "$stamp" 2>/dev/null)" != "$wanted" ] || return 0
    DISPLAY=${DISPLAY:-:none} "$widgets_root/tools/wine-$arch" wineboot -i
    DISPLAY=${DISPLAY:-:none} "$widgets_root/tools/wine-$arch" regedit /S "Z:$widgets_root/tools/wine.reg"
    wine_server "$arch" -w
    [ -e "$widgets_root/build/wine-$arch/system.reg" ] || return 1
    echo "$wanted" >"$stamp"
}

# Both at once: most of the time each waits for its own services.
setup_prefixes() {
    local other result=0
    setup_prefix x86 &
    other=$!
    setup_prefix x64 || result=1
    wait $other || result=1
    return $result
}

# The 32-bit native build is a bonus where the machine's packages allow it.
has_native32() {
    [ -z "$(missing_packages "${native32_packages[@]}")" ]
}
