#!/bin/bash
# What compilers and tests don't find: lint.sh checks the include layers, the scripts by shellcheck, and each product
# source by clang-tidy with the flags of its own build (build/x64, so the windows' sources too).
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
result=0

tools/check_layers.sh || result=1

mapfile -t scripts < <(git ls-files run .ci tools | xargs grep -lE '^#!/bin/(ba)?sh')
shellcheck -x "${scripts[@]}" || result=1

if [ ! -e build/x64/compile_commands.json ]; then
    cmake --preset x64 >/dev/null || exit 1
fi
# The sources share a precompiled header of GCC's, which clang can't read: it gets the flags without it.
flags=$(mktemp -d) || exit 1
trap 'rm -rf "$flags"' EXIT
sed -E 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//' build/x64/compile_commands.json >"$flags/compile_commands.json"
# clang looks for the headers of mingw-w64 beside the compiler with the plain name; ours has POSIX threads.
gcc_folder=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
mapfile -t sources < <(git ls-files 'src/*.cpp')
printf '%s\0' "${sources[@]}" |
    xargs -0 -P "$(nproc)" -n 4 clang-tidy --quiet -p "$flags" \
        --extra-arg=--target=x86_64-w64-mingw32 --extra-arg=-nostdinc++ \
        --extra-arg=-isystem"$gcc_folder/include/c++" \
        --extra-arg=-isystem"$gcc_folder/include/c++/x86_64-w64-mingw32" \
        --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-everything 2> >(grep -v 'warnings\? generated' >&2) || result=1
exit $result
