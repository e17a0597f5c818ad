#!/bin/sh
# Fails on an #include in src/ that points up the list of subsystems, at another's internal header, or out of src/.
# The optional argument is the root of the tree to look at.
set -eu
cd "${1:-"$(dirname "$0")/.."}"

# shellcheck disable=SC2046 # the tree has no names with blanks
awk '
BEGIN {
    # From the bottom up: the same order as in CMakeLists.txt.
    count = split("foundation resources typed datalist griddata dialog button edit list combo gridctl", order, " ")
    for (i = 1; i <= count; i++) rank[order[i]] = i
}
FNR == 1 {
    split(FILENAME, path, "/")
    own = path[2]
    files++
    if (!(own in rank) && path[3] != "") { print FILENAME ": no subsystem is called " own; bad = 1; own = "" }
}
/^[[:space:]]*#[[:space:]]*include[[:space:]]*"/ {
    header = $0
    sub(/^[^"]*"/, "", header)
    sub(/".*$/, "", header)
    where = FILENAME ":" FNR ": "
    slash = index(header, "/")
    folder = substr(header, 1, slash - 1)
    if (!slash || !(folder in rank)) {
        print where "\"" header "\" is not named as \"subsystem/header.h\""; bad = 1
    } else if (own in rank && rank[folder] > rank[own]) {
        print where own " includes " header ", which lies above it"; bad = 1
    } else if (folder != own && header ~ /_internal\.h$/) {
        print where own " includes the internal header " header; bad = 1
    }
}
END {
    if (!files) { print "no sources found"; bad = 1 }
    if (!bad) print files " files include downwards only"
    exit bad
}
' $(find src -name '*.cpp' -o -name '*.h' -o -name '*.rc' | sort)
